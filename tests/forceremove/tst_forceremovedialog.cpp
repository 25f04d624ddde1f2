#include "forceremovefixture.h"

#include <forceremove/forceremovedialog.h>
#include <forceremove/forceremoverowwidget.h>
#include <forceremove/forceremovescanner.h>

#include <platform/registry.h>

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using platform::Hive;

namespace {

constexpr qint64 MiB = 1024 * 1024;

QPushButton* button(QWidget* parent, const QString& text)
{
    for (QPushButton* b : parent->findChildren<QPushButton*>()) {
        if (b->text() == text)
            return b;
    }
    return nullptr;
}

QLabel* label(QWidget* parent, const char* objectName)
{
    return parent->findChild<QLabel*>(QLatin1String(objectName));
}

// A dialog on the sandbox, shown, with its scan answered by recorded tools.
ForceRemoveDialog* openDialog(const InstalledApp& app, const std::shared_ptr<RecordedTools>& tools)
{
    auto* dialog = new ForceRemoveDialog(app);
    dialog->scanner()->setToolRunner(tools);
    dialog->show();
    return dialog;
}

} // namespace

class tst_ForceRemoveDialog : public QObject {
    Q_OBJECT

private slots:
    void rowsShowKindRiskAndSize_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("highRisk");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<qint64>("size");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("badge");
        QTest::addColumn<QString>("sizeText");
        QTest::addColumn<QString>("sizeColor");
        // An empty size text: no size label.
        const auto row = [](const char* name, int kind, bool risk, bool checked, qint64 size, bool enabled,
                             const char* badge, const char* sizeText, const char* color) {
            QTest::newRow(name) << kind << risk << checked << size << enabled << QString(badge) << QString(sizeText)
                                << QString(color);
        };
        row("install folder, small", 0, false, true, 10 * MiB, true, "Install Dir", "10 MB", "#64748b");
        row("app data just above 10 MiB", 1, false, true, 10 * MiB + 1, true, "App Data", "10 MB", "#f59e0b");
        row("registry, no size", 2, false, true, 0, true, "Registry", "", "");
        row("HKLM start-up: high risk yet checked, so unlocked", 3, true, true, 0, true, "Startup", "", "");
        row("shortcut of one byte", 4, false, true, 1, true, "Startup Lnk", "0 KB", "#64748b");
        row("task: high risk and unchecked, locked", 5, true, false, 0, false, "Scheduled Task", "", "");
        row("service: locked", 6, true, false, 0, false, "Service", "", "");
        row("unchecked but not high risk stays free", 1, false, false, 100 * MiB, true, "App Data", "100 MB",
            "#f59e0b");
        row("above 100 MiB", 0, false, true, 100 * MiB + 1, true, "Install Dir", "100 MB", "#ef4444");
        row("unknown kind: no badge", 42, false, true, 0, true, "", "", "");
    }
    void rowsShowKindRiskAndSize()
    {
        QFETCH(int, kind);
        QFETCH(bool, highRisk);
        QFETCH(bool, checked);
        QFETCH(qint64, size);
        QFETCH(QString, sizeColor);
        const ForceRemoveItem item { static_cast<ForceRemoveKind>(kind), QStringLiteral("x"), QStringLiteral("Label"),
            size, highRisk, checked };
        ForceRemoveRowWidget row(item);
        QCOMPARE(row.checkBox()->isChecked(), checked);
        QTEST(row.checkBox()->isEnabled(), "enabled");
        QLabel* badgeLabel = label(&row, "FRRowBadge");
        QTEST(badgeLabel ? badgeLabel->text() : QString(), "badge");
        QCOMPARE(label(&row, "FRRowRisk") != nullptr, highRisk);
        QLabel* sizeLabel = label(&row, "FRRowSize");
        QTEST(sizeLabel ? sizeLabel->text() : QString(), "sizeText");
        QVERIFY(!sizeLabel || sizeLabel->styleSheet().contains(sizeColor));
    }

    // The dialog's totals use the same text: a removal that freed nothing reads "0 KB", not a dash.
    void sizeTexts_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << "0 KB";
        QTest::newRow("whole KiB below 1 MiB") << qint64(1000 * 1024) << "1000 KB";
        QTest::newRow("1 MiB") << MiB << "1 MB";
        QTest::newRow("1.5 GiB") << 1536 * MiB << "1.5 GB";
    }
    void sizeTexts()
    {
        QFETCH(qint64, bytes);
        QTEST(ForceRemoveRowWidget::formatSize(bytes), "text");
    }

    void longLabelsAreCutWithTheWholeTextInTheTooltip()
    {
        const QString sixty(60, QLatin1Char('a'));
        const QString longer = sixty + QLatin1Char('b');
        ForceRemoveRowWidget whole({ ForceRemoveKind::InstallDir, {}, sixty, 0, false, true });
        ForceRemoveRowWidget cut({ ForceRemoveKind::InstallDir, {}, longer, 0, false, true });
        QCOMPARE(label(&whole, "FRRowLabel")->text(), sixty);
        QCOMPARE(label(&cut, "FRRowLabel")->text(), QString(57, QLatin1Char('a')) + QStringLiteral("..."));
        QCOMPARE(label(&cut, "FRRowLabel")->toolTip(), longer);
    }

    void anEmptyScanOffersNothingToRemove()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        SandboxMachine m;
        auto tools = std::make_shared<RecordedTools>();
        InstalledApp app;
        app.name = QStringLiteral("Nothing Here");
        QPointer<ForceRemoveDialog> dialog = openDialog(app, tools);
        QSignalSpy finished(dialog->scanner(), &ForceRemoveScanner::scanFinished);
        QVERIFY(arrived(finished));
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::ListView);
        QCOMPARE(label(dialog, "FRSummary")->text(), QStringLiteral("Nothing found to remove"));
        QVERIFY(label(dialog, "FREmpty")->isVisible());
        QCOMPARE(label(dialog, "FREmpty")->text(), QStringLiteral("✅  Nothing found to remove."));
        QPushButton* primary = button(dialog, QStringLiteral("🗑  Force Remove Selected"));
        QVERIFY(primary && !primary->isEnabled());
        dialog->onExecuteClicked(); // even called directly, there is nothing to run
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::ListView);
        dialog->close();
        QTRY_VERIFY(dialog.isNull());
    }

    void removesTheCheckedRowsButNeverALockedOne()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        SandboxMachine m;
        m.writeFile(QStringLiteral("C:\\Program Files\\Foo App\\foo.exe"), 2 * MiB);
        m.registry().setString(Hive::CurrentUser, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Foo",
            L"DisplayName", L"Foo App");
        m.addService(QStringLiteral("FooSvc"), QStringLiteral("C:\\Program Files\\Foo App\\svc.exe"));
        auto tools = std::make_shared<RecordedTools>();
        QPointer<ForceRemoveDialog> dialog = openDialog(fooApp(), tools);
        QSignalSpy scanned(dialog->scanner(), &ForceRemoveScanner::scanFinished);
        QVERIFY(arrived(scanned));
        QCOMPARE(dialog->rows().size(), 3);
        QCOMPARE(label(dialog, "FRSummary")->text(),
            QStringLiteral("Found <b>3</b> items&nbsp; ·&nbsp; <b>2 MB</b> reclaimable"));

        // Nothing checked: the button does nothing.
        QTest::mouseClick(button(dialog, QStringLiteral("Deselect All")), Qt::LeftButton);
        QPushButton* primary = button(dialog, QStringLiteral("🗑  Force Remove Selected"));
        QTest::mouseClick(primary, Qt::LeftButton);
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::ListView);

        // Select All leaves the locked service row alone.
        QTest::mouseClick(button(dialog, QStringLiteral("Select All")), Qt::LeftButton);
        QList<bool> states;
        for (ForceRemoveRowWidget* row : dialog->rows())
            states.append(row->isChecked());
        QCOMPARE(states, QList<bool>({ true, true, false }));
        QTest::mouseClick(dialog->rows().at(2)->checkBox(), Qt::LeftButton);
        QVERIFY(!dialog->rows().at(2)->isChecked());

        QSignalSpy executed(dialog->scanner(), &ForceRemoveScanner::executeFinished);
        QTest::mouseClick(primary, Qt::LeftButton); // no question asked
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::RemovingView);
        QVERIFY(!primary->isEnabled());
        QVERIFY(arrived(executed));
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::DoneView);
        QCOMPARE(label(dialog, "FRSummary")->text(),
            QStringLiteral("Force remove complete&nbsp; ·&nbsp; freed <b>2 MB</b>"));
        QCOMPARE(primary->text(), QStringLiteral("Done ✓"));
        QVERIFY(primary->isEnabled());
        for (const QStringList& call : tools->calls())
            QVERIFY2(call.first() != QLatin1String("sc"), "the locked service was removed");
        QVERIFY(!QFileInfo::exists(m.local(QStringLiteral("C:\\Program Files\\Foo App"))));

        QSignalSpy accepted(dialog, &QDialog::accepted);
        QTest::mouseClick(primary, Qt::LeftButton);
        QCOMPARE(accepted.size(), 1);
        QTRY_VERIFY(dialog.isNull());
    }

    void closingDuringTheScanStopsItWithoutReachingTheDialog()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        SandboxMachine m;
        auto tools = std::make_shared<RecordedTools>();
        tools->blockMs = 300;
        QPointer<ForceRemoveDialog> dialog = openDialog(fooApp(), tools);
        QPointer<ForceRemoveScanner> scanner = dialog->scanner();
        QSignalSpy progress(scanner.data(), &ForceRemoveScanner::scanProgress);
        QVERIFY(progress.wait(5000));
        QCOMPARE(dialog->currentView(), ForceRemoveDialog::ScanningView);
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("FRClose")), Qt::LeftButton);
        QTRY_VERIFY(dialog.isNull());
        QVERIFY(scanner.isNull());
        QTest::qWait(1000); // the job meets the cancel flag at its next check and ends quietly
    }

    void aRefusedInstallLocationIsExplained()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        SandboxMachine m;
        auto tools = std::make_shared<RecordedTools>();
        QPointer<ForceRemoveDialog> dialog = openDialog(fooApp(QStringLiteral("C:\\Program Files")), tools);
        QSignalSpy finished(dialog->scanner(), &ForceRemoveScanner::scanFinished);
        QVERIFY(arrived(finished));
        QLabel* note = label(dialog, "FRLocationNote");
        QVERIFY(note->isVisible());
        QVERIFY(note->text().contains(QStringLiteral("C:\\Program Files")));
        dialog->close();
    }
};

QTEST_MAIN(tst_ForceRemoveDialog)
#include "tst_forceremovedialog.moc"
