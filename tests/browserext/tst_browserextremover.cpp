#include "browserext/browserextremover.h"
#include "browserext/browserextscanner.h"
#include "extmachine.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QString Id = QStringLiteral("aaaabbbbccccddddeeeeffffgggghhhh");

// Every kind of value a browser stores, around the entry that is changed: integers beyond 2^53
// (a double would round them), escapes, non-ASCII text, nested arrays, spacing and key order.
const QByteArray Keep
    = "\"big\":18446744073709551615,\"odd\":9007199254740993,\"neg\":-9223372036854775807,"
      "\"esc\":\"a\\\"b\\\\c\\u00e9\\n\\ud83d\\ude00\",\"zh\":\"中文名称\",\"nest\":[[1,[2,[3,{\"k\":[]}]]],{}],"
      "\"f\":1.50e3";

QByteArray preferences(const QByteArray& entry, const QByteArray& pinned)
{
    return "{\"a\":{" + Keep + "},\"extensions\":{\"pinned_extensions\":" + pinned + ",\"settings\":{\"other\":{" + Keep
        + "},\"" + Id.toLatin1() + "\":" + entry + "}},\"z\":[{" + Keep + "},[]]}";
}

BrowserExt chrome(const QString& id = Id)
{
    return { "Google Chrome", id, "N", {}, {}, {}, true };
}
BrowserExt firefox(const QString& id)
{
    return { "Mozilla Firefox", id, "N", {}, {}, {}, true };
}

} // namespace

