#include <residue/residuescanner.h>

#include <platform/environment.h>
#include <platform/platform.h>
#include <support/currentmachine.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>
#include <tuple>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;

// Sparse: the scan reads sizes, never contents.
void blob(const QString& path, qint64 bytes)
{
    QVERIFY(testfiles::writeSized(path, bytes, true));
}

UninstalledApp uninstalled(const QString& name, const QString& publisher, const QString& location = QString())
{
    UninstalledApp app;
    std::tie(app.name, app.publisher, app.installLocation) = std::tie(name, publisher, location);
    return app;
}

} // namespace

class tst_ResidueScanner : public QObject {
    Q_OBJECT
    std::unique_ptr<CurrentMachine> m_machine;

    QString drive() const { return QFileInfo(m_machine->map("C:\\Windows")).path(); }
    QString roaming() const { return drive() + QStringLiteral("/Users/User/AppData/Roaming"); }
    QString local() const { return drive() + QStringLiteral("/Users/User/AppData/Local"); }
    QString programData() const { return drive() + QStringLiteral("/ProgramData"); }

    QList<ResidueItem> runScan(ResidueScanner& scanner, const std::function<void()>& start)
    {
        QSignalSpy finished(&scanner, &ResidueScanner::scanFinished);
        start();
        return arrived(finished, 10000) ? scanner.results() : QList<ResidueItem> {};
    }

    static const ResidueItem* find(const QList<ResidueItem>& items, const QString& path)
    {
        const auto it = std::find_if(items.begin(), items.end(), [&](const ResidueItem& i) { return i.path == path; });
        return it == items.end() ? nullptr : &*it;
    }

private slots:
    void initTestCase()
    {
        // The organisation folder in the application-data path must not move the scan off Roaming.
        QCoreApplication::setOrganizationName("Brightfen");
        QCoreApplication::setApplicationName("Norvale");
    }
    void init()
    {
        m_machine.reset();
        m_machine = std::make_unique<CurrentMachine>();
        QVERIFY(QDir().mkpath(drive()));
    }
    void cleanupTestCase() { m_machine.reset(); }

