#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// What one finished (or abandoned) program run gave back.
struct ProcessOutcome {
    // -1 when the program could not start, crashed, or was stopped at its time-out.
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

// Runs a program without a shell and waits for it. Tests replace it with recorded outcomes.
class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;
    virtual ProcessOutcome run(const QString& program, const QStringList& arguments, int timeoutMs) = 0;
};

// The real thing, through QProcess; blocks the calling thread.
class QProcessRunner final : public ProcessRunner {
public:
    ProcessOutcome run(const QString& program, const QStringList& arguments, int timeoutMs) override;
};
