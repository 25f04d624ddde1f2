#pragma once

#include "platform/environment.h"
#include "platform/filesystem.h"
#include "platform/forwardingplatform.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "support/testmachine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <mutex>

// A sandbox machine, current while it lives, with a process list the test writes and folders it
// can make undeletable (tests run as root, so permissions cannot do that).
class ExtMachine final : public platform::ForwardingPlatform, public platform::Processes, public platform::FileSystem {
public:
    // `root`: the machine's folder below a temporary one; its spelling reaches every variable.
    explicit ExtMachine(const QString& root = QStringLiteral("machine"))
        : ForwardingPlatform(m_sandbox)
        , m_sandbox((m_dir.path() + QLatin1Char('/') + root).toStdWString())
    {
        platform::setCurrent(this);
    }
    ~ExtMachine() override { platform::setCurrent(nullptr); }

    QString local(const QString& relative = QString()) const { return env(L"LOCALAPPDATA") + '/' + relative; }
    QString roaming(const QString& relative = QString()) const { return env(L"APPDATA") + '/' + relative; }
    QString drive(const QString& windowsPath) const
    {
        return QString::fromStdWString(m_sandbox.environment().mapPath(windowsPath.toStdWString()));
    }

    static bool write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly)
            && file.write(bytes) == bytes.size();
    }
    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // Processes: image names that are running; a stubborn one survives terminate().
    void setRunning(const QStringList& images, const QStringList& stubborn = {})
    {
        std::lock_guard lock(m_mutex);
        m_running = images;
        m_stubborn = stubborn;
    }
    std::vector<platform::ProcessInfo> snapshot() override
    {
        std::lock_guard lock(m_mutex);
        std::vector<platform::ProcessInfo> list;
        for (int i = 0; i < m_running.size(); ++i)
            list.push_back({ static_cast<std::uint32_t>(100 + i), m_running.at(i).toStdWString(), {} });
        return list;
    }
    platform::Termination terminate(std::uint32_t pid, std::uint32_t) override
    {
        std::lock_guard lock(m_mutex);
        const int index = static_cast<int>(pid) - 100;
        if (index < 0 || index >= m_running.size() || m_running.at(index).isEmpty())
            return platform::Termination::NotOpened;
        if (m_stubborn.contains(m_running.at(index)))
            return platform::Termination::Refused;
        m_running[index].clear(); // keeps the other pids stable until the next setRunning
        return platform::Termination::Terminated;
    }

    // File system: the sandbox's, except that a removal of a path in `undeletable` fails.
    QSet<QString> undeletable;
    bool isFolder(const std::wstring& path) override { return m_sandbox.fileSystem().isFolder(path); }
    std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) override
    {
        return m_sandbox.fileSystem().subFolders(folder);
    }
    std::int64_t folderSize(const std::wstring& folder) override { return m_sandbox.fileSystem().folderSize(folder); }
    platform::EmptyFolderResult emptyFolder(const std::wstring& folder) override
    {
        return m_sandbox.fileSystem().emptyFolder(folder);
    }
    platform::FolderMeasure measureFolder(
        const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop) override
    {
        return m_sandbox.fileSystem().measureFolder(folder, maxFiles, stop);
    }
    platform::EmptyFolderResult removeFolder(const std::wstring& folder) override
    {
        if (undeletable.contains(QString::fromStdWString(folder)))
            return { true, 0, 1, 13 };
        return m_sandbox.fileSystem().removeFolder(folder);
    }
    bool removeFile(const std::wstring& path) override { return m_sandbox.fileSystem().removeFile(path); }

    platform::FileSystem& fileSystem() override { return *this; }
    platform::Processes& processes() override { return *this; }

private:
    QString env(const wchar_t* name) const
    {
        return QString::fromStdWString(m_sandbox.environment().variable(name).value_or(std::wstring()));
    }

    QTemporaryDir m_dir;
    mutable TestMachine m_sandbox;
    mutable std::mutex m_mutex;
    QStringList m_running;
    QStringList m_stubborn;
};
