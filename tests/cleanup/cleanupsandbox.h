#pragma once

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

    bool isValid() const { return m_dir.isValid(); }
    // Beside the machine, for what no clean may ever reach.
    QString outside(const QString& relative) const { return m_dir.filePath(QStringLiteral("outside/") + relative); }
    // "C:/Windows/Temp" and the like, as the sandbox places them.
    QString machine(const QString& windowsPath) const
    {
        return QString::fromStdWString(m_platform.environment().mapPath(windowsPath.toStdWString()));
    }
    QString local(const QString& relative) const { return variable(L"LOCALAPPDATA") + QLatin1Char('/') + relative; }
    QString roaming(const QString& relative) const { return variable(L"APPDATA") + QLatin1Char('/') + relative; }

    static bool makeFolder(const QString& path) { return QDir().mkpath(path); }

    // Real bytes, so that deleting them is observable.
    static bool writeFile(const QString& path, qint64 bytes)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(QByteArray(bytes, 'j')) == bytes;
    }

    // A file of the given length that takes no disk space: sizes come from metadata only.
    static bool writeSparse(const QString& path, qint64 bytes)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.resize(bytes);
    }

private:
    QString variable(const wchar_t* name) const
    {
        return QString::fromStdWString(m_platform.environment().variable(name).value_or(std::wstring()));
    }

    QTemporaryDir m_dir;
    mutable platform::SandboxPlatform m_platform;
};
