#include "links/linkmanager.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {

// The suite pins the system locale (see main) so that detection has a known answer.
const char* const SystemLocale = "de_DE.UTF-8";

const QStringList AllCodes = { "en", "zh_CN", "zh_TW", "fr", "de", "ja", "es", "ko", "nl", "pt", "it", "ar", "tr" };

QSettings settingsStore()
{
    return QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"));
}

QString storedLanguage()
{
    return QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).value("language").toString();
}

void storeLanguage(const QString& code)
{
    QSettings settings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"));
    if (code.isNull())
        settings.remove("language");
    else
        settings.setValue("language", code);
    settings.sync();
}

QJsonObject addresses(const QStringList& codes, const QString& page)
{
    QJsonObject object;
    for (const QString& code : codes)
        object.insert(code, QStringLiteral("https://example.test/%1/%2").arg(code, page));
    return object;
}

// A small catalogue: "help" has every language, "partial" only en and fr, "orphan" neither the
// fallback nor most languages.
QByteArray sampleCatalogue(const QStringList& supported = AllCodes, const QString& fallback = "en")
{
    QJsonObject metadata { { "version", "1.0.0" }, { "last_updated", "2025-01-15" },
        { "supported_languages", QJsonArray::fromStringList(supported) }, { "fallback_language", fallback } };
    QJsonObject support { { "help", addresses(AllCodes, "help") }, { "partial", addresses({ "en", "fr" }, "partial") },
        { "orphan", addresses({ "ja" }, "orphan") } };
    QJsonObject root { { "metadata", metadata }, { "support", support } };
    return QJsonDocument(root).toJson();
}

// Collects the debug lines written while it lives.
class LogCapture {
public:
    LogCapture()
    {
        s_lines.clear();
        m_previous = qInstallMessageHandler(&LogCapture::collect);
    }
    ~LogCapture() { qInstallMessageHandler(m_previous); }
    bool contains(const QString& line) const { return s_lines.contains(line); }
    QString dump() const { return s_lines.join(QLatin1Char('\n')); }

private:
    static void collect(QtMsgType, const QMessageLogContext&, const QString& message) { s_lines.append(message); }
    static inline QStringList s_lines;
    QtMessageHandler m_previous = nullptr;
};

} // namespace

class tst_LinkManager final : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();

    void mapLocaleName_data();
    void mapLocaleName();

    void detectsLanguage_data();
    void detectsLanguage();

    void lookup_data();
    void lookup();

    void setLanguageStoresAndSignals();
    void setLanguageToCurrentIsSilent();
    void setLanguageRejectsUnsupported_data();
    void setLanguageRejectsUnsupported();

    void badFileGivesEmptyCatalogue_data();
    void badFileGivesEmptyCatalogue();

    void resourceCatalogueIsComplete();

private:
    QString writeFile(const QByteArray& content);

    QTemporaryDir m_dir;
    int m_fileCount = 0;
};

void tst_LinkManager::init()
{
    QVERIFY(m_dir.isValid());
    storeLanguage(QString());
}

void tst_LinkManager::cleanupTestCase()
{
    storeLanguage(QString());
}

QString tst_LinkManager::writeFile(const QByteArray& content)
{
    const QString path = m_dir.filePath(QStringLiteral("links-%1.json").arg(++m_fileCount));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return QString();
    return path;
}

void tst_LinkManager::mapLocaleName_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("code");

    QTest::newRow("Hong Kong reads Traditional") << "zh_HK"
                                                 << "zh_TW";
    QTest::newRow("Taiwan reads Traditional") << "zh_TW"
                                              << "zh_TW";
    QTest::newRow("Singapore reads Simplified") << "zh_SG"
                                                << "zh_CN";
    QTest::newRow("mainland reads Simplified") << "zh_CN"
                                               << "zh_CN";
    QTest::newRow("Macau reads Simplified") << "zh_MO"
                                            << "zh_CN";
    QTest::newRow("script-tagged Hong Kong is not the exact name") << "zh_Hant_HK"
                                                                   << "zh_CN";
    QTest::newRow("Brazil gets the one Portuguese") << "pt_BR"
                                                    << "pt";
    QTest::newRow("Russian has no catalogue") << "ru_RU"
                                              << "en";
    QTest::newRow("German") << "de_DE"
                            << "de";
    QTest::newRow("Arabic") << "ar_SA"
                            << "ar";
    QTest::newRow("POSIX C locale") << "C"
                                    << "en";
    QTest::newRow("empty name") << ""
                                << "en";
}