class tst_BrowserExtRemover : public QObject {
    Q_OBJECT

private slots:
    // The patched file differs from the original exactly in the changed values: nothing else moves.
    void patchKeepsEveryOtherByte_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray entry = "{\"state\":1,\"x\":{" + Keep + "},\"disable_reasons\":[2, 4]}";
        const QByteArray patched = "{\"state\":0,\"x\":{" + Keep + "},\"disable_reasons\":1}";
        QTest::newRow("values replaced, pinned ID removed twice")
            << preferences(entry, "[\"" + Id.toLatin1() + "\",\"keep\",{\"o\":1}, \"" + Id.toLatin1() + "\"]")
            << preferences(patched, "[\"keep\",{\"o\":1}]");
        QTest::newRow("missing values added to the entry")
            << preferences("{\"x\":1}", "[]") << preferences("{\"x\":1,\"state\":0,\"disable_reasons\":1}", "[]");
        QTest::newRow("empty entry") << preferences("{ }", "[]")
                                     << preferences("{\"state\":0,\"disable_reasons\":1 }", "[]");
        QTest::newRow("entry of the wrong type")
            << preferences("\"x\"", "[]") << preferences("{\"state\":0,\"disable_reasons\":1}", "[]");
        QTest::newRow("byte-order mark and spacing kept")
            << QByteArray("\xEF\xBB\xBF{ \"extensions\" : {\n \"settings\" : { \"" + Id.toLatin1()
                   + "\" : { \"state\" : 1 } } }, \"n\": 12345678901234567890 }\n")
            << QByteArray("\xEF\xBB\xBF{ \"extensions\" : {\n \"settings\" : { \"" + Id.toLatin1()
                   + "\" : { \"state\" : 0,\"disable_reasons\":1 } } }, \"n\": 12345678901234567890 }\n");
    }
    void patchKeepsEveryOtherByte()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        QFETCH(QByteArray, before);
        ExtMachine m;
        const QString file = m.local("Preferences");
        QVERIFY(m.write(file, before));
        QVERIFY(BrowserExtRemover::patchPreferences(file, Id));
        const QByteArray written = m.read(file);
        QTEST(written, "after");
        // And as documents: the same apart from the entry.
        auto withoutEntry = [](const QByteArray& text) {
            QJsonObject root = QJsonDocument::fromJson(text.startsWith("\xEF") ? text.mid(3) : text).object();
            QJsonObject extensions = root.value("extensions").toObject();
            QJsonObject settings = extensions.value("settings").toObject();
            settings.remove(Id);
            extensions.insert("settings", settings);
            extensions.remove("pinned_extensions");
            root.insert("extensions", extensions);
            return root;
        };
        QVERIFY(!withoutEntry(written).isEmpty());
        QCOMPARE(withoutEntry(written), withoutEntry(before));
    }

    void patchLeavesFilesItCannotUseOrNeedNotChange_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("patched");
        QTest::newRow("truncated") << preferences("{\"state\":1}", "[]").chopped(5) << false;
        QTest::newRow("not an object") << QByteArray("[{\"extensions\":{}}]") << false;
        QTest::newRow("empty file") << QByteArray() << false;
        QTest::newRow("no extensions key") << QByteArray("{\"n\":18446744073709551615}") << true;
        QTest::newRow("settings of the wrong type") << QByteArray("{\"extensions\":{\"settings\":[]}}") << true;
        // A pinned entry alone is not removed: the file is written only when the ID has settings.
        QTest::newRow("pinned but not in settings")
            << QByteArray("{\"extensions\":{\"pinned_extensions\":[\"" + Id.toLatin1() + "\"],\"settings\":{}}}")
            << true;
    }
    void patchLeavesFilesItCannotUseOrNeedNotChange()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        QFETCH(QByteArray, text);
        ExtMachine m;
        const QString file = m.local("Secure Preferences");
        QVERIFY(m.write(file, text));
        QTEST(BrowserExtRemover::patchPreferences(file, Id), "patched");
        QCOMPARE(m.read(file), text);
    }

    // Whatever a file holds, it is either left byte for byte or replaced by a document that every
    // last-key-wins reader (browsers, Qt) sees as the original with the extension turned off.
    void hostileFilesAreNeverBroken_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("patched");
        const QByteArray id = Id.toLatin1();
        const QByteArray head = "{\"extensions\":{\"settings\":{\"" + id + "\":";
        QTest::newRow("unbalanced nesting") << head + QByteArray(200000, '[') << false;
        QTest::newRow("nesting beyond the reader's limit")
            << head + "{\"state\":1},\"x\":" + QByteArray(5000, '[') + QByteArray(5000, ']') + "}}}" << false;
        QTest::newRow("deep but readable nesting")
            << head + "{\"state\":1},\"x\":" + QByteArray(500, '[') + QByteArray(500, ']') + "}}}" << true;
        QTest::newRow("unterminated string") << head + "{\"state\":1}},\"x\":\"abc" << false;
        QTest::newRow("string ending in a backslash") << head + "{\"state\":1}},\"x\":\"abc\\" << false;
        QTest::newRow("unknown escape") << head + "{\"state\":1}},\"x\":\"\\q\"}}" << false;
        // Forgiven by some readers, refused by a browser's: such a file is not ours to rewrite.
        QTest::newRow("raw control character in a string") << head + "{\"state\":1}},\"x\":\"a\tb\"}}" << false;
        QTest::newRow("number ending in a point") << head + "{\"state\":1}},\"x\":1.}}" << false;
        QTest::newRow("number starting with a point") << head + "{\"state\":1}},\"x\":.5}}" << false;
        QTest::newRow("every kind of value")
            << head + "{\"state\":1}},\"x\":[true,false,null,-0.5E+3,0,1e-2,\"\\/\\u00e9\\b\",{},[],{\"\":[{}]}]}}"
            << true;
        QTest::newRow("brackets and quotes inside strings")
            << "{\"extensions\":{\"settings\":{\"a\\\"}]{[\":\"]}\\\\\",\"" + id
                + "\":{\"state\":1,\"s\":\"{[\\\"\"}}}}"
            << true;
        QTest::newRow("ID spelt with escapes")
            << "{\"extensions\":{\"settings\":{\"\\u0061" + id.mid(1) + "\":{\"state\":1}}}}" << true;
        // Found by fuzzing: the decoy's U+FEFF after an escape was dropped, so the decoy, named
        // last, was taken for the entry and the browser's own entry stayed enabled.
        QTest::newRow("key differing from the ID by a U+FEFF after an escape")
            << head + "{\"state\":1},\"\\u0061\xEF\xBB\xBF" + id.mid(1) + "\":{\"state\":5}}}}" << true;
        QTest::newRow("entry named twice") << head + "{\"state\":1},\"" + id + "\":{\"state\":2}}}}" << true;
        QTest::newRow("state named twice") << head + "{\"state\":1,\"disable_reasons\":4,\"state\":1}}}}" << true;
        QTest::newRow("extensions named twice")
            << "{\"extensions\":{\"settings\":{}}," + head.mid(1) + "{\"state\":1}}}}" << true;
        QTest::newRow("numbers beyond any double")
            << head + "{\"state\":1,\"n\":" + QByteArray(300, '9') + ",\"e\":-1.5e-300}}}}" << true;
        QTest::newRow("number overflowing a double") << head + "{\"state\":1,\"n\":1e999}}}}" << false;
        QTest::newRow("lone surrogate escape") << head + "{\"state\":1,\"s\":\"\\ud800\"}}}}" << true;
        QTest::newRow("invalid UTF-8") << head + "{\"state\":1,\"s\":\"\xff\xfe\"}}}}" << false;
        QTest::newRow("NUL between values") << head + "{\"state\":1}}}" + QByteArray(1, '\0') + "}" << false;
        QTest::newRow("two documents") << head + "{\"state\":1}}}}{}" << false;
        QTest::newRow("byte-order mark alone") << QByteArray("\xEF\xBB\xBF") << false;
    }
    void hostileFilesAreNeverBroken()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        QFETCH(QByteArray, text);
        QFETCH(bool, patched);
        ExtMachine m;
        const QString file = m.local("Preferences");
        QVERIFY(m.write(file, text));
        QCOMPARE(BrowserExtRemover::patchPreferences(file, Id), patched);
        const QByteArray written = m.read(file);
        if (!patched) {
            QCOMPARE(written, text);
            return;
        }
        QJsonParseError error;
        const QJsonObject root = QJsonDocument::fromJson(written, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        const QJsonObject entry = root.value("extensions").toObject().value("settings").toObject().value(Id).toObject();
        QCOMPARE(entry.value("state").toVariant(), QVariant(0));
        QCOMPARE(entry.value("disable_reasons").toVariant(), QVariant(1));
    }

    // Far beyond any real profile file, though well formed: not read, so neither trusted nor rewritten.
    void aFileBeyondTheSizeLimitIsLeftAlone()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        ExtMachine m;
        const QString file = m.local("Preferences");
        const QByteArray text = preferences("{}", "[]") + QByteArray(65 * 1024 * 1024, ' ');
        QVERIFY(m.write(file, text));
        QVERIFY(!BrowserExtRemover::patchPreferences(file, Id));
        QCOMPARE(QFileInfo(file).size(), text.size());
    }

