#include "cleanup/cleanupscanner.h"
#include "cleanupsandbox.h"

#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

enum Category {
    WinTemp = 0,
    WuCache,
    ChromeCache,
    EdgeCache,
    FirefoxCache,
    Logs,
    Prefetch,
    Thumbcache,
    Dumps,
    Recycle,
    WindowsOld
};

QList<int> intsOf(const QSignalSpy& spy)
{
    QList<int> values;
    for (const QList<QVariant>& args : spy)
        values.append(args.at(0).toInt());
    return values;
}

// Makes a folder immune to deletion of what it holds, even for root, by the file system's
// immutable flag; without root a folder without write permission does the same. The flag is
// cleared again when the guard ends, so the temporary tree can be removed.
class UndeletableFolder {
public:
    explicit UndeletableFolder(const QString& path)
        : m_path(QFile::encodeName(path))
    {
        if (::geteuid() != 0) {
            m_viaMode = QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
            if (!m_viaMode)
                m_reason = QStringLiteral("chmod failed");
            return;
        }
        m_viaFlag = setImmutable(true);
    }
    ~UndeletableFolder()
    {
        if (m_viaFlag)
            setImmutable(false);
        if (m_viaMode)
            QFile::setPermissions(QFile::decodeName(m_path), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    bool isValid() const { return m_viaFlag || m_viaMode; }
    QString reason() const { return m_reason; }

private:
    bool setImmutable(bool on)
    {
        const int fd = ::open(m_path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        int flags = 0;
        bool ok = fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
        if (ok) {
            flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
            ok = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
        }
        if (!ok)
            m_reason = QStringLiteral("running as root and this file system refuses the immutable flag (%1), so "
                                      "nothing here can make a file undeletable")
                           .arg(QString::fromLocal8Bit(std::strerror(errno)));
        if (fd >= 0)
            ::close(fd);
        return ok;
    }

    QByteArray m_path;
    bool m_viaFlag = false;
    bool m_viaMode = false;
    QString m_reason;
};

} // namespace

class tst_CleanupScanner : public QObject {
    Q_OBJECT
private slots:
    void table_data();
    void table();
    void cacheDiscovery_data();
    void cacheDiscovery();
    void scanMeasuresEveryCategoryInOrder();
    void rescanReplacesSizes();
    void clean_data();
    void clean();
    void cleanNeverFollowsLinks();
    void undeletableFilesStayAndAreNotCounted();
};

// One row per category at its position. Paths are written as on Windows: "C:/..." for the system
// drive, "L:" and "R:" for Local and Roaming AppData, "TEMP" for the user's temporary folder. No
// browser is installed here, so the browser rows hold their fallbacks.
void tst_CleanupScanner::table_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<bool>("selected");

    QTest::newRow("win_temp") << int(WinTemp) << "win_temp"
                              << "Windows 临时文件"
                              << "🗂️" << QStringList({ "C:/Windows/Temp", "TEMP" }) << true;
    QTest::newRow("wu_cache") << int(WuCache) << "wu_cache"
                              << "Windows Update 缓存"
                              << "🔄" << QStringList({ "C:/Windows/SoftwareDistribution/Download" }) << true;
    QTest::newRow("chrome_cache") << int(ChromeCache) << "chrome_cache"
                                  << "Google Chrome 缓存"
                                  << "🟡" << QStringList({ "L:Google/Chrome/User Data/Default/Cache" }) << true;
    QTest::newRow("edge_cache") << int(EdgeCache) << "edge_cache"
                                << "Microsoft Edge 缓存"
                                << "🔵" << QStringList({ "L:Microsoft/Edge/User Data/Default/Cache" }) << true;
    QTest::newRow("firefox_cache") << int(FirefoxCache) << "firefox_cache"
                                   << "Mozilla Firefox 缓存"
                                   << "🦊" << QStringList({ "R:Mozilla/Firefox/Profiles" }) << true;
    QTest::newRow("logs: a folder and a file")
        << int(Logs) << "logs"
        << "系统日志文件"
        << "📋" << QStringList({ "C:/Windows/Logs", "C:/Windows/Temp/MRT.log" }) << true;
    QTest::newRow("prefetch") << int(Prefetch) << "prefetch"
                              << "Prefetch 预读缓存"
                              << "⚡" << QStringList({ "C:/Windows/Prefetch" }) << true;
    QTest::newRow("thumbcache") << int(Thumbcache) << "thumbcache"
                                << "缩略图缓存"
                                << "🖼️" << QStringList({ "L:Microsoft/Windows/Explorer" }) << true;
    QTest::newRow("dumps: not selected") << int(Dumps) << "dumps"
                                         << "崩溃转储文件"
                                         << "💥"
                                         << QStringList(
                                                { "L:CrashDumps", "C:/ProgramData/Microsoft/Windows/WER/ReportArchive",
                                                    "C:/ProgramData/Microsoft/Windows/WER/ReportQueue",
                                                    "C:/Windows/Minidump" })
                                         << false;
    QTest::newRow("recycle: not selected") << int(Recycle) << "recycle"
                                           << "回收站"
                                           << "🗑️" << QStringList({ "C:/$Recycle.Bin" }) << false;
    QTest::newRow("windows_old: listed though missing") << int(WindowsOld) << "windows_old"
                                                        << "Windows 旧系统备份"
                                                        << "💾" << QStringList({ "C:/Windows.old" }) << false;
}

void tst_CleanupScanner::table()
{
    QFETCH(int, position);
    QFETCH(QString, id);
    QFETCH(QString, name);
    QFETCH(QString, icon);
    QFETCH(QStringList, paths);
    QFETCH(bool, selected);

    CleanupSandbox sandbox;
    QStringList wanted;
    for (const QString& path : paths) {
        if (path == QLatin1String("TEMP"))
            wanted << sandbox.local(QStringLiteral("Temp"));
        else if (path.startsWith(QLatin1String("L:")))
            wanted << sandbox.local(path.mid(2));
        else if (path.startsWith(QLatin1String("R:")))
            wanted << sandbox.roaming(path.mid(2));
        else
            wanted << sandbox.machine(path);
    }

    CleanupScanner scanner;
    QCOMPARE(scanner.categories().size(), 11);
    const JunkCategory& c = scanner.categories().at(position);
    QCOMPARE(c.id, id);
    QCOMPARE(c.name, name);
    QCOMPARE(c.icon, icon);
    QCOMPARE(c.paths, wanted);
    QCOMPARE(c.selected, selected);
    QCOMPARE(c.size, 0);
}

// Folders are created below Local or Roaming AppData ("L:" / "R:" prefixes). "{0}" and "{1}" in
// the expected paths stand for the first and second profile in the order the file system lists
// the folder named in `listed`, since discovery keeps that order.
void tst_CleanupScanner::cacheDiscovery_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("listed");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("no Chrome: the Default cache as fallback")
        << int(ChromeCache) << QStringList() << QString() << QStringList({ "L:Google/Chrome/User Data/Default/Cache" });
    QTest::newRow("two profiles, each with Cache and Code Cache")
        << int(ChromeCache)
        << QStringList({ "L:Google/Chrome/User Data/Default/Cache", "L:Google/Chrome/User Data/Default/Code Cache",
               "L:Google/Chrome/User Data/Profile 1/Cache", "L:Google/Chrome/User Data/Profile 1/Code Cache" })
        << "L:Google/Chrome/User Data"
        << QStringList({ "L:Google/Chrome/User Data/{0}/Cache", "L:Google/Chrome/User Data/{0}/Code Cache",
               "L:Google/Chrome/User Data/{1}/Cache", "L:Google/Chrome/User Data/{1}/Code Cache" });
    QTest::newRow("cache names in their fixed order, whatever the creation order")
        << int(EdgeCache)
        << QStringList({ "L:Microsoft/Edge/User Data/Default/Service Worker/ScriptCache",
               "L:Microsoft/Edge/User Data/Default/Service Worker/CacheStorage",
               "L:Microsoft/Edge/User Data/Default/ShaderCache", "L:Microsoft/Edge/User Data/Default/GPUCache",
               "L:Microsoft/Edge/User Data/Default/Code Cache", "L:Microsoft/Edge/User Data/Default/Cache2",
               "L:Microsoft/Edge/User Data/Default/Cache", "L:Microsoft/Edge/User Data/Default/Media Cache" })
        << QString()
        << QStringList({ "L:Microsoft/Edge/User Data/Default/Cache", "L:Microsoft/Edge/User Data/Default/Cache2",
               "L:Microsoft/Edge/User Data/Default/Code Cache", "L:Microsoft/Edge/User Data/Default/GPUCache",
               "L:Microsoft/Edge/User Data/Default/ShaderCache",
               "L:Microsoft/Edge/User Data/Default/Service Worker/CacheStorage",
               "L:Microsoft/Edge/User Data/Default/Service Worker/ScriptCache" });
    QTest::newRow("channels in order: stable, Beta, Dev, SxS")
        << int(ChromeCache)
        << QStringList(
               { "L:Google/Chrome SxS/User Data/Default/Cache", "L:Google/Chrome Dev/User Data/Default/GPUCache",
                   "L:Google/Chrome Beta/User Data/Default/Cache", "L:Google/Chrome/User Data/System Profile/Cache" })
        << QString()
        << QStringList(
               { "L:Google/Chrome/User Data/System Profile/Cache", "L:Google/Chrome Beta/User Data/Default/Cache",
                   "L:Google/Chrome Dev/User Data/Default/GPUCache", "L:Google/Chrome SxS/User Data/Default/Cache" });
    QTest::newRow("profiles without caches: fallback")
        << int(EdgeCache) << QStringList({ "L:Microsoft/Edge/User Data/Default/Extensions" }) << QString()
        << QStringList({ "L:Microsoft/Edge/User Data/Default/Cache" });
    QTest::newRow("no Firefox caches: the whole profiles folder as fallback")
        << int(FirefoxCache) << QStringList({ "R:Mozilla/Firefox/Profiles/abc.default" }) << QString()
        << QStringList({ "R:Mozilla/Firefox/Profiles" });
    QTest::newRow("Firefox: every roaming cache first, then the local ones")
        << int(FirefoxCache)
        << QStringList(
               { "R:Mozilla/Firefox/Profiles/a.default/startupCache", "R:Mozilla/Firefox/Profiles/b.dev/shader-cache",
                   "R:Mozilla/Firefox/Profiles/b.dev/cache2", "L:Mozilla/Firefox/Profiles/a.default/cache2",
                   "L:Mozilla/Firefox/Profiles/b.dev/cache2", "L:Mozilla/Firefox/Profiles/b.dev/startupCache" })
        << "R:Mozilla/Firefox/Profiles"
        << QStringList({ "R:Mozilla/Firefox/Profiles/{0}/*", "R:Mozilla/Firefox/Profiles/{1}/*",
               "L:Mozilla/Firefox/Profiles/{0}/*", "L:Mozilla/Firefox/Profiles/{1}/*" });
    QTest::newRow("Firefox: a local profile without a roaming one is not looked at")
        << int(FirefoxCache) << QStringList({ "L:Mozilla/Firefox/Profiles/lonely/cache2" }) << QString()
        << QStringList({ "R:Mozilla/Firefox/Profiles" });
}

