#include "fakeplatform.h"

#include "platform/registry.h"
#include "sysinfo/dashboardpage.h"
#include "sysinfo/systeminfoscanner.h"
#include "widgets/circlebadge.h"
#include "widgets/ringgauge.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using platform::Hive;

namespace {

constexpr wchar_t VersionKey[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
constexpr wchar_t PackagesKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing\\Packages";
constexpr std::uint64_t MinuteMs = 60'000;
constexpr std::uint64_t HourMs = 60 * MinuteMs;

template <typename T> T* child(const QWidget& page, const char* name)
{
    return page.findChild<T*>(QString::fromLatin1(name));
}

} // namespace

class tst_DashboardPage : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void textsBeforeStaticInfo();
    void textsAfterStaticInfo_data();
    void textsAfterStaticInfo();
    void gaugesShowMetrics_data();
    void gaugesShowMetrics();
    void quickActionNavigates_data();
    void quickActionNavigates();

private:
    // Starts the page and waits until the static facts have reached the hero card.
    bool startAndWait(DashboardPage& page);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FakePlatform> m_platform;
};

void tst_DashboardPage::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_platform = std::make_unique<FakePlatform>(m_dir->path());
}

void tst_DashboardPage::cleanup()
{
    m_platform.reset();
    m_dir.reset();
}

bool tst_DashboardPage::startAndWait(DashboardPage& page)
{
    auto* scanner = page.findChild<SystemInfoScanner*>();
    if (!scanner)
        return false;
    bool ready = false;
    QObject context;
    connect(scanner, &SystemInfoScanner::staticInfoReady, &context, [&ready] { ready = true; });
    page.start();
    // Our connection was made after the page's, so the page has handled the report once ours runs.
    return QTest::qWaitFor([&ready] { return ready; }, 5000);
}

void tst_DashboardPage::textsBeforeStaticInfo()
{
    DashboardPage page(nullptr);
    QCOMPARE(child<QLabel>(page, "DashboardOsLabel")->text(), QString::fromUtf8("正在读取系统信息…"));
    QVERIFY(child<QLabel>(page, "DashboardBuildLabel")->text().isEmpty());
    QVERIFY(child<QLabel>(page, "DashboardUptimeLabel")->text().isEmpty());
    QCOMPARE(child<CircleBadge>(page, "DashboardUpdatesBadge")->text(), QString::fromUtf8("…"));
    // Each gauge starts empty, under its own label and in its own colour (until the load rises).
    const struct {
        const char* name;
        QString label;
        QColor color;
    } gauges[] = {
        { "DashboardCpuGauge", QStringLiteral("CPU"), QColor(0x3b, 0x82, 0xf6) },
        { "DashboardMemoryGauge", QString::fromUtf8("内存"), QColor(0x8b, 0x5c, 0xf6) },
        { "DashboardDiskGauge", QString::fromUtf8("磁盘"), QColor(0x10, 0xb9, 0x81) },
    };
    for (const auto& g : gauges) {
        const auto* gauge = child<RingGauge>(page, g.name);
        QCOMPARE(gauge->value(), 0);
        QCOMPARE(gauge->label(), g.label);
        QCOMPARE(gauge->arcColor(), g.color);
        QVERIFY(gauge->detail().isEmpty());
    }
}

