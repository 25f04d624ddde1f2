#include "cleanup/cleanuppage.h"
#include "cleanup/cleanuprowwidget.h"
#include "cleanup/cleanupscanner.h"
#include "cleanupsandbox.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <atomic>

namespace {

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;
constexpr int ScanWaitMs = 10000;

template <typename T> T* child(QWidget& page, const char* name)
{
    return page.findChild<T*>(QLatin1String(name));
}

QList<CleanupRowWidget*> rowsOf(QWidget& page)
{
    return page.findChildren<CleanupRowWidget*>();
}

} // namespace

class tst_CleanupPage : public QObject {
    Q_OBJECT
private slots:
    void headerTotal_data();
    void headerTotal();
    void selectAllToggles();
    void cleanWithNothingSelectedDoesNothing();
    void cleanEmptiesSelectedAndRescans();
    void rescanShowsScanningUntilItEnds();
    void scansWaitTheirDelays();
};

void tst_CleanupPage::headerTotal_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("circle");
    QTest::addColumn<QString>("detail");
    QTest::addColumn<QString>("selectedSum"); // half of the bytes sit in a selected category
    QTest::newRow("nothing found") << qint64(0) << "0M"
                                   << "发现 11 类可清理文件，共 0 KB"
                                   << "0 KB";
    QTest::newRow("one byte under 1 GiB stays in M") << GiB - 1 << "1024M"
                                                     << "发现 11 类可清理文件，共 1024 MB"
                                                     << "512 MB";
    QTest::newRow("exactly 1 GiB switches to G") << GiB << "1.0G"
                                                 << "发现 11 类可清理文件，共 1.0 GB"
                                                 << "512 MB";
    QTest::newRow("300 MiB") << 300 * MiB << "300M"
                             << "发现 11 类可清理文件，共 300 MB"
                             << "150 MB";
}

void tst_CleanupPage::headerTotal()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, circle);
    QFETCH(QString, detail);
    QFETCH(QString, selectedSum);

    CleanupSandbox sandbox;
    if (bytes > 0) {
        // Split over two categories, one of them not selected: the total counts every category.
        QVERIFY(CleanupSandbox::writeSparse(sandbox.machine("C:/Windows/Prefetch/a.pf"), bytes / 2));
        QVERIFY(CleanupSandbox::writeSparse(sandbox.machine("C:/Windows.old/b.bin"), bytes - bytes / 2));
    }
    CleanupPage page(nullptr);
    auto* total = child<QLabel>(page, "CleanupTotalLabel");
    QCOMPARE(total->text(), QStringLiteral("…"));
    QCOMPARE(child<QLabel>(page, "CleanupStatusTitle")->text(), QStringLiteral("正在扫描…"));
    QSignalSpy finished(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, ScanWaitMs); // the page starts its own first scan
    QTRY_COMPARE(total->text(), circle);
    QCOMPARE(child<QLabel>(page, "CleanupStatusDetail")->text(), detail);
    QCOMPARE(child<QLabel>(page, "CleanupStatusTitle")->text(), QStringLiteral("扫描完成"));
    // Eight categories start selected; only what they hold is expected to be released.
    QCOMPARE(child<QLabel>(page, "CleanupSummaryLine")->text(),
        QStringLiteral("已选 8 类  ·  预计释放 %1").arg(selectedSum));
    QCOMPARE(child<QLabel>(page, "CleanupBottomSummary")->text(),
        QStringLiteral("已选 <b>8</b> 类  ·  预计释放 <b>%1</b>").arg(selectedSum));
}

void tst_CleanupPage::selectAllToggles()
{
    CleanupSandbox sandbox;
    CleanupPage page(nullptr);
    auto* selectAll = child<QPushButton>(page, "CleanupSelectAllButton");
    auto* summary = child<QLabel>(page, "CleanupBottomSummary");
    const QList<CleanupRowWidget*> rows = rowsOf(page);
    QCOMPARE(rows.size(), 11);
    const auto selectedCount
        = [&] { return std::count_if(rows.begin(), rows.end(), [](CleanupRowWidget* r) { return r->isSelected(); }); };
    QCOMPARE(selectedCount(), 8);

    // Some unselected: all become selected, and only the three that change signal it.
    QList<QSignalSpy*> spies;
    for (CleanupRowWidget* row : rows)
        spies << new QSignalSpy(row, &CleanupRowWidget::selectionChanged);
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selectedCount(), 11);
    QCOMPARE(selectAll->text(), QStringLiteral("☐ 取消全选"));
    int signalled = 0;
    for (QSignalSpy* spy : spies)
        signalled += int(spy->count());
    QCOMPARE(signalled, 3);
    qDeleteAll(spies);
    QVERIFY2(summary->text().startsWith(QStringLiteral("已选 <b>11</b> 类")), qPrintable(summary->text()));

    // All selected: all become unselected.
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selectedCount(), 0);
    QCOMPARE(selectAll->text(), QStringLiteral("☑ 全选"));
    QVERIFY(summary->text().startsWith(QStringLiteral("已选 <b>0</b> 类")));

    // One unselected is enough to select all again.
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QTest::mouseClick(rows.at(4), Qt::LeftButton);
    QCOMPARE(selectedCount(), 10);
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selectedCount(), 11);
}

