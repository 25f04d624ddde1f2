#pragma once

#include "platform/environment.h"
#include "support/testmachine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

// A fresh machine in a temporary folder, current while it lives. Workers reach the platform from
// their pool threads, so it must outlive every job a case starts.
class CurrentMachine {
public:
    // `root`: the machine's folder below the temporary one; its spelling reaches every variable.
    explicit CurrentMachine(const QString& root = QStringLiteral("machine"))
        : m_machine(m_dir.filePath(root).toStdWString())
    {
        platform::setCurrent(&m_machine);
    }
    ~CurrentMachine() { platform::setCurrent(nullptr); }
    CurrentMachine(const CurrentMachine&) = delete;
    CurrentMachine& operator=(const CurrentMachine&) = delete;

    TestMachine& platform() const { return m_machine; }
    // Beside the machine, for what nothing done to it may ever reach.
    QString outside(const QString& relative = QString()) const
    {
        return m_dir.filePath(QStringLiteral("outside/") + relative);
    }
    // Where a Windows path lies on this machine.
    QString map(const QString& windowsPath) const
    {
        return QString::fromStdWString(m_machine.environment().mapPath(windowsPath.toStdWString()));
    }
    QString variable(const wchar_t* name) const
    {
        return QString::fromStdWString(m_machine.environment().variable(name).value_or(std::wstring()));
    }

private:
    QTemporaryDir m_dir;
    mutable TestMachine m_machine;
};

namespace testfiles {

inline bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size();
}

// Sparse: only the size is set, for code that reads sizes and never contents.
inline bool writeSized(const QString& path, qint64 bytes, bool sparse = false)
{
    if (!sparse)
        return write(path, QByteArray(bytes, 'j'));
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) && file.resize(bytes);
}

inline QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace testfiles

// Whether the signal came: a pool job may have sent it before the wait began.
inline bool arrived(QSignalSpy& spy, int timeoutMs = 10000)
{
    const bool came = !spy.isEmpty() || spy.wait(timeoutMs);
    // The spy records on the sending thread; a receiver connected before it has its queued call
    // posted by then, and it runs here, so the receiver has taken the signal in too.
    QCoreApplication::processEvents();
    return came;
}
