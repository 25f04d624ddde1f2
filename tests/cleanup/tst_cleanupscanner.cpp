#include "cleanup/cleanupscanner.h"
#include "cleanupsandbox.h"

#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

enum Category { WinTemp, WuCache, Chrome, Edge, Firefox, Logs, Prefetch, Dumps = 8 };

QList<int> intsOf(const QSignalSpy& spy)
{
    QList<int> values;
    for (const QList<QVariant>& args : spy)
        values.append(args.at(0).toInt());
    return values;
}

// Keeps what a folder holds from being deleted, or lets go again. Root ignores permissions, so
// there the file system's immutable flag does it.
bool setUndeletable(const QString& folder, bool on)
{
    if (::geteuid() != 0)
        return QFile::setPermissions(
            folder, QFile::ReadOwner | QFile::ExeOwner | (on ? QFile::Permissions() : QFile::WriteOwner));
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int flags = 0;
    bool ok = fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ok = ok && ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    if (fd >= 0)
        ::close(fd);
    return ok;
}

} // namespace

class tst_CleanupScanner : public QObject {
    Q_OBJECT
private slots:
    void scanMeasuresEveryPlaceOnce();
    void cacheDiscovery_data();
    void cacheDiscovery();
    void clean_data();
    void clean();
};

// Each place holds a different power of two, so every sum shows exactly which places were counted.
void tst_CleanupScanner::scanMeasuresEveryPlaceOnce()
{
    CleanupSandbox sandbox;
    const QStringList places = { "C:/Windows/Temp/a", "L:Temp/nested/b", "C:/Windows/SoftwareDistribution/Download/c",
        "L:Google/Chrome/User Data/Default/Cache/d", "L:Microsoft/Edge/User Data/Default/Cache/e",
        "R:Mozilla/Firefox/Profiles/x.default/f", "C:/Windows/Logs/CBS/g", "C:/Windows/Prefetch/h",
        "L:Microsoft/Windows/Explorer/i", "L:CrashDumps/j", "C:/ProgramData/Microsoft/Windows/WER/ReportArchive/k",
        "C:/ProgramData/Microsoft/Windows/WER/ReportQueue/l", "C:/Windows/Minidump/m", "C:/$Recycle.Bin/S-1-5-21/n",
        "C:/Windows.old/Windows/o",
        // Listed under logs beside its folder, yet counted only by the temporary folder holding it.
        "C:/Windows/Temp/MRT.log" };
    const auto bit = [](int i) { return qint64(1) << (2 * i + 4); }; // past 4 GiB for the last two
    for (int i = 0; i < places.size(); ++i)
        QVERIFY(CleanupSandbox::write(sandbox.machine(places.at(i)), bit(i), true));
    QVERIFY(CleanupSandbox::write(sandbox.outside("big.doc"), 1 << 20, true));
    QVERIFY(QFile::link(sandbox.outside(""), sandbox.machine("C:/Windows/Temp/link-out")));

    CleanupScanner scanner;
    QList<bool> selected;
    for (const JunkCategory& c : scanner.categories())
        selected << c.selected;
    QCOMPARE(selected, QList<bool>({ true, true, true, true, true, true, true, true, false, false, false }));

    QSignalSpy progress(&scanner, &CleanupScanner::scanProgress);
    QSignalSpy finished(&scanner, &CleanupScanner::scanFinished);
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(intsOf(progress), QList<int>({ 9, 18, 27, 36, 45, 54, 63, 72, 81, 90, 100 }));
    QList<qint64> sizes;
    for (const JunkCategory& c : scanner.categories())
        sizes << c.size;
    QCOMPARE(sizes,
        QList<qint64>({ bit(0) + bit(1) + bit(15), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7), bit(8),
            bit(9) + bit(10) + bit(11) + bit(12), bit(13), bit(14) }));

    // A second scan replaces the sizes rather than adding to them.
    QVERIFY(QFile::remove(sandbox.machine(places.at(7))));
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 2, 10000);
    QCOMPARE(scanner.categories().at(Prefetch).size, 0);
    QCOMPARE(scanner.categories().at(Logs).size, bit(6));
}

// "{0}" and "{1}" stand for the profiles in the order the file system lists the `listed` folder.
void tst_CleanupScanner::cacheDiscovery_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("listed");
    QTest::addColumn<QStringList>("expected");

    const QString chrome = "L:Google/Chrome", edge = "L:Microsoft/Edge/User Data/Default/";
    const QString ffR = "R:Mozilla/Firefox/Profiles", ffL = "L:Mozilla/Firefox/Profiles";
    QTest::newRow("channels stable, Beta, Dev, SxS; profiles as listed")
        << int(Chrome)
        << QStringList { chrome + " SxS/User Data/Default/Cache", chrome + " Dev/User Data/Default/GPUCache",
               chrome + " Beta/User Data/Default/Cache", chrome + "/User Data/Default/Code Cache",
               chrome + "/User Data/Default/Cache", chrome + "/User Data/Profile 1/Code Cache",
               chrome + "/User Data/Profile 1/Cache" }
        << chrome + "/User Data"
        << QStringList { chrome + "/User Data/{0}/Cache", chrome + "/User Data/{0}/Code Cache",
               chrome + "/User Data/{1}/Cache", chrome + "/User Data/{1}/Code Cache",
               chrome + " Beta/User Data/Default/Cache", chrome + " Dev/User Data/Default/GPUCache",
               chrome + " SxS/User Data/Default/Cache" };
    QStringList edgeCaches;
    for (const char* name : { "Cache", "Cache2", "Code Cache", "GPUCache", "ShaderCache", "Service Worker/CacheStorage",
             "Service Worker/ScriptCache" })
        edgeCaches << edge + name;
    QTest::newRow("cache names in their fixed order; others ignored")
        << int(Edge) << QStringList(edgeCaches.rbegin(), edgeCaches.rend()) + QStringList { edge + "Media Cache" }
        << QString() << edgeCaches;
    QTest::newRow("profiles without caches: fallback")
        << int(Edge) << QStringList { edge + "Extensions" } << QString() << QStringList { edge + "Cache" };
    QTest::newRow("no Firefox caches: the whole profiles folder")
        << int(Firefox) << QStringList { ffR + "/abc.default" } << QString() << QStringList { ffR };
    // A local profile without a roaming one is never looked at.
    QStringList firefox = { ffL + "/lonely/cache2" }, firefoxWanted;
    for (const char* p : { "/a.default/", "/b.dev/" })
        firefox << ffR + p + "shader-cache" << ffR + p + "startupCache" << ffR + p + "cache2" << ffL + p + "cache2";
    for (const char* p : { "/{0}/", "/{1}/" })
        firefoxWanted << ffR + p + "cache2" << ffR + p + "startupCache" << ffR + p + "shader-cache";
    firefoxWanted << ffL + "/{0}/cache2" << ffL + "/{1}/cache2";
    QTest::newRow("Firefox: roaming caches in name order, then the local ones")
        << int(Firefox) << firefox << ffR << firefoxWanted;
}