void tst_DashboardPage::textsAfterStaticInfo_data()
{
    QTest::addColumn<bool>("seedVersion");
    QTest::addColumn<quint64>("uptimeMs");
    QTest::addColumn<QString>("osText");
    QTest::addColumn<QString>("buildText");
    QTest::addColumn<QString>("uptimeText");

    QTest::newRow("59 minutes") << true << quint64(59 * MinuteMs + 59'999) << "Windows 11 Pro"
                                << "Build 22631.4460  23H2" << QString::fromUtf8("已运行 0 小时 59 分钟");
    QTest::newRow("just under a day") << true << quint64(24 * HourMs - 1) << "Windows 11 Pro"
                                      << "Build 22631.4460  23H2" << QString::fromUtf8("已运行 23 小时 59 分钟");
    QTest::newRow("25 hours") << true << quint64(25 * HourMs + 30 * MinuteMs) << "Windows 11 Pro"
                              << "Build 22631.4460  23H2" << QString::fromUtf8("已运行 1 天 1 小时");
    QTest::newRow("no version key") << false << quint64(3 * HourMs) << "Windows"
                                    << "" << QString::fromUtf8("已运行 3 小时 0 分钟");
}

void tst_DashboardPage::textsAfterStaticInfo()
{
    QFETCH(bool, seedVersion);
    QFETCH(quint64, uptimeMs);

    platform::Registry& reg = m_platform->registry();
    if (seedVersion) {
        reg.setString(Hive::LocalMachine, VersionKey, L"ProductName", L"Windows 10 Pro");
        reg.setString(Hive::LocalMachine, VersionKey, L"CurrentBuildNumber", L"22631");
        reg.setString(Hive::LocalMachine, VersionKey, L"DisplayVersion", L"23H2");
        reg.setDword(Hive::LocalMachine, VersionKey, L"UBR", 4460);
    }
    for (const wchar_t* name : { L"Package_for_KB5031356~31bf3856ad364e35~amd64~~22621.2428.1.0",
             L"Package_for_KB5032007~31bf3856ad364e35~amd64~~22621.2500.1.1",
             L"Package_for_RollupFix~31bf3856ad364e35~amd64~~22621.2715.1.12" })
        reg.createKey(Hive::LocalMachine, std::wstring(PackagesKey) + L"\\" + name);
    m_platform->fakeCounters.ticks = uptimeMs;

    DashboardPage page(nullptr);
    QVERIFY(startAndWait(page));
    QTEST(child<QLabel>(page, "DashboardOsLabel")->text(), "osText");
    QTEST(child<QLabel>(page, "DashboardBuildLabel")->text(), "buildText");
    QTEST(child<QLabel>(page, "DashboardUptimeLabel")->text(), "uptimeText");
    QCOMPARE(child<CircleBadge>(page, "DashboardUpdatesBadge")->text(), QStringLiteral("2"));
}

void tst_DashboardPage::gaugesShowMetrics_data()
{
    QTest::addColumn<SystemMetrics>("metrics");
    QTest::addColumn<QString>("shown"); // value and detail of each gauge

    const auto metrics = [](int cpu, uint mem, quint64 memUsedMB, quint64 memTotalMB) {
        SystemMetrics m;
        m.cpuPercent = cpu;
        m.memPercent = mem;
        m.memUsedMB = memUsedMB;
        m.memTotalMB = memTotalMB;
        m.diskPercent = 74;
        m.diskUsedGB = 356;
        m.diskTotalGB = 476;
        return m;
    };
    // 9.9 GiB of 15.9 GiB
    QTest::newRow("memory figures truncate")
        << metrics(12, 62, 10137, 16281) << QString::fromUtf8("12 16 核 | 62 9/15 GB | 74 356/476 GB");
    QTest::newRow("processor above 100 shows a full ring")
        << metrics(140, 50, 1023, 1024) << QString::fromUtf8("100 16 核 | 50 0/1 GB | 74 356/476 GB");
    QTest::newRow("negative processor shows an empty ring")
        << metrics(-3, 0, 0, 0) << QString::fromUtf8("0 16 核 | 0 0/0 GB | 74 356/476 GB");
    QTest::newRow("memory load above 100 is capped")
        << metrics(5, 4'000'000'000u, 2048, 4096) << QString::fromUtf8("5 16 核 | 100 2/4 GB | 74 356/476 GB");
}

void tst_DashboardPage::gaugesShowMetrics()
{
    QFETCH(SystemMetrics, metrics);

    m_platform->fakeCounters.processors = 16;
    DashboardPage page(nullptr);
    QVERIFY(startAndWait(page));
    page.onMetricsUpdated(metrics);

    QStringList shown;
    for (const char* name : { "DashboardCpuGauge", "DashboardMemoryGauge", "DashboardDiskGauge" }) {
        const auto* gauge = child<RingGauge>(page, name);
        shown << QStringLiteral("%1 %2").arg(gauge->value()).arg(gauge->detail());
    }
    QTEST(shown.join(QStringLiteral(" | ")), "shown");
}

void tst_DashboardPage::quickActionNavigates_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("pageIndex");

    QTest::newRow("disk cleanup") << 0 << QString::fromUtf8("🧹  磁盘清理") << 1;
    QTest::newRow("software uninstall") << 1 << QString::fromUtf8("📦  软件卸载") << 2;
    QTest::newRow("Windows apps") << 2 << QString::fromUtf8("🪟  Windows App") << 3;
    QTest::newRow("browser extensions") << 3 << QString::fromUtf8("🧩  浏览器扩展") << 4;
}

void tst_DashboardPage::quickActionNavigates()
{
    QFETCH(int, position);
    QFETCH(QString, title);
    QFETCH(int, pageIndex);

    DashboardPage page(nullptr);
    page.resize(900, 640);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));

    const auto buttons
        = child<QWidget>(page, "QuickActionsCard")->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.size(), 4);
    QPushButton* button = buttons.at(position);
    const auto labels = button->findChildren<QLabel*>();
    QVERIFY(!labels.isEmpty());
    QCOMPARE(labels.first()->text(), title);

    QSignalSpy spy(&page, &DashboardPage::navigateTo);
    // A click on the title text must reach the tile.
    QTest::mouseClick(labels.first(), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toInt(), pageIndex);
}

QTEST_MAIN(tst_DashboardPage)
#include "tst_dashboardpage.moc"