void tst_CleanupScanner::cacheDiscovery()
{
    QFETCH(int, category);
    QFETCH(QStringList, folders);
    QFETCH(QString, listed);
    QFETCH(QStringList, expected);

    CleanupSandbox sandbox;
    const auto resolve = [&](const QString& pattern) {
        const QString rest = pattern.mid(2);
        return pattern.startsWith(QLatin1String("L:")) ? sandbox.local(rest) : sandbox.roaming(rest);
    };
    for (const QString& folder : folders)
        QVERIFY(CleanupSandbox::makeFolder(resolve(folder)));

    QStringList profiles;
    if (!listed.isEmpty())
        profiles = QDir(resolve(listed)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);

    // A Firefox profile's caches keep the fixed name order "cache2", "startupCache", "shader-cache".
    const QStringList firefoxNames = { "cache2", "startupCache", "shader-cache" };
    QStringList wanted;
    for (QString pattern : expected) {
        for (int i = 0; i < profiles.size(); ++i)
            pattern.replace(QStringLiteral("{%1}").arg(i), profiles.at(i));
        if (!pattern.endsWith(QLatin1String("/*"))) {
            wanted << resolve(pattern);
            continue;
        }
        const QString profileFolder = resolve(pattern.chopped(2));
        for (const QString& name : firefoxNames) {
            if (QFileInfo(profileFolder + QLatin1Char('/') + name).isDir())
                wanted << profileFolder + QLatin1Char('/') + name;
        }
    }

    CleanupScanner scanner;
    QCOMPARE(scanner.categories().at(category).paths, wanted);
}

