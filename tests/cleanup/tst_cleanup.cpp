#include "cleanup/cleanuppage.h"
#include "cleanup/cleanuprowwidget.h"
#include "cleanup/cleanupscanner.h"
#include "platform/forwardingplatform.h"
#include "support/currentmachine.h"
#include "support/forwardingfilesystem.h"
#include "support/labeltext.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <condition_variable>
#include <mutex>

#ifndef _WIN32
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;

// "C:/..." as the sandbox places it; "L:" and "R:" stand for Local and Roaming AppData.
QString machine(const CurrentMachine& m, const QString& path)
{
    if (path.startsWith(QLatin1String("L:")))
        return m.variable(L"LOCALAPPDATA") + QLatin1Char('/') + path.mid(2);
    if (path.startsWith(QLatin1String("R:")))
        return m.variable(L"APPDATA") + QLatin1Char('/') + path.mid(2);
    return m.map(path);
}

// The sandbox's file system with a gate in emptyFolder(): a test holds a clean there for as long
// as it likes, and every measuring that happens meanwhile (a scan) is counted as an overlap.
class GatedFileSystem final : public ForwardingFileSystem {
public:
    using ForwardingFileSystem::ForwardingFileSystem;

    std::int64_t folderSize(const std::wstring& folder) override
    {
        if (m_emptying > 0)
            ++overlaps;
        return ForwardingFileSystem::folderSize(folder);
    }
    platform::EmptyFolderResult emptyFolder(const std::wstring& folder) override
    {
        ++m_emptying;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_held = m_holding;
            m_changed.wait(lock, [this] { return !m_holding; });
        }
        const platform::EmptyFolderResult result = ForwardingFileSystem::emptyFolder(folder);
        --m_emptying;
        return result;
    }

    void hold(bool on)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_holding = on;
        m_changed.notify_all();
    }
    bool held()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_held;
    }

    std::atomic<int> overlaps { 0 };

private:
    std::atomic<int> m_emptying { 0 };
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_holding = false;
    bool m_held = false;
};

class GatedPlatform final : public platform::ForwardingPlatform {
public:
    explicit GatedPlatform(platform::Platform& inner)
        : ForwardingPlatform(inner)
        , files(inner)
    {
        platform::setCurrent(this);
    }
    ~GatedPlatform() override { platform::setCurrent(&inner()); }

    platform::FileSystem& fileSystem() override { return files; }
    GatedFileSystem files;
};

enum Category { WuCache = 1, Chrome, Firefox = 4, Prefetch = 6, Dumps = 8 };

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
#ifdef _WIN32
    Q_UNUSED(folder);
    Q_UNUSED(on);
    return false;
#else
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
#endif
}

} // namespace

class tst_Cleanup : public QObject {
    Q_OBJECT
    static QPushButton* button(QWidget& w, const char* name) { return w.findChild<QPushButton*>(QLatin1String(name)); }
    static bool progressShown(QWidget& w) { return !w.findChild<QProgressBar*>("CleanupProgress")->isHidden(); }
private slots:

    // Each place holds a different power of two, so every sum shows exactly which places were counted.
    void scanMeasuresEveryPlaceOnce()
    {
        NORVALE_SANDBOX_ONLY("puts junk of known sizes in every place the scan measures");
        CurrentMachine sandbox;
        const QStringList places = { "C:/Windows/Temp/a", "L:Temp/nested/b",
            "C:/Windows/SoftwareDistribution/Download/c", "L:Google/Chrome/User Data/Default/Cache/d",
            "L:Microsoft/Edge/User Data/Default/Cache/e", "R:Mozilla/Firefox/Profiles/x.default/cache2/f",
            "C:/Windows/Logs/CBS/g", "C:/Windows/Prefetch/h", "L:Microsoft/Windows/Explorer/i", "L:CrashDumps/j",
            "C:/ProgramData/Microsoft/Windows/WER/ReportQueue/k", "C:/Windows/Minidump/l", "C:/$Recycle.Bin/S-1-5-21/m",
            "C:/Windows.old/Windows/n",
            // Listed under logs beside its folder, yet counted only by the temporary folder holding it.
            "C:/Windows/Temp/MRT.log" };
        // Real bytes, a few KiB in all: the sums prove which places counted without sparse giants.
        const auto bit = [](int i) { return qint64(1) << i; };
        for (int i = 0; i < places.size(); ++i)
            QVERIFY(testfiles::writeSized(machine(sandbox, places.at(i)), bit(i)));
        QVERIFY(testfiles::writeSized(sandbox.outside("big.doc"), 1 << 20, true));
        QVERIFY(QFile::link(sandbox.outside(""), machine(sandbox, "C:/Windows/Temp/link-out")));

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
    void cacheDiscovery_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QStringList>("expected");

        const auto reversed = [](const QStringList& list) { return QStringList(list.rbegin(), list.rend()); };
        const QString chrome = "L:Google/Chrome%1/User Data/%2/%3";
        const QString ffR = "R:Mozilla/Firefox/Profiles/", ffL = "L:Mozilla/Firefox/Profiles/";
        const QStringList chromes
            = { chrome.arg("", "{0}", "Cache"), chrome.arg("", "{0}", "Code Cache"), chrome.arg("", "{1}", "Cache"),
                  chrome.arg("", "{1}", "Code Cache"), chrome.arg(" Beta", "Default", "Cache"),
                  chrome.arg(" Dev", "Default", "GPUCache"), chrome.arg(" SxS", "Default", "Cache") };
        QTest::newRow("channels stable, Beta, Dev, SxS; profiles as listed")
            << int(Chrome) << reversed(chromes) << chromes;
        QStringList firefox;
        for (const char* p : { "{0}/", "{1}/" })
            firefox << ffR + p + "cache2" << ffR + p + "startupCache" << ffR + p + "shader-cache";
        firefox << ffL + "{0}/cache2" << ffL + "{1}/cache2";
        // A local profile without a roaming one is never looked at.
        QTest::newRow("Firefox: roaming caches in name order, then the local ones")
            << int(Firefox) << reversed(firefox) + QStringList { ffL + "lonely/cache2" } << firefox;
    }

