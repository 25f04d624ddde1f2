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

#include <algorithm>
#include <atomic>
#include <functional>

namespace {

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;
constexpr int ScanWaitMs = 10000;

QString text(QWidget& page, const char* name)
{
    return page.findChild<QLabel*>(QLatin1String(name))->text();
}
QPushButton* button(QWidget& page, const char* name)
{
    return page.findChild<QPushButton*>(QLatin1String(name));
}
bool progressShown(QWidget& page)
{
    return !page.findChild<QProgressBar*>(QStringLiteral("CleanupProgress"))->isHidden();
}
QString rowSize(QWidget& page, int position)
{
    return page.findChildren<CleanupRowWidget*>().at(position)->findChild<QLabel*>("CleanupRowSize")->text();
}

} // namespace

class tst_CleanupPage : public QObject {
    Q_OBJECT
private slots:
    void headerTotal_data();
    void headerTotal();
    void selectAllToggles();
    void cleanWithNothingSelectedDoesNothing();
    void cleanThenRescan();
};

void tst_CleanupPage::headerTotal_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("circle");
    QTest::addColumn<QString>("total");
    QTest::addColumn<QString>("selected"); // half of the bytes sit in a category that starts selected
    QTest::newRow("nothing found") << qint64(0) << "0M"
                                   << "0 KB"
                                   << "0 KB";
    QTest::newRow("one byte under 1 GiB stays in M") << GiB - 1 << "1024M"
                                                     << "1024 MB"
                                                     << "512 MB";
    QTest::newRow("exactly 1 GiB switches to G") << GiB << "1.0G"
                                                 << "1.0 GB"
                                                 << "512 MB";
}

void tst_CleanupPage::headerTotal()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, circle);
    QFETCH(QString, total);
    QFETCH(QString, selected);

    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), bytes / 2, true));
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows.old/b.bin"), bytes - bytes / 2, true));
    CleanupPage page(nullptr);
    QCOMPARE(text(page, "CleanupTotalLabel"), QStringLiteral("…"));
    QSignalSpy finished(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, ScanWaitMs); // the page starts its own first scan
    QTRY_COMPARE(text(page, "CleanupTotalLabel"), circle);
    QCOMPARE(text(page, "CleanupStatusDetail"), QStringLiteral("发现 11 类可清理文件，共 ") + total);
    QCOMPARE(text(page, "CleanupSummaryLine"), QStringLiteral("已选 8 类  ·  预计释放 ") + selected);
}

void tst_CleanupPage::selectAllToggles()
{
    CleanupSandbox sandbox;
    CleanupPage page(nullptr);
    QPushButton* selectAll = button(page, "CleanupSelectAllButton");
    const QList<CleanupRowWidget*> rows = page.findChildren<CleanupRowWidget*>();
    const auto selected
        = [&] { return std::count_if(rows.begin(), rows.end(), std::mem_fn(&CleanupRowWidget::isSelected)); };
    int signalled = 0;
    for (CleanupRowWidget* row : rows)
        connect(row, &CleanupRowWidget::selectionChanged, this, [&] { ++signalled; });
    QCOMPARE(rows.size(), 11);
    QCOMPARE(selected(), 8);

    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 11);
    QCOMPARE(signalled, 3); // only the rows that changed
    QCOMPARE(selectAll->text(), QStringLiteral("☐ 取消全选"));
    QVERIFY(text(page, "CleanupBottomSummary").startsWith(QStringLiteral("已选 <b>11</b> 类")));

    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 0);
    QCOMPARE(selectAll->text(), QStringLiteral("☑ 全选"));
    QVERIFY(text(page, "CleanupBottomSummary").startsWith(QStringLiteral("已选 <b>0</b> 类")));

    // One unselected row is enough for the button to select all again.
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QTest::mouseClick(rows.at(4), Qt::LeftButton);
    QCOMPARE(selected(), 10);
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 11);
}