void tst_LinkManager::mapLocaleName()
{
    QFETCH(QString, locale);
    QFETCH(QString, code);
    QCOMPARE(LinkManager::mapLocaleName(locale), code);
}

void tst_LinkManager::detectsLanguage_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("supported");
    QTest::addColumn<QString>("fallback");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("log");

    const QString fromLocale = QStringLiteral("[LinkManager] 系统语言: \"de_DE\" -> 映射为: \"de\"");
    QTest::newRow("nothing stored: the system locale decides") << QString() << AllCodes << "en"
                                                               << "de" << fromLocale;
    QTest::newRow("a stored supported code wins over the locale")
        << "fr" << AllCodes << "en"
        << "fr" << QStringLiteral("[LinkManager] 使用用户设置的语言: \"fr\"");
    QTest::newRow("a stored unknown code is ignored") << "xx" << AllCodes << "en"
                                                      << "de" << fromLocale;
    QTest::newRow("stored codes match case-sensitively") << "FR" << AllCodes << "en"
                                                         << "de" << fromLocale;
    QTest::newRow("locale's language unsupported: the fallback")
        << QString() << QStringList { "en", "fr", "ja" } << "ja"
        << "ja" << QStringLiteral("[LinkManager] 不支持的语言，使用回退语言: \"ja\"");
    QTest::newRow("stored code outside a short list, locale unsupported")
        << "ko" << QStringList { "en", "fr" } << "fr"
        << "fr" << QStringLiteral("[LinkManager] 不支持的语言，使用回退语言: \"fr\"");
}

void tst_LinkManager::detectsLanguage()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, supported);
    QFETCH(QString, fallback);
    QFETCH(QString, expected);
    QFETCH(QString, log);

    storeLanguage(stored);
    const QString path = writeFile(sampleCatalogue(supported, fallback));
    QVERIFY(!path.isEmpty());

    const LogCapture capture;
    LinkManager manager(path);
    QCOMPARE(manager.currentLanguage(), expected);
    QVERIFY2(capture.contains(log), qPrintable(capture.dump()));
    QVERIFY2(
        capture.contains(QStringLiteral("[LinkManager] 当前语言: \"%1\"").arg(expected)), qPrintable(capture.dump()));
    QCOMPARE(manager.supportedLanguages(), supported);
    QCOMPARE(manager.fallbackLanguage(), fallback);
    // Detection only reads the store.
    QCOMPARE(storedLanguage(), stored);
}

void tst_LinkManager::lookup_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("log");

    QTest::newRow("current language present")
        << "ja"
        << "support"
        << "help"
        << "https://example.test/ja/help"
        << "[LinkManager] 获取链接: \"support\" / \"help\" / \"ja\" -> \"https://example.test/ja/help\"";
    QTest::newRow("current language missing: the fallback's")
        << "ja"
        << "support"
        << "partial"
        << "https://example.test/en/partial"
        << "[LinkManager] 语言 \"ja\" 不存在，使用回退语言: \"en\"";
    QTest::newRow("current language present beside the fallback")
        << "fr"
        << "support"
        << "partial"
        << "https://example.test/fr/partial"
        << "[LinkManager] 获取链接: \"support\" / \"partial\" / \"fr\" -> \"https://example.test/fr/partial\"";
    QTest::newRow("neither current nor fallback")
        << "de"
        << "support"
        << "orphan" << QString() << "[LinkManager] 无法找到链接: \"support\" / \"orphan\"";
    QTest::newRow("missing category") << "de"
                                      << "nosuch"
                                      << "help" << QString() << "[LinkManager] 类别不存在: \"nosuch\"";
    QTest::newRow("missing key") << "de"
                                 << "support"
                                 << "nosuch" << QString()
                                 << "[LinkManager] 键不存在: \"nosuch\" in category: \"support\"";
    QTest::newRow("metadata is no category of links")
        << "de"
        << "metadata"
        << "version" << QString() << "[LinkManager] 无法找到链接: \"metadata\" / \"version\"";
    QTest::newRow("names are case-sensitive") << "de"
                                              << "Support"
                                              << "help" << QString() << "[LinkManager] 类别不存在: \"Support\"";
}

