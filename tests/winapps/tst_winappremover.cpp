#include "recordedrunner.h"

#include "winapps/winappremover.h"

#include <QTest>

namespace {

WinApp notes(const QString& wingetId = QStringLiteral("Contoso.Notes_abc"))
{
    WinApp app;
    app.displayName = QStringLiteral("Notes");
    app.name = QStringLiteral("Contoso.Notes");
    app.fullName = QStringLiteral("Contoso.Notes_1.0.0.0_x64__abc");
    app.wingetId = wingetId;
    return app;
}

const QString NeedsAdmin = QStringLiteral("移除失败（可能需要管理员权限）");
const QString Protected = QStringLiteral("系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。\n"
                                         "若需彻底删除，请以管理员身份运行本程序。");

} // namespace

using Outcomes = QMap<QString, ProcessOutcome>;
Q_DECLARE_METATYPE(Outcomes)

class tst_WinAppRemover : public QObject {
    Q_OBJECT

private slots:
    void outcomes_data()
    {
        QTest::addColumn<Outcomes>("recorded");
        QTest::addColumn<QString>("wingetId");
        QTest::addColumn<bool>("success");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("steps");

        const auto row = [](const char* tag, const Outcomes& recorded, const char* wingetId, bool success,
                             const QString& message, const char* steps) {
            QTest::newRow(tag) << recorded << QString::fromLatin1(wingetId) << success << message
                               << QString::fromLatin1(steps);
        };
        const char* const id = "Contoso.Notes_abc";
        const QByteArray listed = "Contoso.Notes_1.0.0.0_x64__abc";
        row("removed for the user and gone",
            { { "user", outcome(0, {}, "warning text") }, { "verify", outcome(0, "\r\n") } }, id, true, "",
            "user verify");
        row("failed with standard error: the all-users error replaces it",
            { { "user", outcome(1, {}, "E_USER") }, { "allUsers", outcome(1, {}, "  E_ALL \n") },
                { "winget", outcome(5) }, { "verify", outcome(0, listed) } },
            id, false, "E_ALL", "user allUsers provisioned winget verify");
        row("failed without standard error",
            { { "user", outcome(1) }, { "allUsers", outcome(1) }, { "verify", outcome(0, "X") } }, "", false,
            NeedsAdmin, "user allUsers provisioned verify");
        row("removed but still registered for another user", { { "verify", outcome(0, listed) } }, id, false, Protected,
            "user verify");
        row("all-users removal decides; the provisioned step still runs",
            { { "user", outcome(1, {}, "E") }, { "provisioned", outcome(1, {}, "P") }, { "verify", outcome(0) } }, id,
            true, "", "user allUsers provisioned verify");
        row("winget fallback succeeds",
            { { "user", outcome(1, {}, "E") }, { "allUsers", outcome(1, {}, "E") }, { "verify", outcome(0) } }, id,
            true, "", "user allUsers provisioned winget verify");
        row("no winget identifier: no fallback, an empty all-users error keeps the first",
            { { "user", outcome(1, {}, "E") }, { "allUsers", outcome(1) }, { "verify", outcome(0, "X") } }, "", false,
            "E", "user allUsers provisioned verify");
        row("an empty answer is gone whatever the check's exit code",
            { { "user", outcome(-1) }, { "allUsers", outcome(-1) }, { "winget", outcome(-1) },
                { "verify", outcome(-1) } },
            id, true, "", "user allUsers provisioned winget verify");
        row("a listed package fails even when the check exits non-zero",
            { { "verify", outcome(1, listed, "partial") } }, "", false, Protected, "user verify");
    }

    void outcomes()
    {
        QFETCH(Outcomes, recorded);
        QFETCH(QString, wingetId);
        QFETCH(QString, steps);
        RecordedRunner runner;
        runner.outcomes = recorded;
        if (steps.contains(QLatin1String("winget"))) {
            QTest::ignoreMessage(QtDebugMsg,
                qPrintable(QStringLiteral("[WinApps] winget fallback exit: %1 for %2")
                               .arg(recorded.value("winget", outcome(0)).exitCode)
                               .arg(wingetId)));
        }
        const RemoveResult result = WinAppRemover(runner).remove(notes(wingetId));
        QCOMPARE(runner.steps(), steps);
        QCOMPARE(result.displayName, QStringLiteral("Notes"));
        QTEST(result.success, "success");
        QTEST(result.message, "message");
    }

