#include "winappremover.h"

#include "processrunner.h"

#include <QDebug>

WinAppRemover::WinAppRemover(ProcessRunner& runner)
    : m_runner(runner)
{
}

QString WinAppRemover::quoted(const QString& text)
{
    // PowerShell ends a single-quoted string at the ASCII quote and at the typographic ones too.
    static const QString quotes = QStringLiteral("'\u2018\u2019\u201A\u201B");
    QString out;
    out.reserve(text.size() + 2);
    for (const QChar c : text) {
        out += c;
        if (quotes.contains(c))
            out += c;
    }
    return out;
}

WinAppRemover::Step WinAppRemover::powerShell(const QString& command, int timeoutMs)
{
    const ProcessOutcome outcome = m_runner.run(QStringLiteral("powershell.exe"),
        { QStringLiteral("-NoProfile"), QStringLiteral("-NonInteractive"), QStringLiteral("-Command"), command },
        timeoutMs);
    return { outcome.exitCode == 0, QString::fromUtf8(outcome.standardError).trimmed(),
        QString::fromUtf8(outcome.standardOutput).trimmed() };
}

RemoveResult WinAppRemover::remove(const WinApp& app)
{
    const QString fullName = quoted(app.fullName);
    const QString name = quoted(app.name);

    const Step perUser = powerShell(QStringLiteral("Remove-AppxPackage -Package '%1'").arg(fullName), RemoveTimeoutMs);
    bool removed = perUser.ok;
    QString error = perUser.error;
    if (!removed) {
        const Step allUsers
            = powerShell(QStringLiteral("Remove-AppxPackage -AllUsers -Package '%1'").arg(fullName), RemoveTimeoutMs);
        removed = allUsers.ok;
        if (!removed && !allUsers.error.isEmpty())
            error = allUsers.error;
        // Without this Windows installs the app again for every new user; it decides nothing.
        powerShell(QStringLiteral("Get-AppxProvisionedPackage -Online | Where-Object { $_.DisplayName -like '*%1*' } "
                                  "| ForEach-Object {     Remove-AppxProvisionedPackage -Online     -PackageName "
                                  "$_.PackageName -AllUsers   }")
                       .arg(name),
            ProvisionedTimeoutMs);
    }
    if (!removed && !app.wingetId.isEmpty()) {
        const ProcessOutcome winget = m_runner.run(QStringLiteral("winget"),
            { QStringLiteral("uninstall"), QStringLiteral("--id"), app.wingetId, QStringLiteral("--silent"),
                QStringLiteral("--accept-source-agreements"), QStringLiteral("--force") },
            WingetTimeoutMs);
        removed = winget.exitCode == 0;
        qDebug().noquote() << "[WinApps] winget fallback exit:" << winget.exitCode << "for" << app.wingetId;
    }

    // The messages are shown by the Windows apps page, hence its translation context.
    RemoveResult result;
    result.displayName = app.displayName;
    const Step check = powerShell(
        QStringLiteral("(Get-AppxPackage -Name '%1' -AllUsers).PackageFullName").arg(name), VerifyTimeoutMs);
    // Only the answer counts, not the check's exit code: no full name listed means no user has the
    // package any more, whatever the removal steps reported on the way.
    if (check.output.isEmpty()) {
        result.success = true;
    } else if (!removed) {
        result.message
            = error.isEmpty() ? QCoreApplication::translate("WinAppsPage", "移除失败（可能需要管理员权限）") : error;
    } else {
        result.message = QCoreApplication::translate("WinAppsPage",
            "系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。\n"
            "若需彻底删除，请以管理员身份运行本程序。");
    }
    return result;
}

QList<RemoveResult> WinAppRemover::removeAll(
    const QList<WinApp>& apps, const Progress& progress, const std::atomic_bool* stop)
{
    QList<RemoveResult> results;
    for (int i = 0; i < apps.size(); ++i) {
        if (stop && stop->load())
            break;
        if (progress)
            progress(apps.at(i), i + 1, int(apps.size()));
        results.append(remove(apps.at(i)));
    }
    return results;
}
