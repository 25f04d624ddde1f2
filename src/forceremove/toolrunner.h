#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

// What running a command-line tool gave.
struct ToolResult {
    bool finished = false; // ended within the time-out
    int exitCode = -1;
    QByteArray output; // standard output
};

// Runs the system tools force removal uses (taskkill, schtasks, sc) and waits for them. Tests
// replace it with recorded results.
class ToolRunner {
public:
    virtual ~ToolRunner() = default;

    virtual ToolResult run(const QString& program, const QStringList& arguments, int timeoutMs) = 0;

    // The real tools on Windows; in the sandbox, the same commands played against its machine,
    // since no Windows tool may run there.
    static std::shared_ptr<ToolRunner> forCurrentPlatform();
};

// Runs the program with QProcess; a program still running at the time-out is killed.
class ProcessToolRunner final : public ToolRunner {
public:
    ToolResult run(const QString& program, const QStringList& arguments, int timeoutMs) override;
};

// The sandbox's taskkill, schtasks and sc: "taskkill /F /IM name" ends the sandbox's processes of
// that image, "schtasks /query" lists <sandbox>/scheduledtasks.csv and "/delete /tn" drops a task
// from it, "sc delete" removes a sandbox service. Anything else does not start.
class SandboxToolRunner final : public ToolRunner {
public:
    explicit SandboxToolRunner(QString sandboxRoot);

    ToolResult run(const QString& program, const QStringList& arguments, int timeoutMs) override;

    static QString tasksFileName() { return QStringLiteral("scheduledtasks.csv"); }

private:
    ToolResult taskkill(const QStringList& arguments);
    ToolResult schtasks(const QStringList& arguments);
    ToolResult sc(const QStringList& arguments);

    QString m_root;
};