    void commandTextsAndTimeouts()
    {
        RecordedRunner runner;
        runner.outcomes = { { "user", outcome(1) }, { "allUsers", outcome(1) }, { "winget", outcome(1) } };
        QTest::ignoreMessage(QtDebugMsg, "[WinApps] winget fallback exit: 1 for Contoso.Notes_abc");
        WinAppRemover(runner).remove(notes());
        QStringList seen; // arguments kept apart, so a command that splits into several cannot pass
        for (const auto& call : runner.calls())
            seen << QStringLiteral("%1 %2 %3").arg(call.timeoutMs).arg(call.program, call.arguments.join(" | "));
        const QString ps = QStringLiteral("powershell.exe -NoProfile | -NonInteractive | -Command | ");
        QCOMPARE(seen,
            (QStringList { "60000 " + ps + "Remove-AppxPackage -Package 'Contoso.Notes_1.0.0.0_x64__abc'",
                "60000 " + ps + "Remove-AppxPackage -AllUsers -Package 'Contoso.Notes_1.0.0.0_x64__abc'",
                "90000 " + ps
                    + "Get-AppxProvisionedPackage -Online | Where-Object { $_.DisplayName -like '*Contoso.Notes*' } | "
                      "ForEach-Object {     Remove-AppxProvisionedPackage -Online     -PackageName $_.PackageName "
                      "-AllUsers   }",
                "120000 winget uninstall | --id | Contoso.Notes_abc | --silent | --accept-source-agreements | --force",
                "20000 " + ps + "(Get-AppxPackage -Name 'Contoso.Notes' -AllUsers).PackageFullName" }));
    }

    void quoting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("quoted");
        const auto row
            = [](const char* tag, const QString& text, const QString& quoted) { QTest::newRow(tag) << text << quoted; };
        row("plain", "Contoso.Notes_1.0.0.0_x64__abc", "Contoso.Notes_1.0.0.0_x64__abc");
        row("a quote that would end the string", "x'; Remove-Item C:\\ -Recurse; '",
            "x''; Remove-Item C:\\ -Recurse; ''");
        row("quotes in a row", "''", "''''");
        row("typographic quotes end PowerShell strings too", QStringLiteral("a\u2018b\u2019c\u201Ad\u201Be"),
            QStringLiteral("a\u2018\u2018b\u2019\u2019c\u201A\u201Ad\u201B\u201Be"));
    }

    void quoting()
    {
        QFETCH(QString, text);
        QFETCH(QString, quoted);
        QCOMPARE(WinAppRemover::quoted(text), quoted);

        // And the command a quoted name ends up in.
        RecordedRunner runner;
        WinApp app = notes();
        app.fullName = text;
        WinAppRemover(runner).remove(app);
        QCOMPARE(
            runner.calls().first().arguments.last(), QStringLiteral("Remove-AppxPackage -Package '%1'").arg(quoted));
    }

    void progressForEachAppInOrder()
    {
        RecordedRunner runner;
        WinApp second = notes();
        second.displayName = QStringLiteral("Paint");
        QStringList seen;
        const QList<RemoveResult> results
            = WinAppRemover(runner).removeAll({ notes(), second }, [&](const WinApp& app, int position, int count) {
                  seen << QStringLiteral("%1 %2/%3").arg(app.displayName).arg(position).arg(count);
              });
        QCOMPARE(seen, (QStringList { "Notes 1/2", "Paint 2/2" }));
        QCOMPARE(results.size(), 2);
        QCOMPARE(results[1].displayName, QStringLiteral("Paint"));
    }
};

QTEST_GUILESS_MAIN(tst_WinAppRemover)
#include "tst_winappremover.moc"
