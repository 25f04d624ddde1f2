#include "fakeplatform.h"

#include "platform/environment.h"
#include "platform/registry.h"
#include "sysinfo/systeminfoscanner.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using platform::Hive;

Q_DECLARE_METATYPE(platform::MemoryStatus)
Q_DECLARE_METATYPE(platform::DiskSpace)

namespace {

constexpr wchar_t ProcessorKey[] = L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
constexpr wchar_t VersionKey[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
constexpr wchar_t PackagesKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing\\Packages";
constexpr wchar_t CacheKey[]
    = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing\\ApplicabilityEvaluationCache";

constexpr std::uint64_t GiB = 1ull << 30;
constexpr std::uint64_t MiB = 1ull << 20;

// Every field, so a whole record compares at once and reads well in a failure message.
QString summary(const SystemMetrics& m)
{
    return QStringLiteral("cpu %1; mem %2 %3/%4 MB; disk %5 %6/%7 GB, %8 free")
        .arg(m.cpuPercent)
        .arg(m.memPercent)
        .arg(m.memUsedMB)
        .arg(m.memTotalMB)
        .arg(m.diskPercent)
        .arg(m.diskUsedGB)
        .arg(m.diskTotalGB)
        .arg(m.diskFreeGB);
}

// Runs the one-off gathering and waits until both of its reports have arrived here.
bool gatherStaticInfo(SystemInfoScanner& scanner, QStringList* order = nullptr)
{
    int ready = 0;
    int metrics = 0;
    QObject context;
    QObject::connect(&scanner, &SystemInfoScanner::staticInfoReady, &context, [&] {
        ++ready;
        if (order)
            order->append(QStringLiteral("static"));
    });
    QObject::connect(&scanner, &SystemInfoScanner::metricsUpdated, &context, [&] {
        ++metrics;
        if (order)
            order->append(QStringLiteral("metrics"));
    });
    scanner.loadStaticInfo();
    return QTest::qWaitFor([&] { return ready == 1 && metrics == 1; }, 5000);
}

} // namespace

class tst_SystemInfoScanner : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void cpuPercent_data();
    void cpuPercent();
    void failedSamplesKeepPreviousValues();
    void memoryAndDisk_data();
    void memoryAndDisk();

    void processorName_data();
    void processorName();
    void windowsVersion_data();
    void windowsVersion();
    void installedUpdates_data();
    void installedUpdates();
    void firstSamplesFollowStaticInfo();
    void ticksOnlyOnceMonitoringStarts();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FakePlatform> m_platform;
};

void tst_SystemInfoScanner::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_platform = std::make_unique<FakePlatform>(m_dir->path());
}

void tst_SystemInfoScanner::cleanup()
{
    m_platform.reset();
    m_dir.reset();
}

void tst_SystemInfoScanner::cpuPercent_data()
{
    QTest::addColumn<qint64>("idleDelta");
    QTest::addColumn<qint64>("kernelDelta");
    QTest::addColumn<qint64>("userDelta");
    QTest::addColumn<int>("expected");

    // The baseline sample reads 75 %; each row is the step to the second sample.
    QTest::newRow("half busy") << 50ll << 60ll << 40ll << 50;
    QTest::newRow("integer division truncates") << 1ll << 2ll << 1ll << 66;
    QTest::newRow("kernel time includes idle") << 100ll << 100ll << 0ll << 0;
    QTest::newRow("fully busy") << 0ll << 70ll << 30ll << 100;
    QTest::newRow("identical samples keep the old value") << 0ll << 0ll << 0ll << 75;
    QTest::newRow("kernel and user cancelling keep the old value") << 5ll << -10ll << 10ll << 75;
    QTest::newRow("idle stepping back is capped at 100") << -50ll << 50ll << 50ll << 100;
    QTest::newRow("idle beyond busy time floors at 0") << 300ll << 100ll << 0ll << 0;
}