void tst_LinkManager::lookup()
{
    QFETCH(QString, language);
    QFETCH(QString, category);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    QFETCH(QString, log);

    const QString path = writeFile(sampleCatalogue());
    QVERIFY(!path.isEmpty());
    LinkManager manager(path);
    manager.setLanguage(language);
    QCOMPARE(manager.currentLanguage(), language);

    const LogCapture capture;
    const QString link = manager.getLink(category, key);
    QCOMPARE(link, expected);
    QVERIFY2(capture.contains(log), qPrintable(capture.dump()));
    QCOMPARE(link.isNull() || link.isEmpty(), expected.isEmpty());
}

void tst_LinkManager::setLanguageStoresAndSignals()
{
    const QString path = writeFile(sampleCatalogue());
    QVERIFY(!path.isEmpty());
    LinkManager manager(path);
    QCOMPARE(manager.currentLanguage(), QStringLiteral("de"));
    QSignalSpy spy(&manager, &LinkManager::languageChanged);

    manager.setLanguage("ar");
    QCOMPARE(manager.currentLanguage(), QStringLiteral("ar"));
    QCOMPARE(storedLanguage(), QStringLiteral("ar"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("ar"));

    // A new instance picks the stored choice up.
    LinkManager next(path);
    QCOMPARE(next.currentLanguage(), QStringLiteral("ar"));
}

void tst_LinkManager::setLanguageToCurrentIsSilent()
{
    const QString path = writeFile(sampleCatalogue());
    QVERIFY(!path.isEmpty());
    LinkManager manager(path);
    QCOMPARE(manager.currentLanguage(), QStringLiteral("de"));
    QSignalSpy spy(&manager, &LinkManager::languageChanged);

    // The locale gave "de" and nothing is stored yet: setting it again must not store it either.
    manager.setLanguage("de");
    QCOMPARE(spy.count(), 0);
    QVERIFY(!settingsStore().contains("language"));
    QCOMPARE(manager.currentLanguage(), QStringLiteral("de"));
}

void tst_LinkManager::setLanguageRejectsUnsupported_data()
{
    QTest::addColumn<QString>("code");

    QTest::newRow("unknown code") << "xx";
    QTest::newRow("locale name instead of a code") << "de_DE";
    QTest::newRow("wrong case") << "ZH_CN";
    QTest::newRow("empty") << "";
}

void tst_LinkManager::setLanguageRejectsUnsupported()
{
    QFETCH(QString, code);

    storeLanguage("fr");
    const QString path = writeFile(sampleCatalogue());
    QVERIFY(!path.isEmpty());
    LinkManager manager(path);
    QSignalSpy spy(&manager, &LinkManager::languageChanged);

    manager.setLanguage(code);
    QCOMPARE(manager.currentLanguage(), QStringLiteral("fr"));
    QCOMPARE(storedLanguage(), QStringLiteral("fr"));
    QCOMPARE(spy.count(), 0);
}

void tst_LinkManager::badFileGivesEmptyCatalogue_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QString>("reason");

    const QString malformed = QStringLiteral("[LinkManager] JSON 格式错误");
    QTest::newRow("missing file") << QByteArray() << false << QStringLiteral("[LinkManager] 无法打开 links.json:");
    QTest::newRow("empty file") << QByteArray() << true << malformed;
    QTest::newRow("truncated JSON") << sampleCatalogue().left(120) << true << malformed;
    QTest::newRow("array root") << QByteArray("[{\"support\":{}}]") << true << malformed;
    QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe{\x01", 5) << true << malformed;
}

void tst_LinkManager::badFileGivesEmptyCatalogue()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, exists);
    QFETCH(QString, reason);

    storeLanguage("fr");
    const QString path = exists ? writeFile(content) : m_dir.filePath("absent.json");
    QVERIFY(!path.isEmpty());

    const LogCapture capture;
    LinkManager manager(path);
    // The reason comes first (an unopenable file adds the system's error text), then the failure.
    const QString log = capture.dump();
    const int failed = log.indexOf(QStringLiteral("[LinkManager] 加载链接配置失败！"));
    QVERIFY2(failed > 0 && log.lastIndexOf(reason, failed) >= 0 && !log.contains(QStringLiteral("元数据加载成功")),
        qPrintable(log));
    QVERIFY(manager.supportedLanguages().isEmpty());
    // Nothing is supported, so neither the stored code nor the locale's is taken.
    QCOMPARE(manager.currentLanguage(), QStringLiteral("en"));
    QVERIFY(manager.getLink("support", "help").isEmpty());
    QVERIFY(manager.getLink("menu", "support").isEmpty());

    QSignalSpy spy(&manager, &LinkManager::languageChanged);
    manager.setLanguage("de");
    QCOMPARE(spy.count(), 0);
    QCOMPARE(storedLanguage(), QStringLiteral("fr"));
}

