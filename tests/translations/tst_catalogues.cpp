#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

// Every catalogue the program ships; the list is the program's promise, so the test keeps its own.
static const char* const Codes[]
    = { "zh_CN", "zh_TW", "en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it", "ar", "tr" };

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString type; // "", "unfinished", "vanished", "obsolete"

    QString key() const { return context + QChar(0) + source + QChar(0) + comment; }
    QString where() const { return context + QStringLiteral(": \"") + source + QLatin1Char('"'); }
};

struct Catalogue {
    bool readable = false;
    QString error;
    QList<Message> messages;
};

Catalogue readCatalogue(const QString& path)
{
    Catalogue catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        catalogue.error = file.errorString();
        return catalogue;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            Message message;
            message.context = context;
            while (xml.readNextStartElement()) {
                if (xml.name() == QLatin1String("source")) {
                    message.source = xml.readElementText();
                } else if (xml.name() == QLatin1String("comment")) {
                    message.comment = xml.readElementText();
                } else if (xml.name() == QLatin1String("translation")) {
                    message.type = xml.attributes().value(QLatin1String("type")).toString();
                    message.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
                } else {
                    xml.skipCurrentElement();
                }
            }
            catalogue.messages.append(message);
        }
    }
    if (xml.hasError())
        catalogue.error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    catalogue.readable = !xml.hasError();
    return catalogue;
}

QString sourcePath(const QString& code)
{
    return QStringLiteral(NORVALE_TS_DIR "/Norvale_%1.ts").arg(code);
}

// Lists at most a handful of offenders, so one broken catalogue gives a readable failure.
QString summarise(const QStringList& problems)
{
    const int shown = 8;
    QString text = problems.mid(0, shown).join(QStringLiteral("\n    "));
    if (problems.size() > shown)
        text += QStringLiteral("\n    … and %1 more").arg(problems.size() - shown);
    return QStringLiteral("%1 problem(s):\n    %2").arg(problems.size()).arg(text);
}

QMap<int, int> placeholderCounts(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?([1-9])(?![0-9])"));
    QMap<int, int> counts;
    for (auto it = placeholder.globalMatch(text); it.hasNext();)
        ++counts[it.next().captured(1).toInt()];
    return counts;
}

// Tags as written, in order of appearance; a translation may move them but must carry the same
// ones.
QStringList tags(const QString& text)
{
    static const QRegularExpression tag(QStringLiteral("</?[A-Za-z][A-Za-z0-9]*(?:\\s[^<>]*)?/?>"));
    QStringList found;
    for (auto it = tag.globalMatch(text); it.hasNext();)
        found.append(it.next().captured(0));
    std::sort(found.begin(), found.end());
    return found;
}

// In rich text an ampersand must open an entity; a bare one is shown raw or swallows the words
// after it. The entity itself may be translated away ("&amp;" becoming a word).
bool hasBareAmpersand(const QString& text)
{
    static const QRegularExpression bare(QStringLiteral("&(?!(?:[A-Za-z]+|#[0-9]+|#x[0-9A-Fa-f]+);)"));
    return bare.match(text).hasMatch();
}

// Empty when every opened element is closed in the right order.
QString nestingError(const QString& text)
{
    static const QRegularExpression tag(QStringLiteral("<(/?)([A-Za-z][A-Za-z0-9]*)(?:\\s[^<>]*)?(/?)>"));
    static const QSet<QString> empty { QStringLiteral("br"), QStringLiteral("hr"), QStringLiteral("img") };
    QStringList open;
    for (auto it = tag.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        const QString name = match.captured(2).toLower();
        if (empty.contains(name) || !match.captured(3).isEmpty())
            continue;
        if (match.captured(1).isEmpty()) {
            open.append(name);
        } else if (open.isEmpty() || open.takeLast() != name) {
            return QStringLiteral("stray </%1>").arg(name);
        }
    }
    return open.isEmpty() ? QString() : QStringLiteral("unclosed <%1>").arg(open.last());
}

bool isLeadingSymbol(const QString& text, int at)
{
    const uint code = text.at(at).isHighSurrogate() && at + 1 < text.size()
        ? QChar::surrogateToUcs4(text.at(at), text.at(at + 1))
        : text.at(at).unicode();
    switch (QChar::category(code)) {
    case QChar::Symbol_Math:
    case QChar::Symbol_Other:
    case QChar::Symbol_Modifier:
    case QChar::Punctuation_Other:
        return code > 0x7f; // emoji, arrows, the bullet; not "<" opening a tag
    default: {
        // An emoji spelt with a letter-like base, such as the information sign.
        const int next = at + (code > 0xffff ? 2 : 1);
        return next < text.size() && text.at(next).unicode() == 0xfe0f;
    }
    }
}

