#include "cleanup/cleanuppage.h"
#include "cleanup/cleanuprowwidget.h"
#include "cleanup/cleanupscanner.h"
#include "cleanupsandbox.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;

class tst_CleanupPage : public QObject {
    Q_OBJECT
    static QString text(QWidget& w, const char* name) { return w.findChild<QLabel*>(QLatin1String(name))->text(); }
    static QPushButton* button(QWidget& w, const char* name) { return w.findChild<QPushButton*>(QLatin1String(name)); }
    static bool progressShown(QWidget& w) { return !w.findChild<QProgressBar*>("CleanupProgress")->isHidden(); }
    static QString sizeOf(QWidget& w, int i) { return text(*w.findChildren<CleanupRowWidget*>()[i], "CleanupRowSize"); }
private slots:
    void rowSizeAndColours_data();
    void rowSizeAndColours();
    void headerTotal_data();
    void headerTotal();
    void selectAllToggles();
    void cleanWithNothingSelectedDoesNothing();
    void cleanShowsItsResultAndRescans();
};

void tst_CleanupPage::rowSizeAndColours_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("colours"); // of the text, then of the bar
    QTest::addColumn<int>("bar");

    const QString blue = "#2563eb/#3b82f6", amber = "#d97706/#f59e0b", red = "#dc2626/#ef4444";
    QTest::newRow("negative") << qint64(-5000) << "0 KB" << blue << 0;
    QTest::newRow("just below 1 MiB stays KB") << MiB - 1 << "1024 KB" << blue << 0;
    QTest::newRow("1 MiB") << MiB << "1 MB" << blue << 0;
    QTest::newRow("exactly 200 MiB is blue") << 200 * MiB << "200 MB" << blue << 19;
    QTest::newRow("one byte more is amber") << 200 * MiB + 1 << "200 MB" << amber << 19;
    QTest::newRow("MB without decimals") << qint64(300.4 * MiB) << "300 MB" << amber << 29;
    QTest::newRow("exactly 800 MiB is amber") << 800 * MiB << "800 MB" << amber << 78;
    QTest::newRow("one byte more is red") << 800 * MiB + 1 << "800 MB" << red << 78;
    QTest::newRow("1 GiB has one decimal") << GiB << "1.0 GB" << red << 100;
    QTest::newRow("past 2 GiB the bar stays full") << GiB * 5 / 2 << "2.5 GB" << red << 100;
}

void tst_CleanupPage::rowSizeAndColours()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, colours);
    CleanupRowWidget row({ "prefetch", "Prefetch", "⚡", { "C:/Windows/Prefetch" }, 0, true });
    row.setSize(bytes);
    auto* label = row.findChild<QLabel*>("CleanupRowSize");
    QTEST(label->text(), "text");
    QVERIFY2(
        label->styleSheet().contains("color:" + colours.section('/', 0, 0) + ';'), qPrintable(label->styleSheet()));
    auto* bar = row.findChild<QProgressBar*>("CleanupRowBar");
    QVERIFY2(bar->styleSheet().contains("::chunk { background:" + colours.section('/', 1) + ';'),
        qPrintable(bar->styleSheet()));
    QTEST(bar->value(), "bar");
}

void tst_CleanupPage::headerTotal_data()
{
    QTest::addColumn<qint64>("bytes");
    // The circle, the total in the status line, and what the selected half would free.
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("nothing found") << qint64(0) << QStringList { "0M", "0 KB", "0 KB" };
    QTest::newRow("one byte under 1 GiB stays in M") << GiB - 1 << QStringList { "1024M", "1024 MB", "512 MB" };
    QTest::newRow("exactly 1 GiB switches to G") << GiB << QStringList { "1.0G", "1.0 GB", "512 MB" };
}

