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
        platform::Environment& env = m_platform.environment();
        if (!path.startsWith(QLatin1String("L:")) && !path.startsWith(QLatin1String("R:")))
            return QString::fromStdWString(env.mapPath(path.toStdWString()));
        const auto base = env.variable(path.startsWith(QLatin1Char('L')) ? L"LOCALAPPDATA" : L"APPDATA");
        return QString::fromStdWString(base.value_or(L"")) + QLatin1Char('/') + path.mid(2);
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
    QTemporaryDir m_dir;
    mutable platform::SandboxPlatform m_platform;
};