// The symbol a text opens with and the blanks after it ("🗑", "  "), or nothing when the text does
// not open with a symbol that introduces words.
QPair<QString, QString> leadingSymbol(const QString& text)
{
    if (text.isEmpty() || !isLeadingSymbol(text, 0))
        return {};
    int end = 0;
    while (end < text.size() && !text.at(end).isSpace())
        ++end;
    int words = end;
    while (words < text.size() && text.at(words) == QLatin1Char(' '))
        ++words;
    if (words == end || words == text.size())
        return {};
    return { text.left(end), text.mid(end, words - end) };
}

// Empty when the translation carries the source's tags and entities, properly nested.
QString markupError(const QString& source, const QString& translation)
{
    const QString nesting = nestingError(translation);
    if (!nesting.isEmpty())
        return nesting;
    if (tags(source) != tags(translation))
        return QStringLiteral("tags differ from the source's");
    if (!tags(source).isEmpty() && hasBareAmpersand(translation))
        return QStringLiteral("bare ampersand in rich text");
    return {};
}

bool keepsLeadingSymbol(const QString& source, const QString& translation)
{
    const auto lead = leadingSymbol(source);
    if (lead.first.isEmpty())
        return true;
    const QString prefix = lead.first + lead.second;
    return translation.startsWith(prefix) && !translation.mid(prefix.size()).startsWith(QLatin1Char(' '));
}

// The English catalogue keeps the wording the English interface has always shown, which drops or
// narrows a few of the Chinese sources' symbols.
bool englishWordingKeepsItsOwnSymbol(const QString& code, const Message& m)
{
    static const QSet<QString> keys = [] {
        const QPair<const char*, const char*> entries[] = {
            { "TitleBar", "💬  Support" },
            { "CleanupPage", "🗑 清理选中项" },
            { "WinAppsPage", "↻ 刷新" },
            { "WinAppsPage", "🗑  移除所选" },
            { "WinAppsPage", "🗑  移除所选 (%1)" },
            { "BrowserExtPage", "🗑  移除所选" },
            { "BrowserExtPage", "🗑  移除所选 (%1)" },
        };
        QSet<QString> set;
        for (const auto& [context, source] : entries)
            set.insert(QString::fromUtf8(context) + QChar(0) + QString::fromUtf8(source));
        return set;
    }();
    return code == QLatin1String("en") && keys.contains(m.context + QChar(0) + m.source);
}

} // namespace

class tst_Catalogues : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void everyEntryFinished_data() { codes(); }
    void everyEntryFinished();
    void matchesTheCode_data() { codes(); }
    void matchesTheCode();
    void placeholdersKept_data() { codes(); }
    void placeholdersKept();
    void markupKept_data() { codes(); }
    void markupKept();
    void leadingSymbolKept_data() { codes(); }
    void leadingSymbolKept();
    void layoutDirection_data();
    void layoutDirection();

    void translates_data();
    void translates();

    void detectorsCatchFaults_data();
    void detectorsCatchFaults();

private:
    static void codes();
    Catalogue catalogue(const QString& code);

    QTemporaryDir refreshed;
    QString lupdateError;
    QHash<QString, Catalogue> cache;
};

void tst_Catalogues::codes()
{
    QTest::addColumn<QString>("code");
    for (const char* code : Codes)
        QTest::newRow(code) << QString::fromLatin1(code);
}

Catalogue tst_Catalogues::catalogue(const QString& code)
{
    if (!cache.contains(code))
        cache.insert(code, readCatalogue(sourcePath(code)));
    return cache.value(code);
}

// One lupdate run refreshes copies of all catalogues exactly as the update_translations target
// would refresh the real ones; each test row then compares its catalogue with its copy.
void tst_Catalogues::initTestCase()
{
    QVERIFY(refreshed.isValid());
    QStringList arguments { QStringLiteral("-no-obsolete"), QStringLiteral("-locations"), QStringLiteral("none"),
        QStringLiteral("-silent"), QStringLiteral("@" NORVALE_LUPDATE_SOURCES), QStringLiteral("-ts") };
    for (const char* code : Codes) {
        const QString copy = refreshed.filePath(QStringLiteral("Norvale_%1.ts").arg(QLatin1String(code)));
        if (QFile::copy(sourcePath(QLatin1String(code)), copy))
            arguments.append(copy);
    }
    QProcess lupdate;
    lupdate.start(QStringLiteral(NORVALE_LUPDATE), arguments);
    if (!lupdate.waitForFinished(120000) || lupdate.exitStatus() != QProcess::NormalExit || lupdate.exitCode() != 0)
        lupdateError = QStringLiteral("lupdate failed: %1 %2")
                           .arg(lupdate.errorString(), QString::fromLocal8Bit(lupdate.readAllStandardError()));
}

