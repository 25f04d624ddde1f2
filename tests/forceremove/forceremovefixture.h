#pragma once

#include <forceremove/toolrunner.h>
#include <uninstall/installedapp.h>

#include <support/testmachine.h>

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

// taskkill, schtasks and sc as recorded on a machine: every call is kept, and each program
// answers with its recorded result (finished with exit code 0 and no output by default).
class RecordedTools final : public ToolRunner {
public:
    ToolResult run(const QString& program, const QStringList& arguments, int timeoutMs) override;

    void answer(const QString& program, const ToolResult& result);
    QList<QStringList> calls() const; // program first, then its arguments
    int blockMs = 0; // how long each call takes

private:
    mutable QMutex m_lock;
    QHash<QString, ToolResult> m_results;
    QList<QStringList> m_calls;
};

// A sandbox machine in a temporary folder, current while it lives.
class SandboxMachine {
public:
    SandboxMachine();
    ~SandboxMachine();

    TestMachine& platform() { return *m_platform; }
    platform::Registry& registry() { return m_platform->registry(); }
    // Where a Windows path lies in the sandbox.
    QString local(const QString& windowsPath) const;
    void writeFile(const QString& windowsPath, qint64 bytes);
    void makeFolder(const QString& windowsPath);
    void setProcesses(const QStringList& lines); // "pid<TAB>C:\path.exe"
    QStringList processes() const;
    void addService(const QString& name, const QString& binary, const QString& displayName = QString());

private:
    QTemporaryDir m_dir;
    std::unique_ptr<TestMachine> m_platform;
};

// The program most cases remove.
InstalledApp fooApp(const QString& installLocation = QStringLiteral("C:\\Program Files\\Foo App"));

// Whether the signal came: a pool job may have sent it before the wait began.
inline bool arrived(QSignalSpy& spy)
{
    const bool came = !spy.isEmpty() || spy.wait(10000);
    // The spy records on the sending thread; a receiver connected before it has its queued call
    // posted by then, and it runs here, so the dialog has taken the signal in.
    QCoreApplication::processEvents();
    return came;
}