void tst_CleanupScanner::scanMeasuresEveryCategoryInOrder()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Temp/a.tmp"), 1000));
    QVERIFY(CleanupSandbox::writeFile(sandbox.local("Temp/nested/b.tmp"), 234));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Logs/CBS/CBS.log"), 500));
    // Named in the "logs" list beside its folder, yet only the temporary folder holding it counts it.
    QVERIFY(CleanupSandbox::writeSparse(sandbox.machine("C:/Windows/Temp/MRT.log"), 300'000'000));
    QVERIFY(CleanupSandbox::writeSparse(sandbox.machine("C:/Windows.old/Windows/big.bin"), 5'000'000'000));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/$Recycle.Bin/S-1-5-21/$R1.txt"), 77));
    QVERIFY(CleanupSandbox::writeFile(sandbox.local("CrashDumps/app.dmp"), 11));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Minidump/m.dmp"), 22));

    CleanupScanner scanner;
    QSignalSpy progress(&scanner, &CleanupScanner::scanProgress);
    QSignalSpy finished(&scanner, &CleanupScanner::scanFinished);
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(intsOf(progress), QList<int>({ 9, 18, 27, 36, 45, 54, 63, 72, 81, 90, 100 }));

    QList<qint64> sizes;
    for (const JunkCategory& c : scanner.categories())
        sizes << c.size;
    QCOMPARE(sizes, QList<qint64>({ 300'001'234, 0, 0, 0, 0, 500, 0, 0, 33, 77, 5'000'000'000 }));
}

void tst_CleanupScanner::rescanReplacesSizes()
{
    CleanupSandbox sandbox;
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/Prefetch/APP.pf"), 4096));
    CleanupScanner scanner;
    QSignalSpy finished(&scanner, &CleanupScanner::scanFinished);
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(scanner.categories().at(Prefetch).size, 4096);

    QVERIFY(QFile::remove(sandbox.machine("C:/Windows/Prefetch/APP.pf")));
    QVERIFY(CleanupSandbox::writeFile(sandbox.machine("C:/Windows/SoftwareDistribution/Download/kb.cab"), 10));
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 2, 10000);
    QCOMPARE(scanner.categories().at(Prefetch).size, 0);
    QCOMPARE(scanner.categories().at(WuCache).size, 10);
}

void tst_CleanupScanner::clean_data()
{
    QTest::addColumn<QList<int>>("positions");
    QTest::addColumn<QList<int>>("expectedProgress");
    QTest::addColumn<qint64>("expectedFreed");
    QTest::addColumn<bool>("prefetchEmptied");

    // Prefetch (6) holds 300 bytes, the update cache (1) holds 50.
    QTest::newRow("empty list") << QList<int>() << QList<int>() << qint64(0) << false;
    QTest::newRow("valid then out of range: one step at 50")
        << QList<int>({ 1, 99 }) << QList<int>({ 50 }) << qint64(50) << false;
    QTest::newRow("negative first: the step still counts")
        << QList<int>({ -1, 6 }) << QList<int>({ 100 }) << qint64(300) << true;
    QTest::newRow("only out of range") << QList<int>({ 11 }) << QList<int>() << qint64(0) << false;
    QTest::newRow("the same category twice frees once")
        << QList<int>({ 6, 6, 1 }) << QList<int>({ 33, 66, 100 }) << qint64(350) << true;
}

void tst_CleanupScanner::clean()
{
    QFETCH(QList<int>, positions);
    QFETCH(QList<int>, expectedProgress);
    QFETCH(qint64, expectedFreed);
    QFETCH(bool, prefetchEmptied);

    CleanupSandbox sandbox;
    const QString prefetch = sandbox.machine("C:/Windows/Prefetch");
    const QString download = sandbox.machine("C:/Windows/SoftwareDistribution/Download");
    QVERIFY(CleanupSandbox::writeFile(prefetch + "/A.pf", 100));
    QVERIFY(CleanupSandbox::writeFile(prefetch + "/sub/B.pf", 200));
    QVERIFY(CleanupSandbox::writeFile(download + "/kb.cab", 50));

    CleanupScanner scanner;
    QSignalSpy progress(&scanner, &CleanupScanner::cleanProgress);
    QSignalSpy finished(&scanner, &CleanupScanner::cleanFinished);
    scanner.clean(positions);
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).value<qint64>(), expectedFreed);
    QCOMPARE(intsOf(progress), expectedProgress);

    // The category folders themselves always stay.
    QVERIFY(QFileInfo(prefetch).isDir());
    QVERIFY(QFileInfo(download).isDir());
    QCOMPARE(
        QDir(prefetch).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System), prefetchEmptied);
}