    void knownProgram_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("installed");
        QTest::addColumn<bool>("known");
        const auto row = [](const char* what, const char* folder, const char* installed, bool known) {
            QTest::newRow(what) << folder << installed << known;
        };
        row("folder holding a long first word", "GimpData", "GIMP 2.10", true);
        row("folder inside a long first word", "Inksc", "Inkscape 1.3", true);
        row("first word of three letters is too short", "vlc-old", "VLC media player", false);
        row("four letters inside a longer name", "Tool", "Sketch Tool Suite", false);
        row("five letters inside a longer name", "Tools", "Sketch Tools Suite", true);
        row("whole name, other case, spaces", " vlc MEDIA player ", "VLC media player", true);
        row("generic name", "Temp", "", true);
        row("generic names are equal, not contained", "TempestApp", "", false);
        row("protected name inside", "MyGoogleSync", "", true);
        row("protected vendor", "NVIDIA Corporation", "", true);
        row("nothing installed", "Spotify", "", false);
    }
    void knownProgram()
    {
        QFETCH(QString, folder);
        QFETCH(QString, installed);
        QTEST(ResidueScanner::isKnownProgram(folder, { installed, QString() }), "known");
    }

    void thresholds_data()
    {
        QTest::addColumn<QString>("where");
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<bool>("listed");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<int>("category");
        const auto row = [](const char* what, const char* where, qint64 bytes, bool listed, bool checked,
                             int category) { QTest::newRow(what) << where << bytes << listed << checked << category; };
        row("orphan below 512 KiB", "Roaming/Orphan", 512 * KiB - 1, false, false, 0);
        row("orphan at 512 KiB", "Roaming/Orphan", 512 * KiB, true, false, 0);
        row("orphan at 5 MiB", "Local/Orphan", 5 * MiB, true, false, 0);
        row("orphan above 5 MiB", "Local/Orphan", 5 * MiB + 1, true, true, 0);
        row("cache of 900 KiB", "Roaming/Inkscape/cache", 900 * KiB, false, false, 1);
        row("cache at 1 MiB", "Roaming/Inkscape/cache", 1 * MiB, true, false, 1);
        row("cache at 10 MiB", "Local/Inkscape/GPUCache", 10 * MiB, true, false, 1);
        row("cache above 10 MiB", "Local/Inkscape/Code Cache", 10 * MiB + 1, true, true, 1);
        row("logs", "Local/Inkscape/Logs", 2 * MiB, true, false, 2);
        row("crash dumps", "Local/Inkscape/CrashDumps", 2 * MiB, true, false, 3);
        row("cache of a protected vendor", "Local/NVIDIA Corporation/GLCache", 20 * MiB, false, false, 1);
        row("temp below 10 MiB", "Local/Temp", 10 * MiB - 1, false, false, 4);
        row("temp at 10 MiB", "Local/Temp", 10 * MiB, true, false, 4);
        row("windows temp above 10 MiB", "Windows/Temp", 10 * MiB + 1, true, true, 4);
        row("ProgramData orphan", "ProgramData/OldVendor", 1 * MiB, true, false, 0);
        row("ProgramData skip name inside", "ProgramData/Docker Desktop", 9 * MiB, false, false, 0);
        row("ProgramData skip name", "ProgramData/Package Cache", 9 * MiB, false, false, 0);
        row("skip names only apply to ProgramData", "Roaming/Docker Desktop", 9 * MiB, true, true, 0);
    }
    void thresholds()
    {
        NORVALE_SANDBOX_ONLY("lays out folders of known sizes in every place the scan reads");
        QFETCH(QString, where);
        QFETCH(qint64, bytes);
        const QString base = where.startsWith("Roaming") || where.startsWith("Local")
            ? drive() + "/Users/User/AppData/" + where
            : drive() + "/" + where;
        blob(base + "/data.bin", bytes);
        ResidueScanner scanner;
        scanner.setInstalledApps({ "Inkscape 1.3.2" }, { "Inkscape Project" });
        const QList<ResidueItem> items = runScan(scanner, [&] { scanner.scan(); });
        const ResidueItem* item = find(items, base);
        QTEST(item != nullptr, "listed");
        if (!item)
            return;
        QCOMPARE(item->size, bytes);
        QTEST(item->category, "category");
        QVERIFY(item->safe);
        QTEST(item->checked, "checked");
    }

    void globalScanOrderAndProgress()
    {
        NORVALE_SANDBOX_ONLY("lays out the only leftovers the scan may find");
        blob(roaming() + "/Small/a", 1 * MiB);
        blob(local() + "/Large/a", 8 * MiB);
        blob(programData() + "/Middle/a", 3 * MiB);
        ResidueScanner scanner;
        QSignalSpy progress(&scanner, &ResidueScanner::scanProgress);
        QSignalSpy finished(&scanner, &ResidueScanner::scanFinished);
        scanner.scan();
        QVERIFY(arrived(finished, 10000));
        QCOMPARE(finished.at(0).at(0).toLongLong(), 12 * MiB);
        QList<int> percents;
        for (const auto& args : progress)
            percents << args.at(0).toInt();
        QCOMPARE(percents, QList<int>({ 5, 20, 40, 55, 70, 88, 100 }));
        QCOMPARE(progress.at(1).at(1).toString(), QString("Scanning AppData/Local..."));
        QStringList names;
        for (const ResidueItem& item : scanner.results())
            names << item.name;
        QCOMPARE(names, QStringList({ "Large", "Middle", "Small" }));
    }

    void searchTerms_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("publisher");
        QTest::addColumn<QStringList>("terms");
        const auto row = [](const char* what, const QString& name, const char* publisher, const QStringList& terms) {
            QTest::newRow(what) << name << publisher << terms;
        };
        row("empty publisher", "Paint Studio", "", { "Paint Studio", "PaintStudio" });
        row("publisher's first word", "Figma Desktop", "Figma, Inc.", { "Figma Desktop", "Figma,", "FigmaDesktop" });
        row("leading space: the first word is empty", "Zed", " Acme", { "Zed" });
        row("short publisher word, short name", "Zed", "Ab Corp", { "Zed" });
        row("repeated term taken once", "Acme", "Acme Corp", { "Acme" });
        row("shared vendor folder", "Teams", "Microsoft Corporation", { "Teams" });
        row("generic name", "Temp", "", {});
        // Adversarial names from the registry: none may become a path.
        for (const QString& name : { QString(".."), QString(". . ."), QString("..\\..\\Windows"),
                 QString("Tool/../../x"), QString("C:"), QString("   "), QString("Tool") + QChar(0) })
            row(qPrintable("adversarial " + name), name, "   ", {});
    }
    void searchTerms()
    {
        QFETCH(QString, name);
        QFETCH(QString, publisher);
        QTEST(ResidueScanner::searchTerms(uninstalled(name, publisher)), "terms");
    }

    void scanForAppsFindsLeftoversButNeverARoot()
    {
        NORVALE_SANDBOX_ONLY("lays out the only leftovers the scan may find");
        blob(roaming() + "/Figma Desktop/Cache/f1", 2 * MiB);
        blob(local() + "/FigmaDesktop/app.log", 1 * KiB);
        QVERIFY(QDir().mkpath(programData() + "/Figma Desktop")); // empty: not a residue
        blob(drive() + "/Program Files/Paint Studio/plugins/f.dll", 3 * MiB);
        blob(local() + "/Temp/x.tmp", 4 * MiB);
        blob(roaming() + "/Precious/keep.doc", 1 * MiB);
        const QList<UninstalledApp> history = {
            uninstalled("Figma Desktop", ""),
            uninstalled("Paint Studio", "", "C:\\Program Files\\Paint Studio\\"),
            uninstalled("Profile", "", "C:\\Users\\User"),
            uninstalled("Drive", "", "C:\\"),
            uninstalled("Program Files", "", "C:/Program Files"),
            uninstalled("Climber", "", "C:\\Users\\User\\AppData\\Roaming\\Precious\\.."),
            uninstalled("Local", "", "C:\\Users\\User\\AppData\\Local\\Temp"),
        };
        ResidueScanner scanner;
        QSignalSpy progress(&scanner, &ResidueScanner::scanProgress);
        const QList<ResidueItem> items = runScan(scanner, [&] { scanner.scanForApps(history); });
        QCOMPARE(items.size(), 3);
        QCOMPARE(items.at(0).path, drive() + "/Program Files/Paint Studio");
        QCOMPARE(items.at(0).name, QString("Paint Studio (Install Dir)"));
        QVERIFY(!items.at(0).checked && !items.at(0).safe);
        QCOMPARE(items.at(1).path, roaming() + "/Figma Desktop");
        QVERIFY(items.at(1).checked && items.at(1).safe);
        QCOMPARE(items.at(2).path, local() + "/FigmaDesktop");
        QCOMPARE(items.at(2).name, QString("Figma Desktop"));
        QCOMPARE(progress.at(1).at(0).toInt(), 5 + 85 / 7);
        QCOMPARE(progress.at(1).at(1).toString(), QString("Scanning: Paint Studio..."));
        QCOMPARE(progress.last().at(0).toInt(), 100);
    }

    void allowedTargets_data()
    {
        QTest::addColumn<QString>("relative"); // "/…" is below the sandbox's C folder; "" is the drive root
        QTest::addColumn<int>("category");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("a program's folder") << "/Users/User/AppData/Roaming/App" << 0 << true;
        QTest::newRow("drive root") << "" << 0 << false;
        QTest::newRow("home") << "/Users/User" << 0 << false;
        QTest::newRow("Roaming, other case") << "/users/user/appdata/ROAMING" << 0 << false;
        QTest::newRow("ProgramData") << "/ProgramData/" << 0 << false;
        QTest::newRow("Program Files") << "/Program Files" << 0 << false;
        QTest::newRow("climbing back to Local") << "/Users/User/AppData/Local/App/.." << 0 << false;
        QTest::newRow("temp folder emptied") << "/Users/User/AppData/Local/Temp" << 4 << true;
        QTest::newRow("temp folder removed whole") << "/Users/User/AppData/Local/Temp" << 0 << false;
        QTest::newRow("Windows holds its temp") << "/Windows" << 4 << false;
        QTest::newRow("inside temp") << "/Windows/Temp/setup" << 0 << true;
        QTest::newRow("network share") << "\\\\server\\share\\App" << 0 << false;
        QTest::newRow("relative path") << "Relative/App" << 0 << false;
    }
    void allowedTargets()
    {
        NORVALE_SANDBOX_ONLY("checks paths of its own machine layout");
        QFETCH(QString, relative);
        QFETCH(int, category);
        ResidueScanner scanner;
        const QString path = relative.isEmpty() || relative.startsWith('/') ? drive() + relative : relative;
        QTEST(ResidueScanner::isAllowedTarget(path, category, scanner.roots()), "allowed");
    }

    // A link counts nothing and its target survives the clean; a loop does not trap the walk.
    void linksInsideResidue_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("folderStays");
        QTest::newRow("orphan removed whole") << "Users/User/AppData/Roaming/Orphan" << false;
        QTest::newRow("cache emptied") << "Users/User/AppData/Roaming/Inkscape/cache" << true;
    }
    void linksInsideResidue()
    {
        NORVALE_SANDBOX_ONLY("lays out links inside residue and cleans it");
        QFETCH(QString, folder);
        QFETCH(bool, folderStays);
        const QString path = drive() + "/" + folder;
        blob(path + "/data.bin", 2 * MiB);
        blob(m_machine->outside("precious.doc"), 7 * MiB);
        QVERIFY(QFile::link(m_machine->outside(), path + "/link"));
        QVERIFY(QFile::link(path, path + "/loop"));

        ResidueScanner scanner;
        scanner.setInstalledApps({ "Inkscape" }, {});
        const QList<ResidueItem> items = runScan(scanner, [&] { scanner.scan(); });
        const ResidueItem* item = find(items, path);
        QVERIFY(item);
        QCOMPARE(item->size, 2 * MiB);

        QSignalSpy progress(&scanner, &ResidueScanner::cleanProgress);
        QSignalSpy cleaned(&scanner, &ResidueScanner::cleanFinished);
        scanner.clean({ int(item - items.constData()), 99 });
        QVERIFY(arrived(cleaned, 10000));
        QCOMPARE(cleaned.at(0).at(0).toLongLong(), 2 * MiB);
        QCOMPARE(progress, QList<QVariantList>({ { 50 }, { 100 } }));
        QCOMPARE(QFileInfo(m_machine->outside("precious.doc")).size(), 7 * MiB);
        QCOMPARE(QFileInfo::exists(path), folderStays);
        if (folderStays)
            QVERIFY(QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
    }

    // Regression: an emptied folder larger than the scan's file budget reports all it gave back.
    void cleaningCountsEveryFileOfALargeCache()
    {
        NORVALE_SANDBOX_ONLY("cleans a cache it laid out");
        const QString cache = roaming() + "/Inkscape/cache";
        for (int i = 0; i < 3000; ++i) {
            blob(cache + QString("/f%1").arg(i), 1 * KiB);
            blob(cache + QString("/sub/f%1").arg(i), 1 * KiB);
        }
        ResidueScanner scanner;
        scanner.setInstalledApps({ "Inkscape" }, {});
        const QList<ResidueItem> items = runScan(scanner, [&] { scanner.scan(); });
        const ResidueItem* item = find(items, cache);
        QVERIFY(item);
        QCOMPARE(item->size, 5000 * KiB); // the scan's measure stops at its file budget
        QSignalSpy cleaned(&scanner, &ResidueScanner::cleanFinished);
        scanner.clean({ int(item - items.constData()) });
        QVERIFY(arrived(cleaned, 10000));
        QCOMPARE(cleaned.at(0).at(0).toLongLong(), 6000 * KiB);
        QVERIFY(QDir(cache).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
    }

    void stopEndsTheScanWithoutResults()
    {
        NORVALE_SANDBOX_ONLY("needs a scan made long by its own folders");
        for (int i = 0; i < 200; ++i)
            blob(roaming() + QString("/Orphan%1/a").arg(i), 1 * MiB);
        ResidueScanner scanner;
        QSignalSpy finished(&scanner, &ResidueScanner::scanFinished);
        scanner.scan();
        scanner.stopScan();
        QTRY_VERIFY_WITH_TIMEOUT(!scanner.isRunning(), 5000);
        QTest::qWait(50);
        QVERIFY(finished.isEmpty());
        // The next scan starts afresh.
        scanner.scan();
        QVERIFY(arrived(finished, 10000));
        QCOMPARE(scanner.results().size(), 200);
    }
};

QTEST_GUILESS_MAIN(tst_ResidueScanner)
#include "tst_residuescanner.moc"
