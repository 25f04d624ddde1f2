#pragma once

#include <forceremove/toolrunner.h>
#include <uninstall/installedapp.h>

#include <support/currentmachine.h>

#include <QHash>
#include <QList>
#include <QMutex>

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
class SandboxMachine : public CurrentMachine {
public:
    platform::Registry& registry() { return platform().registry(); }
    QString local(const QString& windowsPath) const { return map(windowsPath); }
    void writeFile(const QString& windowsPath, qint64 bytes);
    void makeFolder(const QString& windowsPath);
    void setProcesses(const QStringList& lines); // "pid<TAB>C:\path.exe"
    QStringList processes() const;
    void addService(const QString& name, const QString& binary, const QString& displayName = QString());

private:
    QString processList() const;
};

// The program most cases remove.
InstalledApp fooApp(const QString& installLocation = QStringLiteral("C:\\Program Files\\Foo App"));
