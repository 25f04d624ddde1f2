#include "fakeplatform.h"

#include "platform/registry.h"
#include "sysinfo/systeminfoscanner.h"

#include <QTest>

using platform::DiskSpace;
using platform::MemoryStatus;
using platform::SystemTimes;

Q_DECLARE_METATYPE(MemoryStatus)
Q_DECLARE_METATYPE(DiskSpace)
Q_DECLARE_METATYPE(SystemTimes)

namespace {

constexpr std::uint64_t GiB = 1ull << 30;

// Runs the one-off gathering on the pool and returns the order its two reports arrived in.
QStringList gather(SystemInfoScanner& scanner)
{
    QStringList order;
    QObject context;
    QObject::connect(&scanner, &SystemInfoScanner::staticInfoReady, &context, [&] { order << "static"; });
    QObject::connect(&scanner, &SystemInfoScanner::metricsUpdated, &context, [&] { order << "metrics"; });
    scanner.loadStaticInfo();
    (void)QTest::qWaitFor([&] { return order.size() == 2; }, 5000);
    return order;
}

} // namespace

class tst_SystemInfoScanner : public QObject {
    Q_OBJECT

private slots:
    void tick_data()
    {
        QTest::addColumn<SystemTimes>("times"); // idle, kernel, user; the first tick read 1000, 2000, 2000
        QTest::addColumn<MemoryStatus>("memory"); // load, total, available
        QTest::addColumn<DiskSpace>("disk"); // free to caller, total, total free
        QTest::addColumn<QString>("expected");
        QTest::newRow("kernel time includes idle; division truncates; shifts truncate; the caller's free space counts")
            << SystemTimes { 1001, 2002, 2001 } << MemoryStatus { 57, 16 * GiB - 1, 6 * GiB + 5 }
            << DiskSpace { 120 * GiB + GiB / 2, 512110190592ull, 130 * GiB }
            << "66; 57 10239/16383 MB; 74 356/476 GB, 120";
        QTest::newRow("idle stepping back is capped at 100; a volume under a GiB reads 0 %")
            << SystemTimes { 950, 2050, 2050 } << MemoryStatus { 0, 4 * GiB, 4 * GiB }
            << DiskSpace { GiB / 10, GiB - 1, GiB / 10 } << "100; 0 0/4096 MB; 0 0/0 GB, 0";
        QTest::newRow("zero delta keeps the old value; more free than total never wraps")
            << SystemTimes { 1000, 2000, 2000 } << MemoryStatus { 0, 2 * GiB, 3 * GiB }
            << DiskSpace { 12 * GiB, 10 * GiB, 12 * GiB } << "75; 0 0/2048 MB; 0 0/10 GB, 12";
    }

    void tick()
    {
        QFETCH(MemoryStatus, memory);
        QFETCH(DiskSpace, disk);
        FakePlatform pf;
        pf.times = SystemTimes { 1000, 2000, 2000 }; // 75 %, measured from zero
        pf.memory = memory;
        pf.disk = disk; // for the system drive only: asking about another path leaves zeros
        SystemInfoScanner scanner;
        scanner.refresh();
        pf.times.reset();
        pf.memory.reset();
        pf.disk.reset();
        scanner.refresh(); // nothing readable: the figures and the baseline stay
        QFETCH(SystemTimes, times);
        pf.times = times;
        scanner.refresh();
        const SystemMetrics m = scanner.metrics();
        QTEST(QString::asprintf("%d; %u %llu/%llu MB; %d %llu/%llu GB, %llu", m.cpuPercent, m.memPercent, m.memUsedMB,
                  m.memTotalMB, m.diskPercent, m.diskUsedGB, m.diskTotalGB, m.diskFreeGB),
            "expected");
    }

    void gathering_data()
    {
        // Registry values as "name=text"; the processor's go under its key, the rest under the version key.
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QString>("expected"); // processor | system | build
        QTest::newRow("processor marks removed, blanks collapsed")
            << QStringList { "ProcessorNameString=  Intel(R)  Core(TM)   i5 (R) CPU  " } << "Intel Core i5 CPU |  | ";
        QTest::newRow("processor length judged after clean-up")
            << QStringList { "ProcessorNameString=Intel(R) Xeon(R) Gold 6248R CPU @ 3.00GHz" }
            << "Intel Xeon Gold 6248R CPU @ 3.00GHz |  | ";
        QTest::newRow("processor of 37 characters cut to 34 and an ellipsis")
            << QStringList { "ProcessorNameString=AMD Ryzen 9 7950X3D 16-Core Processor" }
            << "AMD Ryzen 9 7950X3D 16-Core Proces… |  | ";
        QTest::newRow("Windows 10 stays below build 22000")
            << QStringList { "ProductName=Windows 10 Pro", "CurrentBuildNumber=21999", "DisplayVersion=21H2" }
            << " | Windows 10 Pro | Build 21999.0  21H2";
        QTest::newRow("Windows 10 renamed from build 22000")
            << QStringList { "ProductName=Windows 10 Pro", "CurrentBuildNumber=22000", "DisplayVersion=21H2" }
            << " | Windows 11 Pro | Build 22000.0  21H2";
    }

    void gathering()
    {
        QFETCH(QStringList, values);
        NORVALE_SANDBOX_ONLY("lays out some processor and version values and needs the others absent");
        FakePlatform pf;
        for (const QString& v : values) {
            const QString name = v.section('=', 0, 0);
            pf.registry().setString(platform::Hive::LocalMachine,
                name.startsWith("Processor") ? L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"
                                             : L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                name.toStdWString(), v.section('=', 1).toStdWString());
        }
        pf.times = SystemTimes { 1000, 2000, 2000 }; // 75 % since boot
        SystemInfoScanner scanner;
        QCOMPARE(gather(scanner), (QStringList { "static", "metrics" }));
        QTEST(QStringList({ scanner.cpuName(), scanner.osName(), scanner.buildText() }).join(" | "), "expected");
        QCOMPARE(scanner.metrics().cpuPercent, 75);
    }
};

QTEST_MAIN(tst_SystemInfoScanner)
#include "tst_systeminfoscanner.moc"
