#include "links/linkmanager.h"

#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {
const QStringList AllCodes = { "en", "zh_CN", "zh_TW", "fr", "de", "ja", "es", "ko", "nl", "pt", "it", "ar", "tr" };

// A known system locale, pinned before anything reads it: with nothing stored, detection gives "de".
// (Under Wine the test registration pins it, as Windows reads it before main.)
const bool LocalePinned = qputenv("LC_ALL", "de_DE.UTF-8");

QSettings settingsStore()
{
    return QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"));
}

// "help" has en and de, "partial" en and fr, "orphan" only ja (not even the fallback).
QByteArray sampleCatalogue(const QStringList& supported = AllCodes, const QString& fallback = "en")
{
    return QStringLiteral(
        R"({"metadata": {"version": "1.0.0", "supported_languages": ["%1"], "fallback_language": "%2"},
        "support": {"help": {"en": "https://example.test/en/help", "de": "https://example.test/de/help"},
                    "partial": {"en": "https://example.test/en/partial", "fr": "https://example.test/fr/partial"},
                    "orphan": {"ja": "https://example.test/ja/orphan"}}})")
        .arg(supported.join(QStringLiteral("\", \"")), fallback)
        .toUtf8();
}
} // namespace

class tst_LinkManager final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_fileCount = 0;

    QString writeFile(const QByteArray& content)
    {
        QFile file(m_dir.filePath(QString::number(++m_fileCount)));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
    }

private slots:
    void init() { settingsStore().remove("language"); }

    void mapLocaleName_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("code");
        // Only Taiwan and Hong Kong, by their exact names, read Traditional Chinese.
        const struct {
            const char *locale, *code;
        } rows[] = { { "zh_HK", "zh_TW" }, { "zh_TW", "zh_TW" }, { "zh_SG", "zh_CN" }, { "zh_MO", "zh_CN" },
            { "zh_Hant_HK", "zh_CN" }, { "pt_BR", "pt" }, { "ru_RU", "en" }, { "C", "en" } };
        for (const auto& row : rows)
            QTest::newRow(row.locale) << QString::fromLatin1(row.locale) << QString::fromLatin1(row.code);
    }

    void mapLocaleName()
    {
        QFETCH(QString, locale);
        QTEST(LinkManager::mapLocaleName(locale), "code");
    }

    void detectsLanguage_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing stored: the locale decides") << QString() << AllCodes << "de";
        QTest::newRow("a stored supported code wins") << "fr" << AllCodes << "fr";
        QTest::newRow("a stored unknown code is ignored") << "xx" << AllCodes << "de";
        QTest::newRow("stored code outside the file's list") << "ko" << QStringList { "en", "ja" } << "ja";
    }

    void detectsLanguage()
    {
        QFETCH(QString, stored);
        QFETCH(QStringList, supported);
        if (!stored.isNull())
            settingsStore().setValue("language", stored);
        LinkManager manager(writeFile(sampleCatalogue(supported, "ja")));
        QTEST(manager.currentLanguage(), "expected");
    }

    void lookup()
    {
        LinkManager manager(writeFile(sampleCatalogue()));
        QCOMPARE(manager.getLink("support", "help"), QStringLiteral("https://example.test/de/help"));
        // A page lacking the current language gives the fallback's address.
        QCOMPARE(manager.getLink("support", "partial"), QStringLiteral("https://example.test/en/partial"));
        QVERIFY(manager.getLink("support", "orphan").isEmpty());
        QVERIFY(manager.getLink("nosuch", "help").isEmpty());
        QVERIFY(manager.getLink("support", "nosuch").isEmpty());
        QVERIFY(manager.getLink("metadata", "version").isEmpty());
    }

    void setLanguage_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("takes");
        QTest::newRow("another supported code: stored and signalled") << "ar" << true;
        QTest::newRow("the current code: neither stored nor signalled") << "de" << false;
        QTest::newRow("unknown code") << "xx" << false;
    }

    void setLanguage()
    {
        QFETCH(QString, code);
        QFETCH(bool, takes);
        const QString path = writeFile(sampleCatalogue());
        LinkManager manager(path);
        QSignalSpy spy(&manager, &LinkManager::languageChanged);
        manager.setLanguage(code);
        const QString expected = takes ? code : QStringLiteral("de");
        QCOMPARE(manager.currentLanguage(), expected);
        QCOMPARE(spy.count(), takes ? 1 : 0);
        QCOMPARE(settingsStore().contains("language"), takes);
        // A new instance starts where this one left off.
        QCOMPARE(LinkManager(path).currentLanguage(), expected);
    }

    void badFileGivesEmptyCatalogue_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("exists");
        QTest::newRow("missing file") << QByteArray() << false;
        QTest::newRow("truncated JSON") << sampleCatalogue().left(120) << true;
        QTest::newRow("array root") << QByteArray("[{\"support\":{}}]") << true;
    }

    void badFileGivesEmptyCatalogue()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, exists);
        settingsStore().setValue("language", "fr");
        LinkManager manager(exists ? writeFile(content) : m_dir.filePath("absent.json"));
        manager.setLanguage("de");
        QVERIFY(manager.supportedLanguages().isEmpty());
        // Nothing is supported, so neither the stored code, the locale's nor a later choice is taken.
        QCOMPARE(manager.currentLanguage(), QStringLiteral("en"));
        QVERIFY(manager.getLink("support", "help").isEmpty());
    }

    void resourceCatalogueIsComplete()
    {
        const QMap<QString, QStringList> keys { { "support", { "help", "contact", "tutorial", "faq" } },
            { "menu", { "about", "support" } }, { "website", { "home", "product" } } };
        QFile file(":/data/data/links.json");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
        LinkManager* manager = LinkManager::instance();
        QCOMPARE(manager->supportedLanguages(), AllCodes);
        QCOMPARE(manager->fallbackLanguage(), QStringLiteral("en"));

        QSet<QString> seen;
        for (const QString& code : AllCodes) {
            manager->setLanguage(code);
            for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
                for (const QString& key : it.value()) {
                    // Straight from the file too, so a fallback cannot hide a missing language.
                    const QJsonValue inFile = root.value(it.key())[key][code];
                    QVERIFY2(inFile.isString(), qPrintable(it.key() + '/' + key + '/' + code));
                    const QString link = manager->getLink(it.key(), key);
                    QCOMPARE(link, inFile.toString());
                    const QUrl url(link, QUrl::StrictMode);
                    QVERIFY2(url.isValid() && url.scheme() == "https" && !url.host().isEmpty(), qPrintable(link));
                    seen.insert(link);
                }
            }
        }
        // Every language and page has an address of its own.
        QCOMPARE(seen.size(), AllCodes.size() * 8);
    }
};

QTEST_MAIN(tst_LinkManager)
#include "tst_linkmanager.moc"