void tst_CleanupPage::cleanWithNothingSelectedDoesNothing()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Prefetch/a.pf"), 100));
    CleanupPage page(nullptr);
    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, ScanWaitMs);
    for (CleanupRowWidget* row : rowsOf(page))
        row->setSelected(false);

    QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
    auto* clean = child<QPushButton>(page, "CleanupCleanButton");
    QTRY_VERIFY(clean->isEnabled());
    QTest::mouseClick(clean, Qt::LeftButton);
    QVERIFY(clean->isEnabled());
    QVERIFY(child<QProgressBar>(page, "CleanupProgress")->isHidden());
    QTest::qWait(300);
    QCOMPARE(cleaned.count(), 0);
    QVERIFY(QFileInfo::exists(sandbox.machine("C:/Windows/Prefetch/a.pf")));
}

void tst_CleanupPage::cleanEmptiesSelectedAndRescans()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Prefetch/a.pf"), 3 * MiB));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/$Recycle.Bin/S-1/keep.txt"), 1000)); // not selected
    CleanupPage page(nullptr);
    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, ScanWaitMs);
    auto* clean = child<QPushButton>(page, "CleanupCleanButton");
    auto* rescan = child<QPushButton>(page, "CleanupRescanButton");
    auto* line = child<QLabel>(page, "CleanupSummaryLine");
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(rowsOf(page).at(6)->findChild<QLabel*>("CleanupRowSize")->text(), QStringLiteral("3 MB"));

    QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
    QTest::mouseClick(clean, Qt::LeftButton);
    // Nothing can start another scan or clean while this one runs.
    QVERIFY(!clean->isEnabled());
    QVERIFY(!rescan->isEnabled());
    QVERIFY(!child<QProgressBar>(page, "CleanupProgress")->isHidden());
    QTRY_COMPARE_WITH_TIMEOUT(cleaned.count(), 1, ScanWaitMs);
    QTRY_COMPARE(line->text(), QStringLiteral("✓ 清理完成，释放 <b>3 MB</b>"));
    QVERIFY(child<QProgressBar>(page, "CleanupProgress")->isHidden());

    // The follow-up scan shows what is left.
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 2, ScanWaitMs);
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(rowsOf(page).at(6)->findChild<QLabel*>("CleanupRowSize")->text(), QStringLiteral("0 KB"));
    QVERIFY(QFileInfo::exists(sandbox.machine("C:/$Recycle.Bin/S-1/keep.txt")));
    QCOMPARE(child<QLabel>(page, "CleanupTotalLabel")->text(), QStringLiteral("0M"));
}

void tst_CleanupPage::rescanShowsScanningUntilItEnds()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Prefetch/a.pf"), 2 * MiB));
    CleanupPage page(nullptr);
    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, ScanWaitMs);
    auto* rescan = child<QPushButton>(page, "CleanupRescanButton");
    QTRY_VERIFY(rescan->isEnabled());
    QVERIFY(QFile::remove(sandbox.machine("C:/Windows/Prefetch/a.pf")));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Logs/x.log"), 3 * MiB));

    // Handled before the scan's signals can arrive, so the "scanning" state is observable.
    QTest::mouseClick(rescan, Qt::LeftButton);
    QCOMPARE(child<QLabel>(page, "CleanupStatusTitle")->text(), QStringLiteral("正在扫描…"));
    QCOMPARE(child<QLabel>(page, "CleanupSummaryLine")->text(), QStringLiteral("正在扫描…"));
    for (CleanupRowWidget* row : rowsOf(page))
        QCOMPARE(row->findChild<QLabel*>("CleanupRowSize")->text(), QStringLiteral("0 KB"));
    QVERIFY(!rescan->isEnabled());
    QVERIFY(!child<QPushButton>(page, "CleanupCleanButton")->isEnabled());

    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 2, ScanWaitMs);
    QTRY_COMPARE(child<QLabel>(page, "CleanupStatusTitle")->text(), QStringLiteral("扫描完成"));
    QCOMPARE(rowsOf(page).at(5)->findChild<QLabel*>("CleanupRowSize")->text(), QStringLiteral("3 MB"));
    QCOMPARE(rowsOf(page).at(6)->findChild<QLabel*>("CleanupRowSize")->text(), QStringLiteral("0 KB"));
    QVERIFY(rescan->isEnabled());
}

// Single-shot timers never fire early, so only the lower bounds are checked: a scan that starts at
// once would read the disk while the window is still coming up, or wipe the freed amount unread.
void tst_CleanupPage::scansWaitTheirDelays()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Prefetch/a.pf"), 100));
    QElapsedTimer clock;
    std::atomic<qint64> scanStepAt { -1 }; // the first category of the latest scan measured
    std::atomic<qint64> cleanedAt { -1 };
    clock.start();
    CleanupPage page(nullptr);
    // Direct connections: the times are taken on the worker thread as the signals are emitted.
    const auto direct = Qt::DirectConnection;
    connect(
        page.scanner(), &CleanupScanner::scanProgress, page.scanner(),
        [&](int percent) {
            if (percent == 9)
                scanStepAt = clock.elapsed();
        },
        direct);
    connect(
        page.scanner(), &CleanupScanner::cleanFinished, page.scanner(), [&] { cleanedAt = clock.elapsed(); }, direct);

    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, ScanWaitMs);
    QVERIFY2(scanStepAt >= 200, qPrintable(QString::number(scanStepAt)));

    auto* clean = child<QPushButton>(page, "CleanupCleanButton");
    QTRY_VERIFY(clean->isEnabled());
    QTest::mouseClick(clean, Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 2, ScanWaitMs);
    QVERIFY(cleanedAt >= 0);
    QVERIFY2(scanStepAt - cleanedAt >= 500, qPrintable(QString::number(scanStepAt - cleanedAt)));
}

QTEST_MAIN(tst_CleanupPage)
#include "tst_cleanuppage.moc"