void tst_CleanupScanner::cacheDiscovery()
{
    QFETCH(int, category);
    QFETCH(QStringList, folders);
    QFETCH(QString, listed);
    QFETCH(QStringList, expected);

    CleanupSandbox sandbox;
    for (const QString& folder : folders)
        QVERIFY(QDir().mkpath(sandbox.machine(folder)));
    QStringList profiles;
    if (!listed.isEmpty())
        profiles = QDir(sandbox.machine(listed)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    QStringList wanted;
    for (QString path : expected) {
        for (int i = 0; i < profiles.size(); ++i)
            path.replace(QStringLiteral("{%1}").arg(i), profiles.at(i));
        wanted << sandbox.machine(path);
    }
    QCOMPARE(CleanupScanner().categories().at(category).paths, wanted);
}

void tst_CleanupScanner::clean_data()
{
    QTest::addColumn<QList<int>>("positions");
    QTest::addColumn<QList<int>>("expectedProgress");
    QTest::addColumn<qint64>("expectedFreed");
    QTest::addColumn<bool>("prefetchEmptied");

    QTest::newRow("empty list") << QList<int>() << QList<int>() << qint64(0) << false;
    QTest::newRow("out of range last: a step without progress")
        << QList<int>({ WuCache, 11 }) << QList<int>({ 50 }) << qint64(50) << false;
    QTest::newRow("out of range first; links go as links")
        << QList<int>({ -1, Prefetch }) << QList<int>({ 100 }) << qint64(300) << true;
    QTest::newRow("the same category twice frees once")
        << QList<int>({ Prefetch, Prefetch, WuCache }) << QList<int>({ 33, 66, 100 }) << qint64(350) << true;
    QTest::newRow("a locked file stays and is not counted")
        << QList<int>({ Dumps }) << QList<int>({ 100 }) << qint64(1000) << false;
}

// Links in Prefetch lead outside the machine: they must go as links, without a byte of their
// targets counted or deleted.
void tst_CleanupScanner::clean()
{
    QFETCH(QList<int>, positions);
    QFETCH(QList<int>, expectedProgress);
    QFETCH(qint64, expectedFreed);
    QFETCH(bool, prefetchEmptied);

    CleanupSandbox sandbox;
    const QString prefetch = sandbox.machine("C:/Windows/Prefetch"), dumps = sandbox.machine("L:CrashDumps");
    const QString download = sandbox.machine("C:/Windows/SoftwareDistribution/Download");
    const QString precious = sandbox.outside("precious/deeper/keep.doc");
    QVERIFY(CleanupSandbox::write(prefetch + "/A.pf", 100));
    QVERIFY(CleanupSandbox::write(prefetch + "/sub/B.pf", 200));
    QVERIFY(CleanupSandbox::write(download + "/kb.cab", 50));
    QVERIFY(CleanupSandbox::write(dumps + "/gone.dmp", 1000));
    QVERIFY(CleanupSandbox::write(dumps + "/locked/stays.dmp", 9000));
    QVERIFY(CleanupSandbox::write(precious, 7000));
    QVERIFY(QFile::link(sandbox.outside("precious"), prefetch + "/linked-folder"));
    QVERIFY(QFile::link(precious, prefetch + "/sub/linked-file"));
    const bool locked = setUndeletable(dumps + "/locked", true);
    const auto unlock = qScopeGuard([&] { setUndeletable(dumps + "/locked", false); });
    if (!locked && positions.contains(Dumps))
        QSKIP("neither permissions nor the immutable flag can make a file undeletable here");

    CleanupScanner scanner;
    QSignalSpy progress(&scanner, &CleanupScanner::cleanProgress);
    QSignalSpy finished(&scanner, &CleanupScanner::cleanFinished);
    scanner.clean(positions);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(finished.at(0).at(0).value<qint64>(), expectedFreed);
    QCOMPARE(intsOf(progress), expectedProgress);
    QCOMPARE(QDir(prefetch).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System), prefetchEmptied);
    QCOMPARE(QFileInfo(precious).size(), 7000);
    QVERIFY(QFileInfo::exists(dumps + "/locked/stays.dmp"));
    // The category folders themselves always stay.
    QVERIFY(QFileInfo(download).isDir());
    QVERIFY(QFileInfo(prefetch).isDir());
}

QTEST_GUILESS_MAIN(tst_CleanupScanner)
#include "tst_cleanupscanner.moc"
