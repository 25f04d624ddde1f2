#include "browserext/browserextscanner.h"
#include "extmachine.h"

#include <QCoreApplication>
#include <QTest>

namespace {

const QString Id = QStringLiteral("aaaabbbbccccddddeeeeffffgggghhhh");
const QString ChromeData = QStringLiteral("Google/Chrome/User Data");
const QString BetaData = QStringLiteral("Google/Chrome Beta/User Data");
const QString EdgeData = QStringLiteral("Microsoft/Edge/User Data");

QByteArray manifestNamed(const char* name)
{
    return QByteArray("{\"name\":\"") + name + "\",\"version\":\"1.0\"}";
}

QList<BrowserExt> scan()
{
    BrowserExtScanner scanner;
    QList<BrowserExt> result;
    QObject receiver;
    QObject::connect(
        &scanner, &BrowserExtScanner::scanDone, &receiver, [&result](const QList<BrowserExt>& list) { result = list; });
    scanner.start();
    scanner.wait();
    QCoreApplication::processEvents();
    return result;
}

QStringList keys(const QList<BrowserExt>& list)
{
    QStringList out;
    for (const BrowserExt& ext : list)
        out.append(ext.browser + QLatin1Char('|') + ext.id);
    return out;
}

} // namespace

class tst_BrowserExtScanner : public QObject {
    Q_OBJECT