void tst_SystemInfoScanner::cpuPercent()
{
    QFETCH(qint64, idleDelta);
    QFETCH(qint64, kernelDelta);
    QFETCH(qint64, userDelta);
    QFETCH(int, expected);

    SystemInfoScanner scanner;
    const platform::SystemTimes base { 500'000, 1'000'000, 1'000'000 };
    m_platform->fakeCounters.times = base;
    scanner.refresh();
    QCOMPARE(scanner.metrics().cpuPercent, 75); // measured from the zero baseline

    m_platform->fakeCounters.times = platform::SystemTimes { base.idle + std::uint64_t(idleDelta),
        base.kernel + std::uint64_t(kernelDelta), base.user + std::uint64_t(userDelta) };
    scanner.refresh();
    QCOMPARE(scanner.metrics().cpuPercent, expected);
}

void tst_SystemInfoScanner::failedSamplesKeepPreviousValues()
{
    FakeSystemCounters& c = m_platform->fakeCounters;
    SystemInfoScanner scanner;
    int reports = 0;
    connect(&scanner, &SystemInfoScanner::metricsUpdated, this, [&reports] { ++reports; });

    c.times = platform::SystemTimes { 100, 300, 100 };
    c.memory = platform::MemoryStatus { 40, 8 * GiB, 6 * GiB };
    c.disk = platform::DiskSpace { 100 * GiB, 400 * GiB, 100 * GiB };
    scanner.refresh();
    const QString before = summary(scanner.metrics());
    QCOMPARE(before, QStringLiteral("cpu 75; mem 40 2048/8192 MB; disk 75 300/400 GB, 100 free"));

    c.times.reset();
    c.memory.reset();
    c.disk.reset();
    scanner.refresh();
    QCOMPARE(summary(scanner.metrics()), before);
    QCOMPARE(reports, 2); // a tick reports even when nothing could be read

    // A failed read must not move the baseline: the next delta spans both ticks.
    c.times = platform::SystemTimes { 100 + 100, 300 + 100, 100 + 100 };
    scanner.refresh();
    QCOMPARE(scanner.metrics().cpuPercent, 50);
}

void tst_SystemInfoScanner::memoryAndDisk_data()
{
    QTest::addColumn<platform::MemoryStatus>("memory");
    QTest::addColumn<platform::DiskSpace>("disk"); // free to caller, total, total free
    QTest::addColumn<QString>("expected");

    QTest::newRow("shifts truncate; the caller's free space counts, not the volume's")
        << platform::MemoryStatus { 57, 16 * GiB - 1, 6 * GiB + 5 }
        << platform::DiskSpace { 120 * GiB + GiB / 2, 512110190592ull, 130 * GiB }
        << "cpu 0; mem 57 10239/16383 MB; disk 74 356/476 GB, 120 free";
    QTest::newRow("volume under a GiB reads 0 %")
        << platform::MemoryStatus { 0, 4 * GiB, 4 * GiB } << platform::DiskSpace { 100 * MiB, 900 * MiB, 100 * MiB }
        << "cpu 0; mem 0 0/4096 MB; disk 0 0/0 GB, 0 free";
    QTest::newRow("more free than total never wraps")
        << platform::MemoryStatus { 0, 2 * GiB, 3 * GiB } << platform::DiskSpace { 12 * GiB, 10 * GiB, 12 * GiB }
        << "cpu 0; mem 0 0/2048 MB; disk 0 0/10 GB, 12 free";
    QTest::newRow("full volume") << platform::MemoryStatus { 100, 8 * GiB, 0 } << platform::DiskSpace { 0, 64 * GiB, 0 }
                                 << "cpu 0; mem 100 8192/8192 MB; disk 100 64/64 GB, 0 free";
}

void tst_SystemInfoScanner::memoryAndDisk()
{
    QFETCH(platform::MemoryStatus, memory);
    QFETCH(platform::DiskSpace, disk);

    m_platform->fakeCounters.memory = memory;
    m_platform->fakeCounters.disk = disk;
    SystemInfoScanner scanner;
    scanner.refresh();
    QTEST(summary(scanner.metrics()), "expected");
    QCOMPARE(m_platform->fakeCounters.diskPathAsked(), m_platform->environment().systemDriveRoot());
}

void tst_SystemInfoScanner::processorName_data()
{
    QTest::addColumn<QString>("stored"); // null: no processor key at all
    QTest::addColumn<QString>("expected");

    QTest::newRow("marks removed") << "Intel(R) Core(TM) i7-8700K CPU @ 3.70GHz"
                                   << "Intel Core i7-8700K CPU @ 3.70GHz";
    QTest::newRow("blanks left by marks collapse") << "  Intel(R)  Core(TM)   i5 (R) CPU  "
                                                   << "Intel Core i5 CPU";
    QTest::newRow("marks only in upper case") << "AMD Ryzen(tm) 7 (r) 5800X"
                                              << "AMD Ryzen(tm) 7 (r) 5800X";
    QTest::newRow("length judged after clean-up") << "Intel(R) Xeon(R) Gold 6248R CPU @ 3.00GHz"
                                                  << "Intel Xeon Gold 6248R CPU @ 3.00GHz";
    QTest::newRow("36 characters kept") << "AMD Ryzen 9 7950X 16-Core Processors"
                                        << "AMD Ryzen 9 7950X 16-Core Processors";
    QTest::newRow("37 characters cut to 34 and an ellipsis")
        << "AMD Ryzen 9 7950X3D 16-Core Processor" << QString::fromUtf8("AMD Ryzen 9 7950X3D 16-Core Proces…");
    QTest::newRow("40 characters cut to 34 and an ellipsis")
        << "12th Gen Intel(R) Core(TM) i7-12700H @ 2.70 GHz"
        << QString::fromUtf8("12th Gen Intel Core i7-12700H @ 2.…");
    QTest::newRow("no processor key") << QString() << QString();
}

void tst_SystemInfoScanner::processorName()
{
    QFETCH(QString, stored);
    QFETCH(QString, expected);

    if (!stored.isNull())
        QCOMPARE(m_platform->registry().setString(
                     Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", stored.toStdWString()),
            platform::Status::Ok);
    SystemInfoScanner scanner;
    QVERIFY(gatherStaticInfo(scanner));
    QCOMPARE(scanner.cpuName(), expected);
}

void tst_SystemInfoScanner::windowsVersion_data()
{
    QTest::addColumn<bool>("keyExists");
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("build");
    QTest::addColumn<int>("ubr"); // -1: value missing
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("osName");
    QTest::addColumn<QString>("buildText");

    QTest::newRow("Windows 10 stays below build 22000") << true << "Windows 10 Pro"
                                                        << "21999" << 1 << "21H2"
                                                        << "Windows 10 Pro"
                                                        << "Build 21999.1  21H2";
    QTest::newRow("Windows 10 renamed from build 22000") << true << "Windows 10 Pro"
                                                         << "22000" << 2538 << "21H2"
                                                         << "Windows 11 Pro"
                                                         << "Build 22000.2538  21H2";
    QTest::newRow("values trimmed before use") << true << " Windows 10 Enterprise "
                                               << " 22631 " << 4460 << " 23H2 "
                                               << "Windows 11 Enterprise"
                                               << "Build 22631.4460  23H2";
    QTest::newRow("rename is case-sensitive") << true << "windows 10 Pro"
                                              << "22631" << 4460 << "23H2"
                                              << "windows 10 Pro"
                                              << "Build 22631.4460  23H2";
    QTest::newRow("missing UBR reads 0") << true << "Windows 10 Home"
                                         << "19045" << -1 << "22H2"
                                         << "Windows 10 Home"
                                         << "Build 19045.0  22H2";
    QTest::newRow("unreadable build never renames") << true << "Windows 10 Pro"
                                                    << "abc" << 7 << ""
                                                    << "Windows 10 Pro"
                                                    << "Build abc.7  ";
    QTest::newRow("no version key leaves both empty") << false << ""
                                                      << "" << 0 << "" << QString() << QString();
}

void tst_SystemInfoScanner::windowsVersion()
{
    QFETCH(bool, keyExists);
    QFETCH(QString, product);
    QFETCH(QString, build);
    QFETCH(int, ubr);
    QFETCH(QString, display);

    platform::Registry& reg = m_platform->registry();
    if (keyExists) {
        reg.setString(Hive::LocalMachine, VersionKey, L"ProductName", product.toStdWString());
        reg.setString(Hive::LocalMachine, VersionKey, L"CurrentBuildNumber", build.toStdWString());
        reg.setString(Hive::LocalMachine, VersionKey, L"DisplayVersion", display.toStdWString());
        if (ubr >= 0)
            reg.setDword(Hive::LocalMachine, VersionKey, L"UBR", std::uint32_t(ubr));
    }
    SystemInfoScanner scanner;
    QVERIFY(gatherStaticInfo(scanner));
    QTEST(scanner.osName(), "osName");
    QTEST(scanner.buildText(), "buildText");
}

void tst_SystemInfoScanner::installedUpdates_data()
{
    QTest::addColumn<QStringList>("packages"); // {"-"}: no Packages key
    QTest::addColumn<int>("cacheEntries"); // -1: no ApplicabilityEvaluationCache key
    QTest::addColumn<int>("expected");

    const QStringList missing { QStringLiteral("-") };
    QTest::newRow("KB names counted in any case")
        << QStringList { "Package_for_KB5031356~31bf3856ad364e35~amd64~~22621.2428.1.0",
               "package_for_kb5032007~31bf3856ad364e35~amd64~~22621.2500.1.1",
               "Microsoft-Windows-Foundation-Package~31bf3856ad364e35~amd64~~10.0.22621.1",
               "Package_for_RollupFix~31bf3856ad364e35~amd64~~22621.2715.1.12" }
        << 9 << 2;
    QTest::newRow("no KB names: evaluation cache stands in")
        << QStringList { "Microsoft-Windows-Foundation-Package~31bf3856ad364e35~amd64~~10.0.22621.1",
               "Package_for_RollupFix~31bf3856ad364e35~amd64~~22621.2715.1.12" }
        << 3 << 3;
    QTest::newRow("no Packages key: evaluation cache stands in") << missing << 5 << 5;
    QTest::newRow("empty Packages key: evaluation cache stands in") << QStringList() << 4 << 4;
    QTest::newRow("neither key") << missing << -1 << 0;
}

void tst_SystemInfoScanner::installedUpdates()
{
    QFETCH(QStringList, packages);
    QFETCH(int, cacheEntries);
    QFETCH(int, expected);

    platform::Registry& reg = m_platform->registry();
    if (packages != QStringList { QStringLiteral("-") }) {
        QCOMPARE(reg.createKey(Hive::LocalMachine, PackagesKey), platform::Status::Ok);
        for (const QString& name : packages)
            reg.createKey(Hive::LocalMachine, std::wstring(PackagesKey) + L"\\" + name.toStdWString());
    }
    if (cacheEntries >= 0) {
        reg.createKey(Hive::LocalMachine, CacheKey);
        for (int i = 0; i < cacheEntries; ++i)
            reg.createKey(Hive::LocalMachine, std::wstring(CacheKey) + L"\\Entry" + std::to_wstring(i));
    }
    SystemInfoScanner scanner;
    QVERIFY(gatherStaticInfo(scanner));
    QCOMPARE(scanner.updatesInstalled(), expected);
}

void tst_SystemInfoScanner::firstSamplesFollowStaticInfo()
{
    FakeSystemCounters& c = m_platform->fakeCounters;
    c.processors = 12;
    c.times = platform::SystemTimes { 1000, 2000, 2000 }; // 75 % since boot
    c.memory = platform::MemoryStatus { 50, 16 * GiB, 8 * GiB };
    c.disk = platform::DiskSpace { 200 * GiB, 500 * GiB, 200 * GiB };

    SystemInfoScanner scanner;
    QStringList order;
    QVERIFY(gatherStaticInfo(scanner, &order));
    QCOMPARE(order, (QStringList { "static", "metrics" }));
    QCOMPARE(scanner.cpuCores(), 12);
    QCOMPARE(scanner.metrics().cpuPercent, 75);
    QCOMPARE(scanner.metrics().memUsedMB, quint64(8192));
    QCOMPARE(scanner.metrics().diskUsedGB, quint64(300));

    // The first tick measures from the worker's sample, not from boot.
    c.times = platform::SystemTimes { 1000 + 90, 2000 + 100, 2000 + 0 };
    scanner.refresh();
    QCOMPARE(scanner.metrics().cpuPercent, 10);
}

void tst_SystemInfoScanner::ticksOnlyOnceMonitoringStarts()
{
    SystemInfoScanner scanner;
    const auto timers = scanner.findChildren<QTimer*>();
    QCOMPARE(timers.size(), 1);
    QTimer* timer = timers.first();
    QCOMPARE(timer->interval(), 1500);
    // The facts alone must not start the ticks: the page decides when monitoring begins.
    QVERIFY(gatherStaticInfo(scanner));
    QVERIFY(!timer->isActive());

    QSignalSpy reports(&scanner, &SystemInfoScanner::metricsUpdated);
    scanner.startMonitoring();
    QVERIFY(timer->isActive());
    QVERIFY(QMetaObject::invokeMethod(timer, "timeout")); // a tick, without waiting 1.5 s for it
    QCOMPARE(reports.count(), 1);
}

QTEST_MAIN(tst_SystemInfoScanner)
#include "tst_systeminfoscanner.moc"
