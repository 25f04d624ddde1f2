#pragma once

#include "platform/forwardingplatform.h"
#include "platform/processes.h"
#include "support/currentmachine.h"
#include "support/forwardingfilesystem.h"

#include <QSet>

#include <mutex>

// A sandbox machine, current while it lives, with a process list the test writes and folders it
// can make undeletable (tests run as root, so permissions cannot do that).
class ExtMachine final : public platform::ForwardingPlatform, public platform::Processes, public ForwardingFileSystem {
public:
    explicit ExtMachine(const QString& root = QStringLiteral("machine"))
        : ForwardingPlatform(m_machine.platform())
        , ForwardingFileSystem(m_machine.platform())
        , m_machine(root)
    {
        platform::setCurrent(this);
    }
    ~ExtMachine() override { platform::setCurrent(nullptr); }

    QString local(const QString& relative = QString()) const
    {
        return m_machine.variable(L"LOCALAPPDATA") + '/' + relative;
    }
    QString roaming(const QString& relative = QString()) const
    {
        return m_machine.variable(L"APPDATA") + '/' + relative;
    }
    QString drive(const QString& windowsPath) const { return m_machine.map(windowsPath); }

    static bool write(const QString& path, const QByteArray& bytes) { return testfiles::write(path, bytes); }
    static QByteArray read(const QString& path) { return testfiles::read(path); }

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
    platform::EmptyFolderResult removeFolder(const std::wstring& folder) override
    {
        if (undeletable.contains(QString::fromStdWString(folder)))
            return { true, 0, 1, 13 };
        return ForwardingFileSystem::removeFolder(folder);
    }

    platform::FileSystem& fileSystem() override { return *this; }
    platform::Processes& processes() override { return *this; }

private:
    CurrentMachine m_machine;
    mutable std::mutex m_mutex;
    QStringList m_running;
    QStringList m_stubborn;
};