    // <local>/<userData>/<profile>/Extensions/<id>/<version>/<file>
    static QString extFile(ExtMachine& m, const QString& userData, const QString& profile, const QString& id,
        const QString& version, const QString& file)
    {
        return m.local(QStringLiteral("%1/%2/Extensions/%3/%4/%5").arg(userData, profile, id, version, file));
    }

private slots:
    void deduplicatesByBrowserAndId_data()
    {
        QTest::addColumn<QStringList>("places"); // "userData|profile"
        QTest::addColumn<QStringList>("expected");
        const QString chrome = QStringLiteral("Google Chrome|") + Id, edge = QStringLiteral("Microsoft Edge|") + Id;
        QTest::newRow("two Chrome profiles give one entry")
            << QStringList { ChromeData + "|Default", ChromeData + "|Profile 1" } << QStringList { chrome };
        QTest::newRow("Chrome and Chrome Beta give one entry")
            << QStringList { ChromeData + "|Default", BetaData + "|Default" } << QStringList { chrome };
        QTest::newRow("Chrome and Edge give two, Chrome first")
            << QStringList { EdgeData + "|Default", ChromeData + "|Default" } << QStringList { chrome, edge };
    }
    void deduplicatesByBrowserAndId()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QStringList, places);
        ExtMachine m;
        for (const QString& place : places) {
            const QStringList parts = place.split(QLatin1Char('|'));
            QVERIFY(m.write(extFile(m, parts[0], parts[1], Id, "1.0_0", "manifest.json"), manifestNamed("One")));
        }
        QTEST(keys(scan()), "expected");
    }

    // Settings entries the user did not install from a store are not listed.
    void followsPreferenceSettings_data()
    {
        QTest::addColumn<QByteArray>("preferences");
        QTest::addColumn<bool>("listed");
        const QByteArray head = "{\"extensions\":{\"settings\":{\"" + Id.toLatin1() + "\":";
        QTest::newRow("store install, location 1") << head + "{\"location\":1}}}}" << true;
        QTest::newRow("unpacked, location 4") << head + "{\"location\":4}}}}" << false;
        QTest::newRow("external component, location 10") << head + "{\"location\":10}}}}" << false;
        QTest::newRow("default-installed without update URL")
            << head + "{\"was_installed_by_default\":true}}}}" << false;
        QTest::newRow("default-installed that updates from a store")
            << head + "{\"was_installed_by_default\":true,\"update_url\":\"https://u.example/x\"}}}}" << true;
        QTest::newRow("settings of the wrong type") << QByteArray("{\"extensions\":{\"settings\":\"x\"}}") << true;
        QTest::newRow("truncated Preferences") << head.left(head.size() - 4) << true;
    }
    void followsPreferenceSettings()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QByteArray, preferences);
        QFETCH(bool, listed);
        ExtMachine m;
        QVERIFY(m.write(extFile(m, ChromeData, "Default", Id, "1.0_0", "manifest.json"), manifestNamed("One")));
        QVERIFY(m.write(m.local(ChromeData + "/Default/Preferences"), preferences));
        QCOMPARE(scan().size(), listed ? 1 : 0);
    }

    void usesTheHighestVersionFolder_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("expected");
        QTest::newRow("numeric, not text, order") << QStringList { "1.10.0_0", "1.9.0_0" } << "1.10.0_0";
        QTest::newRow("a prefix is smaller") << QStringList { "2.0.1", "2.0" } << "2.0.1";
        QTest::newRow("odd names count as zero") << QStringList { "Temp", "0.5_0", "..." } << "0.5_0";
    }
    void usesTheHighestVersionFolder()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QStringList, folders);
        ExtMachine m;
        // No "version" in the manifests: the chosen folder's name shows through.
        for (const QString& folder : folders)
            QVERIFY(m.write(extFile(m, ChromeData, "Default", Id, folder, "manifest.json"), "{\"name\":\"N\"}"));
        const QList<BrowserExt> list = scan();
        QCOMPARE(list.size(), 1);
        QTEST(list[0].version, "expected");
    }

    void resolvesNamesAndDescriptions_data()
    {
        QTest::addColumn<QByteArray>("manifest");
        QTest::addColumn<QStringList>("localeFiles"); // "locale|messages.json text"
        QTest::addColumn<QString>("name");
        const QStringList none;
        QTest::newRow("message key matched ignoring case")
            << QByteArray("{\"name\":\"__MSG_appName__\",\"description\":\"__MSG_appDesc__\"}")
            << QStringList { "en|{\"APPNAME\":{\"message\":\"Ad Shield\"}}" } << "Ad Shield";
        QTest::newRow("default locale first")
            << QByteArray("{\"name\":\"__MSG_name__\",\"default_locale\":\"zh_CN\"}")
            << QStringList { "en|{\"name\":{\"message\":\"Translate\"}}", "zh_CN|{\"name\":{\"message\":\"翻译\"}}" }
            << "翻译";
        QTest::newRow("English when the default locale is missing")
            << QByteArray("{\"name\":\"__MSG_name__\",\"default_locale\":\"de\"}")
            << QStringList { "en|{\"name\":{\"message\":\"Notes\"}}" } << "Notes";
        QTest::newRow("a locale that climbs is not followed")
            << QByteArray("{\"name\":\"__MSG_name__\",\"default_locale\":\"../../x\"}")
            << QStringList { "en|{\"name\":{\"message\":\"Safe\"}}" } << "Safe";
        QTest::newRow("no messages file gives the ID") << QByteArray("{\"name\":\"__MSG_appName__\"}") << none << Id;
        QTest::newRow("byte-order mark before the manifest")
            << QByteArray("\xEF\xBB\xBF{\"name\":\"Marked\"}") << none << "Marked";
        QTest::newRow("malformed manifest lists the ID") << QByteArray("{\"name\":") << none << Id;
    }
    void resolvesNamesAndDescriptions()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QByteArray, manifest);
        QFETCH(QStringList, localeFiles);
        ExtMachine m;
        QVERIFY(m.write(extFile(m, ChromeData, "Default", Id, "3.1_0", "manifest.json"), manifest));
        for (const QString& entry : localeFiles) {
            const QString locale = entry.section(QLatin1Char('|'), 0, 0);
            QVERIFY(m.write(extFile(m, ChromeData, "Default", Id, "3.1_0", "_locales/" + locale + "/messages.json"),
                entry.section(QLatin1Char('|'), 1).toUtf8()));
        }
        // What a climbing locale would reach: it must not be read.
        QVERIFY(m.write(
            extFile(m, ChromeData, "Default", Id, "3.1_0", "x/messages.json"), "{\"name\":{\"message\":\"Escaped\"}}"));
        const QList<BrowserExt> list = scan();
        QCOMPARE(list.size(), 1);
        QTEST(list[0].name, "name");
        QCOMPARE(list[0].description, QString()); // an unresolved key is not shown
        QVERIFY(list[0].enabled);
    }

    void skipsThemesAndFoldersWithoutManifest()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        ExtMachine m;
        QVERIFY(m.write(extFile(m, ChromeData, "Default", "theme", "1_0", "manifest.json"),
            "{\"name\":\"Dark\",\"theme\":{\"colors\":{}}}"));
        QVERIFY(QDir().mkpath(extFile(m, ChromeData, "Default", "nomanifest", "1_0", "")));
        QVERIFY(QDir().mkpath(extFile(m, ChromeData, "Default", "noversion", "", "")));
        QVERIFY(m.write(extFile(m, ChromeData, "Default", Id, "1_0", "manifest.json"), manifestNamed("Kept")));
        QCOMPARE(keys(scan()), QStringList { "Google Chrome|" + Id });
    }

    void choosesChromiumIcons_data()
    {
        QTest::addColumn<QByteArray>("icons");
        QTest::addColumn<QString>("expected"); // relative to the version folder
        QTest::newRow("48 before 128") << QByteArray("{\"128\":\"i128.png\",\"48\":\"i48.png\"}") << "i48.png";
        QTest::newRow("a missing file is passed over")
            << QByteArray("{\"48\":\"gone.png\",\"128\":\"i128.png\",\"32\":\"i32.png\"}") << "i128.png";
        QTest::newRow("a path that climbs out") << QByteArray("{\"48\":\"../../../../../outside.png\"}") << "";
        QTest::newRow("icons as an array") << QByteArray("[\"i48.png\"]") << "";
    }
    void choosesChromiumIcons()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QByteArray, icons);
        QFETCH(QString, expected);
        ExtMachine m;
        const QString manifest = extFile(m, ChromeData, "Default", Id, "1_0", "manifest.json");
        QVERIFY(m.write(manifest, "{\"name\":\"I\",\"icons\":" + icons + "}"));
        const QString folder = QFileInfo(manifest).absolutePath();
        for (const char* file : { "i16.png", "i32.png", "i48.png", "i64.png", "i128.png" })
            QVERIFY(m.write(folder + "/" + file, "png"));
        QVERIFY(m.write(QDir::cleanPath(folder + "/../../../../../outside.png"), "png"));
        const QList<BrowserExt> list = scan();
        QCOMPARE(list.size(), 1);
        QCOMPARE(list[0].iconPath, expected.isEmpty() ? QString() : folder + "/" + expected);
    }

    void readsFirefoxAddons_data()
    {
        QTest::addColumn<QByteArray>("addon");
        QTest::addColumn<bool>("listed");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("name");
        // The add-on's fields after its ID; "listed" false ignores the last two columns.
        const auto row = [](const char* what, const QByteArray& fields, bool listed, bool enabled, const char* name) {
            QTest::newRow(what) << "{\"id\":\"a@x\"," + fields + "}" << listed << enabled << QString(name);
        };
        row("active extension", R"("type":"extension","active":true,"defaultLocale":{"name":"Grabber"})", true, true,
            "Grabber");
        row("inactive for another reason is listed disabled",
            R"("type":"extension","active":false,"defaultLocale":{"name":"G"})", true, false, "G");
        row("no name gives the ID", R"("type":"extension")", true, true, "a@x");
        row("disabled by the user", R"("type":"extension","userDisabled":true)", false, false, "");
        row("pending uninstall", R"("type":"extension","pendingUninstall":true)", false, false, "");
        row("theme", R"("type":"theme")", false, false, "");
        row("built in", R"("type":"extension","location":"app-builtin")", false, false, "");
    }
    void readsFirefoxAddons()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QByteArray, addon);
        QFETCH(bool, listed);
        ExtMachine m;
        QVERIFY(
            m.write(m.roaming("Mozilla/Firefox/Profiles/p1.default/extensions.json"), "{\"addons\":[" + addon + "]}"));
        const QList<BrowserExt> list = scan();
        QCOMPARE(list.size(), listed ? 1 : 0);
        if (listed) {
            QCOMPARE(list[0].browser, QStringLiteral("Mozilla Firefox"));
            QTEST(list[0].enabled, "enabled");
            QTEST(list[0].name, "name");
        }
    }

    void choosesTheLargestFirefoxIcon_data()
    {
        QTest::addColumn<QByteArray>("icons");
        QTest::addColumn<QString>("expected"); // "@" stands for the add-on's unpacked folder
        QTest::addColumn<QString>("root");
        const auto row
            = [](const char* what, const QByteArray& icons, const char* expected, const char* root = "machine") {
                  QTest::newRow(what) << icons << QString(expected) << QString(root);
              };
        row("largest size wins", "{\"32\":\"/i/32.png\",\"96\":\"/i/96.png\",\"64\":\"/i/64.png\"}", "/i/96.png");
        row("keys that are no sizes are never chosen",
            "{\"big\":\"/i/big.png\",\"-500\":\"/i/neg.png\",\"16\":\"/i/16.png\"}", "/i/16.png");
        row("jar URL is not usable", "{\"48\":\"/i/48.png\",\"64\":\"jar:file:///x.xpi!/i.png\"}", "");
        row("relative to the unpacked add-on", "{\"48\":\"icons/48.png\"}", "@/icons/48.png");
        // On Windows the variable reads C:\Users\...: the profile path is not clean.
        row("relative, below a roaming folder that is not clean", "{\"48\":\"icons/48.png\"}", "@/icons/48.png",
            "x//machine");
        row("relative path that climbs", "{\"48\":\"../../extensions.json\"}", "");
    }
    void choosesTheLargestFirefoxIcon()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        QFETCH(QByteArray, icons);
        QFETCH(QString, expected);
        QFETCH(QString, root);
        ExtMachine m(root);
        const QString profile = m.roaming("Mozilla/Firefox/Profiles/p1.default");
        QVERIFY(m.write(profile + "/extensions/a@x/icons/48.png", "png"));
        QVERIFY(m.write(profile + "/extensions.json",
            "{\"addons\":[{\"id\":\"a@x\",\"type\":\"extension\",\"icons\":" + icons + "}]}"));
        const QList<BrowserExt> list = scan();
        QCOMPARE(list.size(), 1);
        QCOMPARE(list[0].iconPath,
            QDir::cleanPath(QString(expected).replace(QLatin1Char('@'), profile + "/extensions/a@x")));
    }

    void survivesFirefoxFilesOfTheWrongShape()
    {
        NORVALE_SANDBOX_ONLY("lays out the only browser profiles the scan may find");
        ExtMachine m;
        const QString profiles = m.roaming("Mozilla/Firefox/Profiles/");
        QVERIFY(m.write(profiles + "a/extensions.json", "{\"addons\":{\"id\":\"x\"}}"));
        QVERIFY(m.write(profiles + "b/extensions.json", "{\"addons\":[{\"id\":\"x\",\"type\":\"extension\""));
        QVERIFY(m.write(profiles + "c/extensions.json", "[]"));
        QVERIFY(m.write(profiles + "d/extensions.json",
            "{\"addons\":[{\"type\":\"extension\"},{\"id\":\"ok@x\",\"type\":\"extension\"}]}"));
        QCOMPARE(keys(scan()), QStringList { "Mozilla Firefox|ok@x" });
    }
};

QTEST_MAIN(tst_BrowserExtScanner)
#include "tst_browserextscanner.moc"
