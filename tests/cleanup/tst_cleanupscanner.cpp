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
        "L:Microsoft/Windows/Explorer/i", "L:CrashDumps/j", "C:/ProgramData/Microsoft/Windows/WER/ReportQueue/k",
        "C:/Windows/Minidump/l", "C:/$Recycle.Bin/S-1-5-21/m", "C:/Windows.old/Windows/n",
        // Listed under logs beside its folder, yet counted only by the temporary folder holding it.
        "C:/Windows/Temp/MRT.log" };
    const auto bit = [](int i) { return qint64(1) << (2 * i + 6); }; // past 4 GiB for the last two
    for (int i = 0; i < places.size(); ++i)
        QVERIFY(CleanupSandbox::write(sandbox.machine(places.at(i)), bit(i), true));
    QVERIFY(CleanupSandbox::write(sandbox.outside("big.doc"), 1 << 20, true));
    QVERIFY(QFile::link(sandbox.outside(""), sandbox.machine("C:/Windows/Temp/link-out")));

    CleanupScanner scanner;
    QSignalSpy progress(&scanner, &CleanupScanner::scanProgress);
    QSignalSpy finished(&scanner, &CleanupScanner::scanFinished);
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(intsOf(progress), QList<int>({ 9, 18, 27, 36, 45, 54, 63, 72, 81, 90, 100 }));
    QList<qint64> sizes;
    for (const JunkCategory& c : scanner.categories())
        sizes << c.size;
    QCOMPARE(sizes,
        QList<qint64>({ bit(0) + bit(1) + bit(14), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7), bit(8),
            bit(9) + bit(10) + bit(11), bit(12), bit(13) }));
}

// Folders are made with "{0}" and "{1}" as "Default" and "Profile 1"; in the expected paths they
// stand for the profiles in the order the file system lists them.
void tst_CleanupScanner::cacheDiscovery_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("expected");

    const auto reversed = [](const QStringList& list) { return QStringList(list.rbegin(), list.rend()); };
    const QString chrome = "L:Google/Chrome%1/User Data/%2/%3", edge = "L:Microsoft/Edge/User Data/Default/";
    const QString ffR = "R:Mozilla/Firefox/Profiles/", ffL = "L:Mozilla/Firefox/Profiles/";
    const QStringList chromes = { chrome.arg("", "{0}", "Cache"), chrome.arg("", "{0}", "Code Cache"),
        chrome.arg("", "{1}", "Cache"), chrome.arg("", "{1}", "Code Cache"), chrome.arg(" Beta", "Default", "Cache"),
        chrome.arg(" Dev", "Default", "GPUCache"), chrome.arg(" SxS", "Default", "Cache") };
    QTest::newRow("channels stable, Beta, Dev, SxS; profiles as listed") << int(Chrome) << reversed(chromes) << chromes;
    const QStringList edges = { edge + "Cache2", edge + "ShaderCache", edge + "Service Worker/ScriptCache" };
    QTest::newRow("Edge: cache names in their fixed order, others ignored")
        << int(Edge) << reversed(edges) + QStringList { edge + "Media Cache" } << edges;
    QTest::newRow("profiles without caches: fallback")
        << int(Edge) << QStringList { edge + "Extensions" } << QStringList { edge + "Cache" };
    QTest::newRow("no Firefox caches: the whole profiles folder")
        << int(Firefox) << QStringList { ffR + "abc.default" } << QStringList { ffR.chopped(1) };
    QStringList firefox;
    for (const char* p : { "{0}/", "{1}/" })
        firefox << ffR + p + "cache2" << ffR + p + "startupCache" << ffR + p + "shader-cache";
    firefox << ffL + "{0}/cache2" << ffL + "{1}/cache2";
    // A local profile without a roaming one is never looked at.
    QTest::newRow("Firefox: roaming caches in name order, then the local ones")
        << int(Firefox) << reversed(firefox) + QStringList { ffL + "lonely/cache2" } << firefox;
}

void tst_CleanupScanner::cacheDiscovery()
{
    QFETCH(int, category);
    QFETCH(QStringList, folders);
    QFETCH(QStringList, expected);

    CleanupSandbox sandbox;
    for (QString folder : folders)
        QVERIFY(QDir().mkpath(sandbox.machine(folder.replace("{0}", "Default").replace("{1}", "Profile 1"))));
    const QString first = expected.filter("{0}").value(0);
    const QStringList profiles = first.isEmpty() ? QStringList()
                                                 : QDir(sandbox.machine(first.left(first.indexOf("/{0}"))))
                                                       .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    QStringList wanted;
    for (QString path : expected)
        wanted << sandbox.machine(
            profiles.isEmpty() ? path : path.replace("{0}", profiles.at(0)).replace("{1}", profiles.at(1)));
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
    const QList<QPair<QString, int>> files
        = { { prefetch + "/A.pf", 100 }, { prefetch + "/sub/B.pf", 200 }, { download + "/kb.cab", 50 },
              { dumps + "/gone.dmp", 1000 }, { dumps + "/locked/stays.dmp", 9000 }, { precious, 7000 } };
    for (const auto& [path, bytes] : files)
        QVERIFY(CleanupSandbox::write(path, bytes));
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