void tst_CleanupPage::headerTotal()
{
    QFETCH(qint64, bytes);
    QFETCH(QStringList, texts);
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), bytes / 2, true));
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows.old/b.bin"), bytes - bytes / 2, true));
    CleanupPage page(nullptr);
    QCOMPARE(text(page, "CleanupTotalLabel"), QStringLiteral("…"));
    QSignalSpy finished(page.scanner(), &CleanupScanner::scanFinished);
    QTest::qWait(100); // the page starts its own first scan, but not while the window is still coming up
    QCOMPARE(finished.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QTRY_COMPARE(text(page, "CleanupTotalLabel"), texts.at(0));
    QCOMPARE(text(page, "CleanupStatusDetail"), "发现 11 类可清理文件，共 " + texts.at(1));
    QCOMPARE(text(page, "CleanupSummaryLine"), "已选 8 类  ·  预计释放 " + texts.at(2));
}

void tst_CleanupPage::selectAllToggles()
{
    CleanupSandbox sandbox;
    CleanupPage page(nullptr);
    QPushButton* selectAll = button(page, "CleanupSelectAllButton");
    const QList<CleanupRowWidget*> rows = page.findChildren<CleanupRowWidget*>();
    const auto selected
        = [&] { return int(std::count_if(rows.begin(), rows.end(), [](auto* r) { return r->isSelected(); })); };
    int signalled = 0;
    for (CleanupRowWidget* row : rows)
        connect(row, &CleanupRowWidget::selectionChanged, this, [&] { ++signalled; });
    QCOMPARE(selected(), 8);

    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 11);
    QCOMPARE(signalled, 3); // only the rows that changed
    QCOMPARE(selectAll->text(), QStringLiteral("☐ 取消全选"));
    QVERIFY(text(page, "CleanupBottomSummary").startsWith(QStringLiteral("已选 <b>11</b> 类")));
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 0);
    QCOMPARE(selectAll->text(), QStringLiteral("☑ 全选"));
    // One unselected row is enough for the button to select all again.
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QTest::mouseClick(rows.at(4), Qt::LeftButton);
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QCOMPARE(selected(), 11);
}

void tst_CleanupPage::cleanWithNothingSelectedDoesNothing()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), 100));
    CleanupPage page(nullptr);
    QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
    for (CleanupRowWidget* row : page.findChildren<CleanupRowWidget*>())
        row->setSelected(false);
    QTRY_VERIFY_WITH_TIMEOUT(button(page, "CleanupCleanButton")->isEnabled(), 10000);
    QTest::mouseClick(button(page, "CleanupCleanButton"), Qt::LeftButton);
    QVERIFY(!progressShown(page));
    QTest::qWait(300);
    QCOMPARE(cleaned.count(), 0);
    QVERIFY(QFileInfo::exists(sandbox.machine("C:/Windows/Prefetch/a.pf")));
}

void tst_CleanupPage::cleanShowsItsResultAndRescans()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/Windows/Prefetch/a.pf"), 3 * MiB));
    QVERIFY(CleanupSandbox::write(sandbox.machine("C:/$Recycle.Bin/S-1/keep.txt"), 4096)); // not selected
    CleanupPage page(nullptr);
    QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, 10000);
    QPushButton* clean = button(page, "CleanupCleanButton");
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(sizeOf(page, 6), QStringLiteral("3 MB"));

    QTest::mouseClick(clean, Qt::LeftButton);
    // Nothing can start another scan or clean while this one runs.
    QVERIFY(!clean->isEnabled());
    QVERIFY(!button(page, "CleanupRescanButton")->isEnabled());
    QVERIFY(progressShown(page));
    QTRY_COMPARE_WITH_TIMEOUT(text(page, "CleanupSummaryLine"), QStringLiteral("✓ 清理完成，释放 <b>3 MB</b>"), 10000);
    QVERIFY(!progressShown(page));
    // The rescan waits long enough for the freed amount to be read.
    QTest::qWait(300);
    QCOMPARE(scanned.count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 2, 10000);
    QTRY_VERIFY(clean->isEnabled());
    QCOMPARE(sizeOf(page, 6), QStringLiteral("0 KB"));
    QCOMPARE(sizeOf(page, 9), QStringLiteral("4 KB"));
}

QTEST_MAIN(tst_CleanupPage)
#include "tst_cleanuppage.moc"
