#pragma once

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// A machine in a temporary folder, made the process's platform for as long as it lives. Workers
// read the platform on their pool thread, so it must outlive every scan and clean a test starts.
class CleanupSandbox {
public:
    CleanupSandbox()
        : m_platform(QDir(m_dir.path()).filePath(QStringLiteral("machine")).toStdWString())
    {
        platform::setCurrent(&m_platform);
    }
    ~CleanupSandbox() { platform::setCurrent(nullptr); }

    // Beside the machine, for what no clean may ever reach.
    QString outside(const QString& relative) const { return m_dir.filePath(QStringLiteral("outside/") + relative); }
    // "C:/..." as the sandbox places it; "L:" and "R:" stand for Local and Roaming AppData.
    QString machine(const QString& path) const
    {
        if (path.startsWith(QLatin1String("L:")) || path.startsWith(QLatin1String("R:")))
            return env(path.startsWith(QLatin1Char('L')) ? L"LOCALAPPDATA" : L"APPDATA") + QLatin1Char('/')
                + path.mid(2);
        return QString::fromStdWString(m_platform.environment().mapPath(path.toStdWString()));
    }

    // A sparse file has the length but takes no disk space: sizes come from metadata only.
    static bool write(const QString& path, qint64 bytes, bool sparse = false)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        return file.open(QIODevice::WriteOnly)
            && (sparse ? file.resize(bytes) : file.write(QByteArray(bytes, 'j')) == bytes);
    }

private:
    QString env(const wchar_t* name) const
    {
        return QString::fromStdWString(m_platform.environment().variable(name).value_or(std::wstring()));
    }

    QTemporaryDir m_dir;
    mutable platform::SandboxPlatform m_platform;
};