void tst_Catalogues::everyEntryFinished()
{
    QFETCH(QString, code);
    const Catalogue cat = catalogue(code);
    QVERIFY2(cat.readable, qPrintable(sourcePath(code) + QStringLiteral(": ") + cat.error));
    QVERIFY2(!cat.messages.isEmpty(), "no messages");

    QStringList problems;
    for (const Message& m : cat.messages) {
        if (!m.type.isEmpty())
            problems.append(m.type + QStringLiteral(": ") + m.where());
        else if (m.translation.isEmpty())
            problems.append(QStringLiteral("empty: ") + m.where());
    }
    QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
}

void tst_Catalogues::matchesTheCode()
{
    QFETCH(QString, code);
    QVERIFY2(lupdateError.isEmpty(), qPrintable(lupdateError));
    const Catalogue cat = catalogue(code);
    const Catalogue fromCode = readCatalogue(refreshed.filePath(QStringLiteral("Norvale_%1.ts").arg(code)));
    QVERIFY2(cat.readable && fromCode.readable, qPrintable(cat.error + fromCode.error));

    QSet<QString> inCatalogue;
    for (const Message& m : cat.messages)
        inCatalogue.insert(m.key());
    QSet<QString> inCode;
    QStringList problems;
    for (const Message& m : fromCode.messages) {
        inCode.insert(m.key());
        if (!inCatalogue.contains(m.key()))
            problems.append(QStringLiteral("missing: ") + m.where());
    }
    for (const Message& m : cat.messages) {
        if (!inCode.contains(m.key()))
            problems.append(QStringLiteral("no longer in the code: ") + m.where());
    }
    QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
}

void tst_Catalogues::placeholdersKept()
{
    QFETCH(QString, code);
    QStringList problems;
    for (const Message& m : catalogue(code).messages) {
        if (!m.translation.isEmpty() && placeholderCounts(m.source) != placeholderCounts(m.translation))
            problems.append(m.where() + QStringLiteral(" → \"") + m.translation + QLatin1Char('"'));
    }
    QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
}

void tst_Catalogues::markupKept()
{
    QFETCH(QString, code);
    QStringList problems;
    for (const Message& m : catalogue(code).messages) {
        if (m.translation.isEmpty())
            continue;
        const QString error = markupError(m.source, m.translation);
        if (!error.isEmpty())
            problems.append(
                error + QStringLiteral(": ") + m.where() + QStringLiteral(" → \"") + m.translation + QLatin1Char('"'));
    }
    QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
}

void tst_Catalogues::leadingSymbolKept()
{
    QFETCH(QString, code);
    QStringList problems;
    for (const Message& m : catalogue(code).messages) {
        if (m.translation.isEmpty() || englishWordingKeepsItsOwnSymbol(code, m))
            continue;
        if (!keepsLeadingSymbol(m.source, m.translation))
            problems.append(m.where() + QStringLiteral(" → \"") + m.translation + QLatin1Char('"'));
    }
    QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
}

void tst_Catalogues::layoutDirection_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<Qt::LayoutDirection>("expected");
    for (const char* code : Codes) {
        const bool rightToLeft = qstrcmp(code, "ar") == 0;
        QTest::newRow(code) << QString::fromLatin1(code) << (rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    }
}

// Qt, not the program, turns the catalogue's answer into the window's direction: the compiled
// catalogue must answer Qt's own question, comment and all.
void tst_Catalogues::layoutDirection()
{
    QFETCH(QString, code);
    QFETCH(Qt::LayoutDirection, expected);

    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translations/translations/Norvale_%1.qm").arg(code)));
    // Qt refuses to install a catalogue with no finished entry at all.
    QVERIFY2(QCoreApplication::installTranslator(&translator), "the catalogue holds no translation");
    QCoreApplication::sendPostedEvents(qApp, QEvent::LanguageChange);
    const Qt::LayoutDirection direction = QGuiApplication::layoutDirection();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents(qApp, QEvent::LanguageChange);
    QCOMPARE(direction, expected);
}