void tst_CleanupPage::cleanWithNothingSelectedDoesNothing()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), 100));
    CleanupPage page(nullptr);
    QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
    QPushButton* clean = button(page, "CleanupCleanButton");
    QTRY_VERIFY_WITH_TIMEOUT(clean->isEnabled(), ScanWaitMs);
    for (CleanupRowWidget* row : page.findChildren<CleanupRowWidget*>())
        row->setSelected(false);

    QTest::mouseClick(clean, Qt::LeftButton);
    QVERIFY(clean->isEnabled());
    QVERIFY(!progressShown(page));
    QTest::qWait(300);
    QCOMPARE(cleaned.count(), 0);
    QVERIFY(QFileInfo::exists(sandbox.machine("C:/Windows/Prefetch/a.pf")));
}

// Single-shot timers never fire early, so only lower bounds are checked: a scan that starts at once
// would read the disk while the window is still coming up, or wipe the freed amount unread.
void tst_CleanupPage::cleanThenRescan()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), 3 * MiB));
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/$Recycle.Bin/S-1/keep.txt"), 4096)); // not selected
    QElapsedTimer clock;
    clock.start();
    CleanupPage page(nullptr);
    std::atomic<qint64> scanStartedAt { -1 }, cleanedAt { -1 };
    // Direct connections: the times are taken on the worker thread as the signals are emitted.
    connect(
        page.scanner(), &CleanupScanner::scanProgress, this,
        [&](int percent) {
            if (percent == 9)
                scanStartedAt = clock.elapsed();
        },
        Qt::DirectConnection);
    connect(
        page.scanner(), &CleanupScanner::cleanFinished, this, [&] { cleanedAt = clock.elapsed(); },
        Qt::DirectConnection);
    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, ScanWaitMs);
    QVERIFY2(scanStartedAt >= 200, qPrintable(QString::number(scanStartedAt)));
    QPushButton* clean = button(page, "CleanupCleanButton");
    QPushButton* rescan = button(page, "CleanupRescanButton");
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(rowSize(page, 6), QStringLiteral("3 MB"));

    QTest::mouseClick(clean, Qt::LeftButton);
    // Nothing can start another scan or clean while this one runs.
    QVERIFY(!clean->isEnabled());
    QVERIFY(!rescan->isEnabled());
    QVERIFY(progressShown(page));
    QTRY_COMPARE_WITH_TIMEOUT(
        text(page, "CleanupSummaryLine"), QStringLiteral("✓ 清理完成，释放 <b>3 MB</b>"), ScanWaitMs);
    QVERIFY(!progressShown(page));
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 2, ScanWaitMs);
    QVERIFY2(scanStartedAt - cleanedAt >= 500, qPrintable(QString::number(scanStartedAt - cleanedAt)));
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(rowSize(page, 6), QStringLiteral("0 KB"));
    QCOMPARE(rowSize(page, 9), QStringLiteral("4 KB"));
    QCOMPARE(text(page, "CleanupTotalLabel"), QStringLiteral("0M"));

    // Handled before the scan's signals can arrive, so the "scanning" state is observable.
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Logs/x.log"), 3 * MiB));
    QTest::mouseClick(rescan, Qt::LeftButton);
    QCOMPARE(text(page, "CleanupStatusTitle"), QStringLiteral("正在扫描…"));
    QCOMPARE(text(page, "CleanupSummaryLine"), QStringLiteral("正在扫描…"));
    QCOMPARE(rowSize(page, 9), QStringLiteral("0 KB"));
    QVERIFY(!rescan->isEnabled());
    QVERIFY(!clean->isEnabled());
    QTRY_COMPARE_WITH_TIMEOUT(text(page, "CleanupStatusTitle"), QStringLiteral("扫描完成"), ScanWaitMs);
    QCOMPARE(rowSize(page, 5), QStringLiteral("3 MB"));
    QVERIFY(rescan->isEnabled());
}

QTEST_MAIN(tst_CleanupPage)
#include "tst_cleanuppage.moc"
