#include "processrunner.h"

#include <QDebug>
#include <QProcess>

namespace {
constexpr int KillGraceMs = 2000;
}

ProcessOutcome QProcessRunner::run(const QString& program, const QStringList& arguments, int timeoutMs)
{
    ProcessOutcome outcome;
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        qWarning().noquote() << "[WinApps] could not start" << program << process.errorString();
        return outcome;
    }
    // A step left running would hold the package open for the next one; it is stopped and counts
    // as failed rather than as whatever code a process that never ended might seem to have.
    const bool finished = process.waitForFinished(timeoutMs);
    if (!finished) {
        qWarning().noquote() << "[WinApps] timed out after" << timeoutMs << "ms:" << program << arguments.value(0);
        process.kill();
        process.waitForFinished(KillGraceMs);
    } else if (process.exitStatus() == QProcess::NormalExit) {
        outcome.exitCode = process.exitCode();
    }
    outcome.standardOutput = process.readAllStandardOutput();
    outcome.standardError = process.readAllStandardError();
    return outcome;
}