void tst_Catalogues::translates_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");

    QTest::newRow("en: Chinese-source sidebar text") << "en"
                                                     << "Sidebar" << QString::fromUtf8("系统概览") << "System Overview";
    QTest::newRow("en: English source with its own English text") << "en"
                                                                  << "TitleBar"
                                                                  << "Quit"
                                                                  << "Exit";
    QTest::newRow("en: misspelt About source gets the proper word")
        << "en"
        << "TitleBar" << QString::fromUtf8("ℹ️  Qbout Norvale") << QString::fromUtf8("ℹ️  About Norvale");
    QTest::newRow("en: English source answers with itself") << "en"
                                                            << "ForceRemoveRowWidget"
                                                            << "Service"
                                                            << "Service";
    QTest::newRow("zh_CN: English-source menu text") << "zh_CN"
                                                     << "TitleBar"
                                                     << "Quit" << QString::fromUtf8("退出");
    QTest::newRow("zh_CN: Chinese source answers with itself")
        << "zh_CN"
        << "Sidebar" << QString::fromUtf8("系统概览") << QString::fromUtf8("系统概览");
}

void tst_Catalogues::translates()
{
    QFETCH(QString, code);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, expected);

    QTranslator translator;
    const QString qm = QStringLiteral(":/translations/translations/Norvale_%1.qm").arg(code);
    QVERIFY2(translator.load(qm), qPrintable(qm));
    QCOMPARE(translator.translate(context.toUtf8().constData(), source.toUtf8().constData()), expected);
}

// The checks above pass vacuously if their detectors see nothing; these rows show each one
// firing on the kind of slip a translator makes.
void tst_Catalogues::detectorsCatchFaults_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("placeholdersOk");
    QTest::addColumn<bool>("markupOk");
    QTest::addColumn<bool>("symbolOk");

    QTest::newRow("faithful") << "🗑  Remove <b>%1</b> of %2"
                              << "🗑  Entfernen: <b>%1</b> von %2" << true << true << true;
    QTest::newRow("placeholders reordered") << "%1 / %2"
                                            << "%2 中的 %1" << true << true << true;
    QTest::newRow("placeholder dropped") << "Removing %1 (%2/%3)"
                                         << "Entferne %1 (%2)" << false << true << true;
    QTest::newRow("placeholder doubled") << "Done: %1"
                                         << "%1 fertig: %1" << false << true << true;
    QTest::newRow("%10 is not %1") << "%1 items"
                                   << "%10 items" << false << true << true;
    QTest::newRow("tag moved") << "Found <b>%1</b> items"
                               << "<b>%1</b> gefunden" << true << true << true;
    QTest::newRow("tag unclosed") << "Freed <b>%1</b>"
                                  << "<b>%1 freigegeben" << true << false << true;
    QTest::newRow("tags crossed") << "<b><i>x</i></b>"
                                  << "<b><i>x</b></i>" << true << false << true;
    QTest::newRow("tag restyled") << "<span style='color:red;'>x</span>"
                                  << "<span style=\"color:red\">x</span>" << true << false << true;
    QTest::newRow("entity left bare") << "<b>A</b> &amp; B"
                                      << "<b>A</b> & B" << true << false << true;
    QTest::newRow("entity said in words")
        << "<b>A</b> &amp; B" << QString::fromUtf8("<b>A</b> 和 B") << true << true << true;
    QTest::newRow("markup opens the text")
        << "<b>%1</b> programs" << QString::fromUtf8("共 <b>%1</b> 个程序") << true << true << true;
    QTest::newRow("line break lost") << "a<br>b"
                                     << "a b" << true << false << true;
    QTest::newRow("emoji lost") << "🗑  Remove selected"
                                << "Auswahl entfernen" << true << true << false;
    QTest::newRow("emoji blank narrowed") << "🗑  Remove selected"
                                          << "🗑 Auswahl entfernen" << true << true << false;
    QTest::newRow("emoji blank widened") << "☑ Select All"
                                         << "☑  Alle" << true << true << false;
    QTest::newRow("emoji with selector") << "ℹ️  Qbout Norvale"
                                         << "ℹ️  À propos de Norvale" << true << true << true;
    QTest::newRow("bullet kept") << "• %1：%2"
                                 << "• %1: %2" << true << true << true;
    QTest::newRow("symbol alone is no lead") << "▼"
                                             << "▼" << true << true << true;
    QTest::newRow("trailing symbol is free") << "Done ✓"
                                             << "✓ Fertig" << true << true << true;
}

void tst_Catalogues::detectorsCatchFaults()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QFETCH(bool, placeholdersOk);
    QFETCH(bool, markupOk);
    QFETCH(bool, symbolOk);

    QCOMPARE(placeholderCounts(source) == placeholderCounts(translation), placeholdersOk);
    QCOMPARE(markupError(source, translation).isEmpty(), markupOk);
    QCOMPARE(keepsLeadingSymbol(source, translation), symbolOk);
}

QTEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