#ifdef Q_OS_UNIX
    // A pipe in a file's place would block the first read until someone writes to it.
    void aPipeInAFilesPlaceIsNotOpened()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        ExtMachine m;
        const QString profile = m.local("Google/Chrome/User Data/Default");
        QVERIFY(QDir().mkpath(profile + "/Extensions/" + Id + "/1_0"));
        QCOMPARE(::mkfifo(QFile::encodeName(profile + "/Preferences").constData(), 0600), 0);
        QCOMPARE(
            ::mkfifo(QFile::encodeName(profile + "/Extensions/" + Id + "/1_0/manifest.json").constData(), 0600), 0);
        QVERIFY(!BrowserExtRemover::patchPreferences(profile + "/Preferences", Id));
        QVERIFY(!BrowserExtScanner::readJsonObject(profile + "/Preferences").contains("extensions"));
    }
#endif

    void removesFromChromeProfiles()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        ExtMachine m;
        const QString userData = m.local("Google/Chrome/User Data/");
        QVERIFY(m.write(userData + "Default/Extensions/" + Id + "/1.0_0/manifest.json", "{}"));
        QVERIFY(m.write(userData + "Default/Extensions/other/1.0_0/manifest.json", "{}"));
        QVERIFY(m.write(userData + "Default/Preferences", preferences("{\"state\":1}", "[]")));
        QVERIFY(m.write(userData + "Default/Secure Preferences", preferences("{\"state\":1}", "[]")));
        QVERIFY(m.write(userData + "Profile 2/Extensions/" + Id + "/2_0/manifest.json", "{}"));

        const BrowserExtRemover::Result result = BrowserExtRemover::remove(chrome());
        QVERIFY(result.success);
        QCOMPARE(result.error, QString());
        QVERIFY(!QFileInfo::exists(userData + "Default/Extensions/" + Id));
        QVERIFY(!QFileInfo::exists(userData + "Profile 2/Extensions/" + Id));
        QVERIFY(QFileInfo::exists(userData + "Default/Extensions/other/1.0_0/manifest.json"));
        for (const char* file : { "Default/Preferences", "Default/Secure Preferences" })
            QCOMPARE(m.read(userData + file), preferences("{\"state\":0,\"disable_reasons\":1}", "[]"));
    }

    void chromiumOutcomes_data()
    {
        QTest::addColumn<QStringList>("files"); // "path below LOCALAPPDATA|content"
        QTest::addColumn<QStringList>("undeletable");
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("success");
        QTest::addColumn<QString>("error"); // "@" stands for LOCALAPPDATA
        const QString stable = "Google/Chrome/User Data/Default/";
        const QString folder = stable + "Extensions/" + Id + "/1_0/manifest.json|{}";
        QTest::newRow("a preference file that does not name it is enough")
            << QStringList { stable + "Extensions/x/1_0/m|", stable + "Preferences|{}" } << QStringList() << Id << true
            << "";
        QTest::newRow("a folder that stays while a patch succeeds")
            << QStringList { folder, stable + "Preferences|" + preferences("{}", "[]") }
            << QStringList { stable + "Extensions/" + Id } << Id << true << "";
        QTest::newRow("a folder that stays and no preference file")
            << QStringList { folder } << QStringList { stable + "Extensions/" + Id } << Id << false
            << "Cannot delete @/" + stable + "Extensions/" + Id;
        QTest::newRow("a malformed preference file and no folder")
            << QStringList { stable + "Extensions/x/1_0/m|", stable + "Preferences|{\"extensions\":" } << QStringList()
            << Id << false << "Cannot patch @/" + stable + "Preferences";
        QTest::newRow("only in Beta while stable is installed")
            << QStringList { stable + "Extensions/x/1_0/m|",
                   "Google/Chrome Beta/User Data/Default/Extensions/" + Id + "/1_0/manifest.json|{}" }
            << QStringList() << Id << false << "Extension not found in any profile";
        QTest::newRow("no profile in any channel")
            << QStringList { "Google/Chrome/User Data/Default/Preferences|{}" } << QStringList() << Id << false
            << "Google Chrome profile directory not found (tried: @/Google/Chrome/User Data, @/Google/Chrome Beta/User "
               "Data, @/Google/Chrome Dev/User Data, @/Google/Chrome SxS/User Data)";
        for (const char* id : { "", ".", "..", "../Default", "a\\b", "C:x", "a*", "a?", "x.", "x ", "a|b" })
            QTest::newRow(qPrintable(QStringLiteral("unsafe ID \"%1\"").arg(id)))
                << QStringList { folder, stable + "Preferences|{}" } << QStringList() << QString(id) << false
                << "Invalid extension ID";
    }
    void chromiumOutcomes()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        QFETCH(QStringList, files);
        QFETCH(QStringList, undeletable);
        QFETCH(QString, id);
        QFETCH(bool, success);
        QFETCH(QString, error);
        ExtMachine m;
        for (const QString& file : files)
            QVERIFY(m.write(m.local(file.section('|', 0, 0)), file.section('|', 1).toUtf8()));
        for (const QString& path : undeletable)
            m.undeletable.insert(m.local(path));
        const BrowserExtRemover::Result result = BrowserExtRemover::remove(chrome(id));
        QCOMPARE(result.success, success);
        QCOMPARE(result.error, QString(error).replace('@', m.local().chopped(1)));
        if (!success) // nothing at all was removed
            for (const QString& file : files)
                QVERIFY(QFileInfo::exists(m.local(file.section('|', 0, 0))));
    }

    void removesFirefoxEntriesFoldersAndPackages()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        ExtMachine m;
        const QString profiles = m.roaming("Mozilla/Firefox/Profiles/");
        const QByteArray other = "{\"id\":\"keep@x\",\"size\":18446744073709551615,\"n\":\"ü\\u00fc\",\"a\":[[1],[]]}";
        const QByteArray gone = "{\"id\":\"gone@x\",\"type\":\"extension\"}";
        QVERIFY(m.write(profiles + "one/extensions.json",
            "{\"schemaVersion\":36,\"addons\":[" + gone + "," + other + "," + gone + "]}"));
        QVERIFY(m.write(profiles + "one/extensions/gone@x.xpi", "zip"));
        QVERIFY(m.write(profiles + "one/extensions/gone@x/manifest.json", "{}"));
        QVERIFY(m.write(profiles + "one/extensions/keep@x.xpi", "zip"));
        QVERIFY(m.write(profiles + "two/extensions.json", "{\"addons\":[" + other + "]}"));
        QVERIFY(m.write(profiles + "two/extensions/gone@x.xpi", "zip"));
        QVERIFY(m.write(profiles + "three/extensions.json", "{\"addons\":[" + gone)); // malformed: left alone

        const BrowserExtRemover::Result result = BrowserExtRemover::remove(firefox("gone@x"));
        QVERIFY(result.success);
        QCOMPARE(m.read(profiles + "one/extensions.json"), "{\"schemaVersion\":36,\"addons\":[" + other + "]}");
        QCOMPARE(m.read(profiles + "two/extensions.json"), "{\"addons\":[" + other + "]}");
        QCOMPARE(m.read(profiles + "three/extensions.json"), "{\"addons\":[" + gone);
        QVERIFY(!QFileInfo::exists(profiles + "one/extensions/gone@x.xpi"));
        QVERIFY(!QFileInfo::exists(profiles + "one/extensions/gone@x"));
        QVERIFY(!QFileInfo::exists(profiles + "two/extensions/gone@x.xpi"));
        QVERIFY(QFileInfo::exists(profiles + "one/extensions/keep@x.xpi"));
    }

    void firefoxFailures_data()
    {
        QTest::addColumn<bool>("profiles");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("error");
        QTest::newRow("no profiles folder") << false << QString("a@x") << "Firefox profiles directory not found";
        QTest::newRow("in no profile") << true << QString("a@x") << "Extension not found in any Firefox profile";
        QTest::newRow("an ID that climbs") << true << QString("..") << "Invalid extension ID";
    }
    void firefoxFailures()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes browser profiles of its own");
        QFETCH(bool, profiles);
        QFETCH(QString, id);
        ExtMachine m;
        if (profiles)
            QVERIFY(m.write(m.roaming("Mozilla/Firefox/Profiles/p/extensions.json"), "{\"addons\":[]}"));
        const BrowserExtRemover::Result result = BrowserExtRemover::remove(firefox(id));
        QVERIFY(!result.success);
        QTEST(result.error, "error");
        if (profiles)
            QVERIFY(QFileInfo::exists(m.roaming("Mozilla/Firefox/Profiles/p/extensions.json")));
    }
};

QTEST_MAIN(tst_BrowserExtRemover)
#include "tst_browserextremover.moc"
