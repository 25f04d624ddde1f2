#pragma once

#include "winapp.h"

#include <QCoreApplication>

#include <atomic>
#include <functional>

class ProcessRunner;

// One app's removal outcome.
struct RemoveResult {
    QString displayName;
    QString message; // empty on success
    bool success = false;
};

// Removes packaged apps one after the other: PowerShell for the current user, then for all users
// and the provisioned copy, winget as the last resort, and finally a check that the package is
// really gone. Blocking; the page runs it on the thread pool.
class WinAppRemover final {
public:
    explicit WinAppRemover(ProcessRunner& runner);

    // Called before each app with its 1-based position.
    using Progress = std::function<void(const WinApp& app, int position, int count)>;
    // Once `stop` (when given) reads true, no further app is started; the results end there.
    QList<RemoveResult> removeAll(
        const QList<WinApp>& apps, const Progress& progress = {}, const std::atomic_bool* stop = nullptr);
    RemoveResult remove(const WinApp& app);

    // The text as the body of a PowerShell single-quoted string: every quote character that
    // PowerShell accepts as a single quote is doubled, so no package name can end the string.
    static QString quoted(const QString& text);

    static constexpr int RemoveTimeoutMs = 60000;
    static constexpr int ProvisionedTimeoutMs = 90000;
    static constexpr int WingetTimeoutMs = 120000;
    static constexpr int VerifyTimeoutMs = 20000;

private:
    struct Step {
        bool ok = false;
        QString error;
        QString output;
    };
    Step powerShell(const QString& command, int timeoutMs);

    ProcessRunner& m_runner;
};