    void cacheDiscovery()
    {
        NORVALE_SANDBOX_ONLY("lays out browser profiles of its own");
        QFETCH(int, category);
        QFETCH(QStringList, folders);
        QFETCH(QStringList, expected);
        CurrentMachine sandbox;
        for (QString folder : folders)
            QVERIFY(QDir().mkpath(machine(sandbox, folder.replace("{0}", "Default").replace("{1}", "Profile 1"))));
        const QString first = expected.filter("{0}").value(0);
        const QStringList profiles = first.isEmpty()
            ? QStringList()
            : QDir(machine(sandbox, first.left(first.indexOf("/{0}"))))
                  .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
        QStringList wanted;
        for (QString path : expected)
            wanted << machine(sandbox,
                profiles.isEmpty() ? path : path.replace("{0}", profiles.at(0)).replace("{1}", profiles.at(1)));
        QCOMPARE(CleanupScanner().categories().at(category).paths, wanted);
    }

    void clean_data()
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
        QTest::newRow("a locked file stays and is not counted")
            << QList<int>({ Dumps }) << QList<int>({ 100 }) << qint64(1000) << false;
    }

    // Links in Prefetch lead outside the machine: they must go as links, without a byte of their
    // targets counted or deleted.
    void clean()
    {
        NORVALE_SANDBOX_ONLY("cleans junk it laid out, links to outside folders among it");
        QFETCH(QList<int>, positions);
        QFETCH(QList<int>, expectedProgress);
        QFETCH(qint64, expectedFreed);
        QFETCH(bool, prefetchEmptied);
        CurrentMachine sandbox;
        const QString prefetch = machine(sandbox, "C:/Windows/Prefetch"), dumps = machine(sandbox, "L:CrashDumps");
        const QString precious = sandbox.outside("precious/deeper/keep.doc");
        const QList<QPair<QString, int>> files = { { prefetch + "/A.pf", 100 }, { prefetch + "/sub/B.pf", 200 },
            { machine(sandbox, "C:/Windows/SoftwareDistribution/Download/kb.cab"), 50 }, { dumps + "/gone.dmp", 1000 },
            { dumps + "/locked/stays.dmp", 9000 }, { precious, 7000 } };
        for (const auto& [path, bytes] : files)
            QVERIFY(testfiles::writeSized(path, bytes));
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
        QVERIFY(QFileInfo(prefetch).isDir()); // the category folder itself always stays
    }

    // With no cache folder at start-up the row lists the profiles folder, yet a profile holds
    // bookmarks, passwords and keys: only cache2, startupCache and shader-cache inside a profile
    // may be measured or emptied. Entries are "path:bytes" below the profiles folder; a path
    // ending in "->" is a link to a folder outside the machine that holds 16000 bytes.
    void firefoxFallbackReachesOnlyCaches_data()
    {
        QTest::addColumn<QStringList>("atStart");
        QTest::addColumn<QStringList>("later"); // made after the table was built
        QTest::addColumn<qint64>("cacheBytes");

        const QStringList profile = { "x.default/places.sqlite:100", "x.default/key4.db:200",
            "x.default/storage/default/idb.sqlite:400", "stray.txt:800" };
        QTest::newRow("no cache anywhere: nothing counted, nothing deleted") << profile << QStringList() << qint64(0);
        QTest::newRow("caches made later are the only thing emptied")
            << profile
            << QStringList { "x.default/cache2/entries/A:1000", "y.other/startupCache/s.bin:2000",
                   "y.other/shader-cache/s.bin:4000", "y.other/cache2x/not-a-cache:8000", "y.other/prefs.js:16" }
            << qint64(7000);
        QTest::newRow("a cache folder that is a link is not entered")
            << profile << QStringList { "x.default/cache2->" } << qint64(0);
    }

    void firefoxFallbackReachesOnlyCaches()
    {
        NORVALE_SANDBOX_ONLY("lays out and cleans Firefox profiles of its own");
        QFETCH(QStringList, atStart);
        QFETCH(QStringList, later);
        QFETCH(qint64, cacheBytes);
        CurrentMachine sandbox;
        const QString profiles = machine(sandbox, "R:Mozilla/Firefox/Profiles");
        const QString outside = sandbox.outside("elsewhere/precious.bin");
        QVERIFY(testfiles::writeSized(outside, 16000));
        const auto make = [&](const QStringList& entries) {
            for (const QString& entry : entries) {
                if (entry.endsWith("->")) {
                    const QString link = profiles + '/' + entry.chopped(2);
                    QVERIFY(QDir().mkpath(QFileInfo(link).path()) && QFile::link(QFileInfo(outside).path(), link));
                } else {
                    QVERIFY(testfiles::writeSized(
                        profiles + '/' + entry.section(':', 0, 0), entry.section(':', 1).toInt()));
                }
            }
        };
        make(atStart);
        CleanupScanner scanner;
        QCOMPARE(scanner.categories().at(Firefox).paths, QStringList { profiles });
        make(later);

        QSignalSpy scanned(&scanner, &CleanupScanner::scanFinished);
        scanner.scan();
        QTRY_COMPARE_WITH_TIMEOUT(scanned.count(), 1, 10000);
        QCOMPARE(scanner.categories().at(Firefox).size, cacheBytes);

        QSignalSpy cleaned(&scanner, &CleanupScanner::cleanFinished);
        scanner.clean({ Firefox });
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.count(), 1, 10000);
        QCOMPARE(cleaned.at(0).at(0).value<qint64>(), cacheBytes);
        for (const QString& entry : atStart + later) {
            const QString path = profiles + '/' + entry.section(':', 0, 0).remove("->");
            const bool cache
                = QRegularExpression("^[^/]+/(cache2|startupCache|shader-cache)/.").match(entry).hasMatch();
            QVERIFY2(QFileInfo::exists(path) != cache, qPrintable(entry));
        }
        QVERIFY(QFileInfo::exists(profiles + "/x.default/cache2") || !later.join(' ').contains("cache2/"));
        QCOMPARE(QFileInfo(outside).size(), 16000);
    }

    void rowSizeAndColours_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("colours"); // of the text, then of the bar
        QTest::addColumn<int>("bar");

        const QString blue = "#2563eb/#3b82f6", amber = "#d97706/#f59e0b", red = "#dc2626/#ef4444";
        QTest::newRow("exactly 200 MiB is blue") << 200 * MiB << "200 MB" << blue << 19;
        QTest::newRow("one byte more is amber") << 200 * MiB + 1 << "200 MB" << amber << 19;
        QTest::newRow("exactly 800 MiB is amber") << 800 * MiB << "800 MB" << amber << 78;
        QTest::newRow("one byte more is red") << 800 * MiB + 1 << "800 MB" << red << 78;
        QTest::newRow("1 GiB has one decimal") << GiB << "1.0 GB" << red << 100;
    }

    void rowSizeAndColours()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, colours);
        CleanupRowWidget row({ "prefetch", "Prefetch", "⚡", { "C:/Windows/Prefetch" }, 0, true });
        row.setSize(bytes);
        auto* label = row.findChild<QLabel*>("CleanupRowSize");
        QTEST(label->text(), "text");
        QVERIFY(label->styleSheet().contains("color:" + colours.section('/', 0, 0) + ';'));
        auto* bar = row.findChild<QProgressBar*>("CleanupRowBar");
        QVERIFY(bar->styleSheet().contains("::chunk { background:" + colours.section('/', 1) + ';'));
        QTEST(bar->value(), "bar");
    }

    void headerTotal_data()
    {
        QTest::addColumn<qint64>("bytes");
        // The circle, the total in the status line, and what the selected half would free.
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("one byte under 1 GiB stays in M") << GiB - 1 << QStringList { "1024M", "1024 MB", "512 MB" };
        QTest::newRow("exactly 1 GiB switches to G") << GiB << QStringList { "1.0G", "1.0 GB", "512 MB" };
    }

    void headerTotal()
    {
        NORVALE_SANDBOX_ONLY("needs the scan to find exactly the junk it laid out");
        QFETCH(qint64, bytes);
        QFETCH(QStringList, texts);
        CurrentMachine sandbox;
        QVERIFY(testfiles::writeSized(machine(sandbox, "C:/Windows/Prefetch/a.pf"), bytes / 2, true));
        QVERIFY(testfiles::writeSized(machine(sandbox, "C:/Windows.old/b.bin"), bytes - bytes / 2, true));
        CleanupPage page(nullptr);
        QSignalSpy finished(page.scanner(), &CleanupScanner::scanFinished);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        QTRY_COMPARE(labelText(page, "CleanupTotalLabel"), texts.at(0));
        QCOMPARE(labelText(page, "CleanupStatusDetail"), "发现 11 类可清理文件，共 " + texts.at(1));
        QCOMPARE(labelText(page, "CleanupSummaryLine"), "已选 8 类  ·  预计释放 " + texts.at(2));
    }

    void selectAllThenCleanNothing()
    {
        NORVALE_SANDBOX_ONLY("needs the scan to find exactly the junk it laid out");
        CurrentMachine sandbox;
        QVERIFY(testfiles::writeSized(machine(sandbox, "C:/Windows/Prefetch/a.pf"), 3 * MiB));
        CleanupPage page(nullptr);
        QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
        QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
        QPushButton* selectAll = button(page, "CleanupSelectAllButton");
        const QList<CleanupRowWidget*> rows = page.findChildren<CleanupRowWidget*>();
        const auto selected
            = [&] { return int(std::count_if(rows.begin(), rows.end(), [](auto* r) { return r->isSelected(); })); };
        QCOMPARE(selected(), 8);
        QTest::mouseClick(selectAll, Qt::LeftButton);
        QCOMPARE(selected(), 11);
        QTest::mouseClick(selectAll, Qt::LeftButton);
        QCOMPARE(selected(), 0);
        // One unselected row is enough for the button to select all again.
        QTest::mouseClick(selectAll, Qt::LeftButton);
        QTest::mouseClick(rows.at(4), Qt::LeftButton);
        QTest::mouseClick(selectAll, Qt::LeftButton);
        QCOMPARE(selected(), 11);
        QTest::mouseClick(selectAll, Qt::LeftButton);

        QPushButton* clean = button(page, "CleanupCleanButton");
        QTRY_VERIFY_WITH_TIMEOUT(scanned.count() == 1 && clean->isEnabled(), 10000);
        QTest::mouseClick(clean, Qt::LeftButton);
        // A clean started by mistake would report from the pool after a moment, not at once.
        QTest::qWait(1500);
        QVERIFY(!progressShown(page));
        QCOMPARE(cleaned.count(), 0);
        QVERIFY(clean->isEnabled());
        QVERIFY(QFileInfo::exists(machine(sandbox, "C:/Windows/Prefetch/a.pf")));
    }

    // The clean button is back as soon as a clean ends; a clean started before the follow-up scan
    // pushes that scan past its own end, so the two never work at the same time.
    void cleanAgainBeforeTheRescan()
    {
        NORVALE_SANDBOX_ONLY("cleans junk it laid out");
        CurrentMachine sandbox;
        GatedPlatform gated(sandbox.platform());
        const QString prefetch = machine(sandbox, "C:/Windows/Prefetch");
        QVERIFY(testfiles::writeSized(prefetch + "/a.pf", 3000));
        CleanupPage page(nullptr);
        QSignalSpy scanned(page.scanner(), &CleanupScanner::scanFinished);
        QSignalSpy cleaned(page.scanner(), &CleanupScanner::cleanFinished);
        QPushButton* clean = button(page, "CleanupCleanButton");
        QTRY_VERIFY_WITH_TIMEOUT(scanned.count() == 1 && clean->isEnabled(), 10000);

        QTest::mouseClick(clean, Qt::LeftButton);
        // The spy counts in the pool thread; the hidden bar shows the page has handled the end too.
        QTRY_VERIFY_WITH_TIMEOUT(cleaned.count() == 1 && !progressShown(page), 10000);
        QVERIFY(clean->isEnabled());

        QVERIFY(testfiles::writeSized(prefetch + "/b.pf", 5000));
        gated.files.hold(true);
        const auto release = qScopeGuard([&] { gated.files.hold(false); });
        QTest::mouseClick(clean, Qt::LeftButton);
        QVERIFY(!clean->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(gated.files.held(), 10000);
        QTest::qWait(1200); // well past the moment the rescan was due
        QCOMPARE(scanned.count(), 1);
        gated.files.hold(false);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.count(), 2, 10000);
        QCOMPARE(cleaned.at(1).at(0).value<qint64>(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(scanned.count() == 2 && clean->isEnabled(), 10000);
        QCOMPARE(gated.files.overlaps.load(), 0);
    }
};

QTEST_MAIN(tst_Cleanup)
#include "tst_cleanup.moc"
