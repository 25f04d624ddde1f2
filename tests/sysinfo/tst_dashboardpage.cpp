#include "fakeplatform.h"

#include "platform/registry.h"
#include "sysinfo/dashboardpage.h"
#include "sysinfo/systeminfoscanner.h"
#include "widgets/circlebadge.h"
#include "widgets/ringgauge.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using platform::Hive;

namespace {

// The hero card's texts, then each gauge's value and detail.
QString shown(const QWidget& page)
{
    QStringList texts;
    for (const char* name : { "DashboardOsLabel", "DashboardBuildLabel", "DashboardUptimeLabel" })
        texts << page.findChild<QLabel*>(name)->text();
    texts << page.findChild<CircleBadge*>("DashboardUpdatesBadge")->text();
    for (const char* name : { "DashboardCpuGauge", "DashboardMemoryGauge", "DashboardDiskGauge" })
        texts << QStringLiteral("%1 %2")
                     .arg(page.findChild<RingGauge*>(name)->value())
                     .arg(page.findChild<RingGauge*>(name)->detail());
    return texts.join(" | ");
}

} // namespace

class tst_DashboardPage : public QObject {
    Q_OBJECT

private slots:
    void texts_data()
    {
        QTest::addColumn<bool>("versionKey");
        QTest::addColumn<quint64>("uptimeMs");
        QTest::addColumn<SystemMetrics>("metrics");
        QTest::addColumn<QString>("expected");
        const QString v = QStringLiteral("Windows 11 Pro | Build 22631.4460  23H2 | ");
        QTest::newRow("59 minutes; memory figures truncate (9.9 of 15.9 GiB)")
            << true << quint64(3'599'999) << SystemMetrics { 12, 62, 10137, 16281, 74, 356, 476, 120 }
            << v + "已运行 0 小时 59 分钟 | 1 | 12 8 核 | 62 9/15 GB | 74 356/476 GB";
        QTest::newRow("just under a day; loads above 100 fill the rings")
            << true << quint64(86'399'999) << SystemMetrics { 140, 4'000'000'000u, 2048, 4096, 101, 1, 1 }
            << v + "已运行 23 小时 59 分钟 | 1 | 100 8 核 | 100 2/4 GB | 100 1/1 GB";
        QTest::newRow("25 hours; negative loads empty the rings")
            << true << quint64(91'800'000) << SystemMetrics { -3, 0, 0, 0, -1 }
            << v + "已运行 1 天 1 小时 | 1 | 0 8 核 | 0 0/0 GB | 0 0/0 GB";
        QTest::newRow("no version key") << false << quint64(10'800'000) << SystemMetrics {}
                                        << "Windows |  | 已运行 3 小时 0 分钟 | 1 | 0 8 核 | 0 0/0 GB | 0 0/0 GB";
    }

    void texts()
    {
        QFETCH(bool, versionKey);
        QFETCH(quint64, uptimeMs);
        QFETCH(SystemMetrics, metrics);
        if (!versionKey)
            NORVALE_SANDBOX_ONLY("needs a Windows without its version values");
        FakePlatform pf;
        pf.ticks = uptimeMs;
        platform::Registry& reg = pf.registry();
        const wchar_t* key = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
        if (versionKey) {
            reg.setString(Hive::LocalMachine, key, L"ProductName", L"Windows 10 Pro");
            reg.setString(Hive::LocalMachine, key, L"CurrentBuildNumber", L"22631");
            reg.setString(Hive::LocalMachine, key, L"DisplayVersion", L"23H2");
            reg.setDword(Hive::LocalMachine, key, L"UBR", 4460);
        }
        reg.createKey(Hive::LocalMachine,
            L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based "
            L"Servicing\\Packages\\Package_for_KB5031356");
        DashboardPage page(nullptr);
        QCOMPARE(shown(page), QStringLiteral("正在读取系统信息… |  |  | … | 0  | 0  | 0 "));
        // The spy connects after the page, so once the spy has the signal the page's queued call is
        // already posted. The pool may finish before anyone waits, so poll rather than wait for a new one.
        QSignalSpy factsShown(page.findChild<SystemInfoScanner*>(), &SystemInfoScanner::staticInfoReady);
        page.start();
        QTRY_VERIFY_WITH_TIMEOUT(factsShown.count() > 0, 5000);
        QCoreApplication::processEvents();
        page.onMetricsUpdated(metrics);
        QTEST(shown(page), "expected");
    }

    void quickActionsNavigate()
    {
        DashboardPage page(nullptr);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const auto tiles = page.findChild<QWidget*>("QuickActionsCard")
                               ->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
        const QStringList titles { "🧹  磁盘清理", "📦  软件卸载", "🪟  Windows App", "🧩  浏览器扩展" };
        QCOMPARE(tiles.size(), titles.size());
        QSignalSpy navigated(&page, &DashboardPage::navigateTo);
        for (int i = 0; i < tiles.size(); ++i) {
            QLabel* title = tiles[i]->findChild<QLabel*>();
            QCOMPARE(title->text(), titles[i]);
            QTest::mouseClick(title, Qt::LeftButton); // a click on the text must reach the tile
            QCOMPARE(navigated.takeFirst().first().toInt(), i + 1); // the pages follow the overview in tile order
        }
    }
};

QTEST_MAIN(tst_DashboardPage)
#include "tst_dashboardpage.moc"