void tst_LinkManager::resourceCatalogueIsComplete()
{
    const QMap<QString, QStringList> keys {
        { "support", { "help", "contact", "tutorial", "faq" } },
        { "menu", { "about", "support" } },
        { "website", { "home", "product" } },
    };

    QFile file(":/data/data/links.json");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject metadata = root.value("metadata").toObject();
    QCOMPARE(metadata.value("version").toString(), QStringLiteral("1.0.0"));
    QVERIFY(QDate::fromString(metadata.value("last_updated").toString(), Qt::ISODate).isValid());
    QCOMPARE(metadata.value("fallback_language").toString(), QStringLiteral("en"));
    QCOMPARE(root.keys().size(), keys.size() + 1);

    LinkManager* manager = LinkManager::instance();
    QCOMPARE(LinkManager::instance(), manager);
    QCOMPARE(manager->supportedLanguages(), AllCodes);
    QCOMPARE(manager->fallbackLanguage(), QStringLiteral("en"));

    QSet<QString> seen;
    for (const QString& code : AllCodes) {
        manager->setLanguage(code);
        QCOMPARE(manager->currentLanguage(), code);
        for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
            QCOMPARE(root.value(it.key()).toObject().keys().size(), it.value().size());
            for (const QString& key : it.value()) {
                const QJsonObject perLanguage = root.value(it.key()).toObject().value(key).toObject();
                QCOMPARE(perLanguage.size(), AllCodes.size());
                // Read straight from the file, so a fallback cannot hide a missing language.
                QVERIFY2(perLanguage.value(code).isString(), qPrintable(it.key() + '/' + key + '/' + code));
                const QString link = manager->getLink(it.key(), key);
                QCOMPARE(link, perLanguage.value(code).toString());
                const QUrl url(link, QUrl::StrictMode);
                QVERIFY2(url.isValid() && url.scheme() == "https" && !url.host().isEmpty(), qPrintable(link));
                seen.insert(link);
            }
        }
    }
    // Every language and page has an address of its own.
    QCOMPARE(seen.size(), AllCodes.size() * 8);
}

int main(int argc, char* argv[])
{
    qputenv("LC_ALL", SystemLocale);
    qputenv("LANG", SystemLocale);
    QApplication app(argc, argv);
    tst_LinkManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_linkmanager.moc"
