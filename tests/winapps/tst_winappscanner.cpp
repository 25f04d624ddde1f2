#include "fakecatalogue.h"

#include "winapps/winappscanner.h"

#include "support/currentmachine.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using platform::PackageRecord;
using platform::PackageSignature;

namespace {

PackageRecord package(const QString& name, const QString& location = QString())
{
    PackageRecord p;
    p.name = name.toStdWString();
    p.fullName = (name + QStringLiteral("_1.0.0.0_x64__pid")).toStdWString();
    p.familyName = (name + QStringLiteral("_pid")).toStdWString();
    p.publisherId = L"pid";
    p.version = { 1, 20, 300, 4000 };
    p.installLocation = location.toStdWString();
    p.signature = PackageSignature::Store;
    return p;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QVERIFY(testfiles::write(path, bytes));
}

QByteArray manifest(const QByteArray& displayName, const QByteArray& publisher = "Contoso",
    const QByteArray& visualElements = QByteArray())
{
    return "<Package><Properties><DisplayName>" + displayName + "</DisplayName><PublisherDisplayName>" + publisher
        + "</PublisherDisplayName></Properties><uap:VisualElements " + visualElements + "/></Package>";
}

} // namespace

class tst_WinAppScanner : public QObject {
    Q_OBJECT

    QList<WinApp> scan(QList<int>* progress = nullptr)
    {
        WinAppScanner scanner;
        QSignalSpy done(&scanner, &WinAppScanner::scanDone);
        QSignalSpy steps(&scanner, &WinAppScanner::scanProgress);
        scanner.start();
        // The spies record from the scanner's thread as the signals are sent, so a scan that ends
        // before a QSignalSpy::wait() could begin is not missed: joining the thread is enough.
        if (!scanner.wait(10000) || done.isEmpty())
            return {};
        if (progress) {
            for (const auto& args : steps)
                progress->append(args.at(0).toInt());
        }
        return done.constFirst().at(0).value<QList<WinApp>>();
    }

private slots:
    void filters_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("hidden");
        const auto row = [](const char* tag, const char* name, const char* kind, bool hidden) {
            QTest::newRow(tag) << QString::fromLatin1(name) << QString::fromLatin1(kind) << hidden;
        };
        row("an ordinary store app is listed", "Contoso.Notes", "", false);
        row("framework", "Contoso.Runtime", "framework", true);
        row("resource package", "Contoso.Notes", "resource", true);
        row("framework Edge gets no exception", "Microsoft.MicrosoftEdge.Stable", "framework", true);
        row("system-signed", "Microsoft.Windows.Photos", "system", true);
        row("system-signed Edge is listed", "Microsoft.MicrosoftEdge.Stable", "system", false);
        row("bundle", "Contoso.Suite", "bundle", true);
        row("bundled Edge is listed", "Microsoft.MicrosoftEdgeDevToolsClient", "bundle", false);
        row("language pack by prefix", "Microsoft.LanguageExperiencePackde-DE", "", true);
        row("prefix in another case", "microsoft.vclibs.140.00", "", true);
        row("last prefix", "Microsoft.Winget.Source", "", true);
        row("prefix text later in the name is no prefix", "Contoso.Microsoft.VCLibs", "", false);
        row("codec by substring", "Contoso.MPEG-2Tools", "", true);
        row("substring in another case", "Fabrikam.heifimageextension", "", true);
    }

    void filters()
    {
        QFETCH(QString, name);
        QFETCH(QString, kind);
        PackageRecord p = package(name);
        p.isFramework = kind == QLatin1String("framework");
        p.isResourcePackage = kind == QLatin1String("resource");
        p.isBundle = kind == QLatin1String("bundle");
        if (kind == QLatin1String("system"))
            p.signature = PackageSignature::System;
        QTEST(WinAppScanner::isHidden(p), "hidden");
    }

    void referenceForms_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("expanded");
        const auto row = [](const char* tag, const char* reference, const char* expanded) {
            QTest::newRow(tag) << QString::fromLatin1(reference) << QString::fromLatin1(expanded);
        };
        const char* const resolved = "ms-resource://Contoso.Notes/Resources/AppName";
        row("three slashes: the package is the authority", "ms-resource:///Resources/AppName", resolved);
        row("two slashes and a bare key: the Resources map", "ms-resource://AppName", resolved);
        row("two slashes with a path stays", "ms-resource://Other.Package/Strings/AppName",
            "ms-resource://Other.Package/Strings/AppName");
        row("no slashes stays", "ms-resource:AppName", "ms-resource:AppName");
    }

    void referenceForms()
    {
        QFETCH(QString, reference);
        QTEST(WinAppScanner::expandReference(reference, QStringLiteral("Contoso.Notes")), "expanded");
    }

    void sizeText_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        const qint64 KiB = 1024, MiB = KiB * KiB, GiB = MiB * KiB;
        QTest::newRow("zero is no text") << qint64(0) << "";
        QTest::newRow("last byte count") << KiB - 1 << "1023 B";
        QTest::newRow("first KB") << KiB << "1 KB";
        QTest::newRow("half KB rounds up") << KiB + KiB / 2 << "2 KB";
        QTest::newRow("last KB count") << MiB - 1 << "1024 KB";
        QTest::newRow("first MB") << MiB << "1 MB";
        QTest::newRow("two and a half MB round away from zero") << 5 * MiB / 2 << "3 MB";
        QTest::newRow("last MB count") << GiB - 1 << "1024 MB";
        QTest::newRow("first GB with two decimals") << GiB << "1.00 GB";
    }

    void sizeText()
    {
        QFETCH(qint64, bytes);
        QTEST(WinAppScanner::formatSize(bytes), "text");
    }

    void names_data()
    {
        QTest::addColumn<QByteArray>("manifestText"); // empty: no manifest
        QTest::addColumn<bool>("bundleManifest");
        QTest::addColumn<QString>("runtimeName");
        QTest::addColumn<QString>("runtimePublisher");
        QTest::addColumn<QString>("displayName");
        QTest::addColumn<QString>("publisher");
        // runtime and expected hold "name|publisher"
        const auto row
            = [](const char* tag, const QByteArray& text, bool bundle, const char* runtime, const char* shown) {
                  const QStringList r = QString::fromUtf8(runtime).split('|'), e = QString::fromUtf8(shown).split('|');
                  QTest::newRow(tag) << text << bundle << r[0] << r[1] << e[0] << e[1];
              };
        row("plain manifest names win", manifest("  Notes  ", "Contoso Ltd"), false, "Runtime Notes|Runtime Co",
            "Notes|Contoso Ltd");
        row("resolvable reference", manifest("ms-resource:AppName", "ms-resource://Publisher"), false, "|",
            "Resolved Notes|Resolved Contoso");
        row("unresolvable reference falls to the runtime's name", manifest("ms-resource:Missing"), false,
            "Runtime Notes|", "Runtime Notes|Contoso");
        row("unresolvable everywhere leaves the package name", manifest("ms-resource:Missing", "ms-resource:Missing"),
            false, "ms-resource:AlsoMissing|ms-resource:Missing", "Contoso.Notes|");
        row("a resolved text that is itself a reference is not used", manifest("ms-resource:Loop"), false, "|",
            "Contoso.Notes|Contoso");
        row("no manifest: the runtime's texts", {}, false, "Runtime Notes|Runtime Co", "Runtime Notes|Runtime Co");
        row("bundle manifest when the package has none", manifest("Bundle Notes"), true, "Runtime Notes|",
            "Bundle Notes|Contoso");
        row("unbalanced tags", "<DisplayName>Notes<PublisherDisplayName>Contoso</Package>", false, "Runtime Notes|",
            "Runtime Notes|");
        row("not UTF-8 does not stop the scan", manifest("Caf\xe9 \xff\xfe"), false, "|",
            "Caf\xef\xbf\xbd \xef\xbf\xbd\xef\xbf\xbd|Contoso");
        row("huge manifest: the values near the top are still read",
            manifest("Big Notes") + QByteArray(6 * 1024 * 1024, ' '), false, "|", "Big Notes|Contoso");
    }

    void names()
    {
        QFETCH(QByteArray, manifestText);
        QFETCH(bool, bundleManifest);
        QFETCH(QString, runtimeName);
        QFETCH(QString, runtimePublisher);

        QTemporaryDir dir;
        const QString folder = dir.path() + QStringLiteral("/Contoso.Notes");
        QDir().mkpath(folder);
        if (!manifestText.isEmpty())
            writeFile(
                folder + (bundleManifest ? "/AppxMetadata/AppxBundleManifest.xml" : "/AppxManifest.xml"), manifestText);

        FakeCatalogue catalogue;
        PackageRecord p = package(QStringLiteral("Contoso.Notes"), folder);
        p.displayName = runtimeName.toStdWString();
        p.publisherDisplayName = runtimePublisher.toStdWString();
        catalogue.packages_ = { p };
        const std::wstring full = p.fullName;
        catalogue.strings[L"@{" + full + L"?ms-resource:AppName}"] = L"Resolved Notes";
        catalogue.strings[L"@{" + full + L"?ms-resource://Contoso.Notes/Resources/Publisher}"] = L"Resolved Contoso";
        catalogue.strings[L"@{" + full + L"?ms-resource:Loop}"] = L"ms-resource:Loop";

        const QList<WinApp> apps = scan();
        QCOMPARE(apps.size(), 1);
        QTEST(apps[0].displayName, "displayName");
        QTEST(apps[0].publisher, "publisher");
    }

    void logo_data()
    {
        QTest::addColumn<QByteArray>("attributes");
        QTest::addColumn<QStringList>("files"); // relative to the install folder; "../" leaves it
        QTest::addColumn<QString>("expected"); // relative; empty: none
        const auto row = [](const char* tag, const QStringList& files, const char* expected,
                             const QByteArray& attributes = R"(Square44x44Logo="Assets\Logo.png")") {
            QTest::newRow(tag) << attributes << files << QString::fromLatin1(expected);
        };
        row("the plain file", { "Assets/Logo.png", "Assets/Logo.scale-100.png" }, "Assets/Logo.png");
        row("scale-200 when the plain file is missing", { "Assets/Logo.scale-200.png" }, "Assets/Logo.scale-200.png");
        row("scale-100 before scale-200", { "Assets/Logo.scale-200.png", "Assets/Logo.scale-100.png" },
            "Assets/Logo.scale-100.png");
        row("scale-200 before scale-125", { "Assets/Logo.scale-125.png", "Assets/Logo.scale-200.png" },
            "Assets/Logo.scale-200.png");
        row("scale-400 last", { "Assets/Logo.scale-400.png" }, "Assets/Logo.scale-400.png");
        row("a missing 44 falls to 30 then 150", { "Big.png", "Small.scale-150.png" }, "Small.scale-150.png",
            R"(Square150x150Logo="Big.png" Square44x44Logo="Gone.png" Square30x30Logo="Small.png")");
        row("climbing out of the install folder is refused", { "../Outside.png" }, "",
            R"(Square44x44Logo="..\Outside.png" Square150x150Logo="Assets\..\..\Outside.png")");
        row("an absolute path is refused", {}, "", R"(Square44x44Logo="C:\Windows\Logo.png")");
    }

    void logo()
    {
        QFETCH(QByteArray, attributes);
        QFETCH(QStringList, files);
        QFETCH(QString, expected);

        QTemporaryDir dir;
        const QString folder = dir.path() + QStringLiteral("/app");
        writeFile(folder + "/AppxManifest.xml", manifest("Notes", "Contoso", attributes));
        for (const QString& f : files)
            writeFile(folder + '/' + f, "png");

        FakeCatalogue catalogue;
        catalogue.packages_ = { package(QStringLiteral("Contoso.Notes"), folder) };
        const QList<WinApp> apps = scan();
        QCOMPARE(apps.size(), 1);
        QCOMPARE(apps[0].logoPath, expected.isEmpty() ? QString() : folder + '/' + expected);
    }

    void folderFacts()
    {
        QTemporaryDir dir;
        const QString empty = dir.path() + QStringLiteral("/empty");
        const QString full = dir.path() + QStringLiteral("/full");
        QDir().mkpath(empty);
        writeFile(full + "/a.bin", QByteArray(1000, 'a'));
        writeFile(full + "/sub/b.bin", QByteArray(1048, 'b'));
        writeFile(full + "/.hidden", QByteArray(5000, 'h')); // hidden files are not counted
        // Nor links. On Windows QFile::link makes a shell shortcut, an ordinary file.
        if (TestMachine::isSandbox())
            QVERIFY(QFile::link(full + "/a.bin", full + "/sub/link.bin"));

        FakeCatalogue catalogue;
        catalogue.packages_
            = { package("A.Empty", empty), package("B.Full", full), package("C.Missing", dir.path() + "/nothing") };
        const QList<WinApp> apps = scan();
        QCOMPARE(apps.size(), 3);
        const QString today = QDate::currentDate().toString(QStringLiteral("yyyy/M/d"));
        QStringList facts;
        for (const WinApp& app : apps)
            facts << app.installDate + '|' + app.sizeText;
        QCOMPARE(facts, (QStringList { today + '|', today + QStringLiteral("|2 KB"), QStringLiteral("|") }));
    }

    void progressSortAndFields()
    {
        FakeCatalogue catalogue;
        // 12 listed apps among hidden ones and one without a full name, in no useful order.
        const char* const names[] = { "b.App", "Microsoft.VCLibs.x", "a.App", "C.App", "L.App", "k.App", "J.App",
            "i.App", "Contoso.MPEG-2Tools", "H.App", "g.App", "F.App", "e.App", "d.App" };
        for (const char* name : names)
            catalogue.packages_.push_back(package(QString::fromLatin1(name)));
        PackageRecord nameless = package(QStringLiteral("Z.NoFullName"));
        nameless.fullName.clear();
        catalogue.packages_.insert(catalogue.packages_.begin() + 5, nameless);

        QList<int> progress;
        const QList<WinApp> apps = scan(&progress);
        QCOMPARE(progress, (QList<int> { 5, 10 }));
        QStringList order;
        for (const WinApp& app : apps)
            order << app.displayName;
        QCOMPARE(
            order.join(' '), QStringLiteral("a.App b.App C.App d.App e.App F.App g.App H.App i.App J.App k.App L.App"));

        const WinApp& a = apps.first();
        QCOMPARE(QStringList({ a.name, a.fullName, a.version, a.publisherId, a.wingetId }).join('|'),
            QStringLiteral("a.App|a.App_1.0.0.0_x64__pid|1.20.300.4000|pid|a.App_pid"));
    }

    void runtimeFailureStillDeliversWhatWasFound()
    {
        FakeCatalogue catalogue;
        catalogue.packages_ = { package("Z.Late"), package("A.Early"), package("M.Never") };
        catalogue.failAfter = 2;
        QTest::ignoreMessage(QtWarningMsg, "WinAppScanner: WinRT init failed");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("get_Current 0x80004005")));
        const QList<WinApp> apps = scan();
        QCOMPARE(apps.size(), 2);
        QCOMPARE(apps[0].name, QStringLiteral("A.Early"));

        // Nothing at all when the runtime is missing from the start.
        catalogue.failAfter = 0;
        QTest::ignoreMessage(QtWarningMsg, "WinAppScanner: WinRT init failed");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("0 apps kept")));
        QVERIFY(scan().isEmpty());
    }
};

QTEST_MAIN(tst_WinAppScanner)
#include "tst_winappscanner.moc"