void tst_CleanupScanner::cleanNeverFollowsLinks()
{
    CleanupSandbox sandbox;
    QVERIFY(sandbox.isValid());
    const QString temp = sandbox.machine("C:/Windows/Temp");
    QVERIFY(CleanupSandbox::writeFile(sandbox.outside("precious/keep.doc"), 7000));
    QVERIFY(CleanupSandbox::writeFile(sandbox.outside("precious/deeper/keep2.doc"), 3000));
    QVERIFY(CleanupSandbox::writeFile(temp + "/junk.tmp", 40));
    QVERIFY(CleanupSandbox::makeFolder(temp + "/sub"));
    QVERIFY(QFile::link(sandbox.outside("precious"), temp + "/linked-folder"));
    QVERIFY(QFile::link(sandbox.outside("precious/keep.doc"), temp + "/sub/linked-file"));

    CleanupScanner scanner;
    QSignalSpy scanned(&scanner, &CleanupScanner::scanFinished);
    scanner.scan();
    QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, 10000);
    QCOMPARE(scanner.categories().at(WinTemp).size, 40);

    QSignalSpy cleaned(&scanner, &CleanupScanner::cleanFinished);
    scanner.clean({ WinTemp });
    QTRY_COMPARE_WITH_TIMEOUT(cleaned.count(), 1, 10000);
    QCOMPARE(cleaned.at(0).at(0).value<qint64>(), 40);
    QVERIFY(!QFileInfo(temp + "/linked-folder").isSymLink());
    QVERIFY(!QFileInfo::exists(temp + "/sub"));
    QCOMPARE(QFileInfo(sandbox.outside("precious/keep.doc")).size(), 7000);
    QCOMPARE(QFileInfo(sandbox.outside("precious/deeper/keep2.doc")).size(), 3000);
}

void tst_CleanupScanner::undeletableFilesStayAndAreNotCounted()
{
    CleanupSandbox sandbox;
    const QString dumps = sandbox.local("CrashDumps");
    QVERIFY(CleanupSandbox::writeFile(dumps + "/gone.dmp", 100));
    QVERIFY(CleanupSandbox::writeFile(dumps + "/locked/stays.dmp", 900));
    UndeletableFolder lock(dumps + "/locked");
    if (!lock.isValid())
        QSKIP(qPrintable(lock.reason()));

    CleanupScanner scanner;
    QSignalSpy cleaned(&scanner, &CleanupScanner::cleanFinished);
    scanner.clean({ Dumps });
    QTRY_COMPARE_WITH_TIMEOUT(cleaned.count(), 1, 10000);
    QCOMPARE(cleaned.at(0).at(0).value<qint64>(), 100);
    QVERIFY(QFileInfo::exists(dumps + "/locked/stays.dmp"));
    QVERIFY(!QFileInfo::exists(dumps + "/gone.dmp"));
}

QTEST_GUILESS_MAIN(tst_CleanupScanner)
#include "tst_cleanupscanner.moc"
