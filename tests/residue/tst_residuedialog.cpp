#include <residue/residuedialog.h>
#include <residue/residuerowwidget.h>
#include <residue/residuescanner.h>

#include <platform/platform.h>
#include <support/currentmachine.h>
#include <support/labeltext.h>

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;

// Sparse: the scan reads sizes, never contents.
void blob(const QString& path, qint64 bytes)
{
    QVERIFY(testfiles::writeSized(path, bytes, true));
}

} // namespace

class tst_ResidueDialog : public QObject {
    Q_OBJECT
    std::unique_ptr<CurrentMachine> m_machine;

    QString drive() const { return QFileInfo(m_machine->map("C:\\Windows")).path(); }
    QString roaming() const { return drive() + "/Users/User/AppData/Roaming"; }

    static void showAndScan(ResidueDialog& dialog)
    {
        QSignalSpy finished(dialog.scanner(), &ResidueScanner::scanFinished);
        dialog.show();
        QVERIFY(arrived(finished, 5000));
    }

private slots:
    void init()
    {
        m_machine.reset();
        m_machine = std::make_unique<CurrentMachine>();
        QVERIFY(QDir().mkpath(drive()));
    }
    void cleanupTestCase() { m_machine.reset(); }

    void texts_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("colour");
        const auto row = [](const char* what, qint64 bytes, const char* size, const char* colour) {
            QTest::newRow(what) << bytes << size << colour;
        };
        row("bytes", 1023, "1023 B", "#64748b");
        row("one KiB", KiB, "1 KB", "#64748b");
        row("KiB rounded", 1536, "2 KB", "#64748b");
        row("just below a MiB", MiB - 1, "1024 KB", "#64748b");
        row("10 MiB stays grey", 10 * MiB, "10 MB", "#64748b");
        row("above 10 MiB is amber", 10 * MiB + 1, "10 MB", "#f59e0b");
        row("100 MiB stays amber", 100 * MiB, "100 MB", "#f59e0b");
        row("above 100 MiB is red", 100 * MiB + 1, "100 MB", "#ef4444");
        row("GiB with a decimal", GiB + GiB / 2, "1.5 GB", "#ef4444");
    }
    void texts()
    {
        QFETCH(qint64, bytes);
        QTEST(ResidueDialog::formatSize(bytes), "size");
        QTEST(ResidueRowWidget::sizeColor(bytes), "colour");
    }

    void shortenPath()
    {
        const QString digits = QString("0123456789").repeated(6);
        QCOMPARE(ResidueDialog::shortenPath(digits.left(55)), digits.left(55));
        QCOMPARE(ResidueDialog::shortenPath(digits.left(56)), "..." + digits.left(56).right(52));
    }

    void emptyResult()
    {
        ResidueDialog dialog(QList<UninstalledApp> {}, nullptr);
        QCOMPARE(labelText(dialog, "ResidueStatus"), QString("Initializing..."));
        showAndScan(dialog);
        QTRY_COMPARE(labelText(dialog, "ResidueSummary"), QString("No residue files found"));
        QVERIFY(dialog.findChild<QLabel*>("ResidueEmpty")->isVisible());
        QVERIFY(!dialog.findChild<QPushButton*>("ResidueCleanButton")->isEnabled());
    }

    void cleanFlow()
    {
        NORVALE_SANDBOX_ONLY("cleans leftovers it laid out");
        blob(roaming() + "/Spotify/a", 6 * MiB);
        blob(roaming() + "/Slack/a", 1 * MiB);
        ResidueDialog dialog(QList<InstalledApp> {}, nullptr);
        showAndScan(dialog);
        QTRY_COMPARE(dialog.rows().size(), 2);
        QCOMPARE(labelText(dialog, "ResidueSummary"), QString("Found <b>2</b> items  ·  <b>7 MB</b> reclaimable"));
        QVERIFY(dialog.rows().at(0)->isChecked());
        QVERIFY(!dialog.rows().at(1)->isChecked());
        QCOMPARE(labelText(*dialog.rows().at(1), "ResidueSafetyBadge"), QString("Safe"));

        auto* clean = dialog.findChild<QPushButton*>("ResidueCleanButton");
        auto* deselect = dialog.findChildren<QPushButton*>("BtnGhost").at(1);
        QCOMPARE(deselect->text(), QString("Deselect All"));
        QTest::mouseClick(deselect, Qt::LeftButton);
        QTest::mouseClick(clean, Qt::LeftButton); // nothing ticked: nothing happens
        QVERIFY(!dialog.scanner()->isRunning());
        QVERIFY(clean->isEnabled());

        QSignalSpy cleaned(dialog.scanner(), &ResidueScanner::cleanFinished);
        dialog.rows().at(0)->setChecked(true);
        QTest::mouseClick(clean, Qt::LeftButton);
        QVERIFY(arrived(cleaned, 5000));
        QTRY_COMPARE(labelText(dialog, "ResidueStatus"), QString("✅  Cleaned — freed 6 MB"));
        QVERIFY(!QFileInfo::exists(roaming() + "/Spotify"));
        QVERIFY(QFileInfo::exists(roaming() + "/Slack/a"));
        QCOMPARE(clean->text(), QString("Done ✓"));
        QTest::mouseClick(clean, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void installFolderNeedsConfirmation()
    {
        NORVALE_SANDBOX_ONLY("lays out the only leftover the scan may find");
        blob(drive() + "/Program Files/Paint/a.dll", 2 * MiB);
        UninstalledApp app;
        app.name = "Paint";
        app.installLocation = "C:\\Program Files\\Paint";
        ResidueDialog dialog(QList<UninstalledApp> { app }, nullptr);
        showAndScan(dialog);
        QTRY_COMPARE(dialog.rows().size(), 1);
        const ResidueRowWidget* row = dialog.rows().at(0);
        QVERIFY(!row->isChecked());
        QCOMPARE(labelText(*row, "ResidueSafetyBadge"), QString("Confirm"));
        QCOMPARE(labelText(*row, "ResidueCategoryBadge"), QString("Orphaned App Data"));
    }

    // Closing or destroying the dialog mid-scan stops the worker; nothing reaches the dialog later.
    void closingDuringAScan()
    {
        for (int i = 0; i < 300; ++i)
            blob(roaming() + QString("/Orphan%1/a").arg(i), 600 * KiB);
        for (bool destroy : { false, true }) {
            QPointer<ResidueDialog> dialog = new ResidueDialog(QList<InstalledApp> {}, nullptr);
            QSignalSpy progress(dialog->scanner(), &ResidueScanner::scanProgress);
            QSignalSpy finished(dialog->scanner(), &ResidueScanner::scanFinished);
            dialog->show();
            QVERIFY(arrived(progress, 5000));
            const bool finishedBeforeClose = !finished.isEmpty();
            if (destroy) {
                delete dialog;
                QTest::qWait(100);
                continue;
            }
            dialog->reject();
            QTRY_VERIFY_WITH_TIMEOUT(!dialog->scanner()->isRunning(), 5000);
            QTest::qWait(50);
            QVERIFY(!dialog->isVisible());
            if (!finishedBeforeClose)
                QVERIFY(dialog->rows().isEmpty());
            delete dialog;
        }
    }
};

QTEST_MAIN(tst_ResidueDialog)
#include "tst_residuedialog.moc"
