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

    QTemporaryDir refreshed;
    QString lupdateError;
    QHash<QString, Catalogue> cache;

    static void codes()
    {
        QTest::addColumn<QString>("code");
        for (const char* code : Codes)
            QTest::newRow(code) << QString::fromLatin1(code);
    }

    Catalogue catalogue(const QString& code)
    {
        if (!cache.contains(code))
            cache.insert(code, readCatalogue(sourcePath(code)));
        return cache.value(code);
    }

private slots:
    // One lupdate run refreshes copies of all catalogues exactly as the update_translations target
    // would refresh the real ones; each test row then compares its catalogue with its copy.
    void initTestCase()
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

    void everyEntryFinished_data() { codes(); }
    void everyEntryFinished()
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

    void matchesTheCode_data() { codes(); }
    void matchesTheCode()
    {
        QFETCH(QString, code);
        QVERIFY2(lupdateError.isEmpty(), qPrintable(lupdateError));
        const Catalogue cat = catalogue(code);
        const Catalogue fromCode = readCatalogue(refreshed.filePath(QStringLiteral("Norvale_%1.ts").arg(code)));
        QVERIFY2(cat.readable && fromCode.readable, qPrintable(cat.error + fromCode.error));
        QSet<QString> inCatalogue, inCode;
        for (const Message& m : cat.messages)
            inCatalogue.insert(m.key());
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

    // Placeholders, markup and the leading symbol survive translation, each reported by its rule.
    void translationsKeepTheirForm_data() { codes(); }
    void translationsKeepTheirForm()
    {
        QFETCH(QString, code);
        QStringList problems;
        for (const Message& m : catalogue(code).messages) {
            if (m.translation.isEmpty())
                continue;
            QString error = markupError(m.source, m.translation);
            if (placeholderCounts(m.source) != placeholderCounts(m.translation))
                error = QStringLiteral("placeholders differ");
            else if (error.isEmpty() && !englishWordingKeepsItsOwnSymbol(code, m)
                && !keepsLeadingSymbol(m.source, m.translation))
                error = QStringLiteral("leading symbol lost");
            if (!error.isEmpty())
                problems.append(error + QStringLiteral(": ") + m.where() + QStringLiteral(" → \"") + m.translation
                    + QLatin1Char('"'));
        }
        QVERIFY2(problems.isEmpty(), qPrintable(summarise(problems)));
    }

    // Qt, not the program, turns the catalogue's answer into the window's direction: the compiled
    // catalogue must answer Qt's own question, comment and all.
    void layoutDirection_data() { codes(); }
    void layoutDirection()
    {
        QFETCH(QString, code);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translations/translations/Norvale_%1.qm").arg(code)));
        // Qt refuses to install a catalogue with no finished entry at all.
        QVERIFY2(QCoreApplication::installTranslator(&translator), "the catalogue holds no translation");
        QCoreApplication::sendPostedEvents(qApp, QEvent::LanguageChange);
        const Qt::LayoutDirection direction = QGuiApplication::layoutDirection();
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::sendPostedEvents(qApp, QEvent::LanguageChange);
        QCOMPARE(direction, code == QLatin1String("ar") ? Qt::RightToLeft : Qt::LeftToRight);
    }

    void translates_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("expected");
        const auto row
            = [](const char* what, const char* code, const char* context, const char* source, const char* expected) {
                  QTest::newRow(what) << code << context << QString::fromUtf8(source) << QString::fromUtf8(expected);
              };
        row("en: Chinese-source sidebar text", "en", "Sidebar", "系统概览", "System Overview");
        row("en: English source with its own English text", "en", "TitleBar", "Quit", "Exit");
        row("en: misspelt About source gets the proper word", "en", "TitleBar", "ℹ️  Qbout Norvale",
            "ℹ️  About Norvale");
        row("en: English source answers with itself", "en", "ForceRemoveRowWidget", "Service", "Service");
        row("zh_CN: English-source menu text", "zh_CN", "TitleBar", "Quit", "退出");
        row("zh_CN: Chinese source answers with itself", "zh_CN", "Sidebar", "系统概览", "系统概览");
    }
    void translates()
    {
        QFETCH(QString, code);
        QFETCH(QString, context);
        QFETCH(QString, source);
        QTranslator translator;
        const QString qm = QStringLiteral(":/translations/translations/Norvale_%1.qm").arg(code);
        QVERIFY2(translator.load(qm), qPrintable(qm));
        QTEST(translator.translate(context.toUtf8().constData(), source.toUtf8().constData()), "expected");
    }

    // The checks above pass vacuously if their detectors see nothing; each row shows one firing on
    // the kind of slip a translator makes.
    void detectorsCatchFaults_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        QTest::addColumn<bool>("placeholdersOk");
        QTest::addColumn<bool>("markupOk");
        QTest::addColumn<bool>("symbolOk");
        const auto row = [](const char* what, const char* source, const char* translation, bool placeholders,
                             bool markup, bool symbol) {
            QTest::newRow(what) << QString::fromUtf8(source) << QString::fromUtf8(translation) << placeholders << markup
                                << symbol;
        };
        row("faithful", "🗑  Remove <b>%1</b> of %2", "🗑  Entfernen: <b>%1</b> von %2", true, true, true);
        row("placeholders reordered", "%1 / %2", "%2 中的 %1", true, true, true);
        row("placeholder dropped", "Removing %1 (%2/%3)", "Entferne %1 (%2)", false, true, true);
        row("%10 is not %1", "%1 items", "%10 items", false, true, true);
        row("tags crossed", "<b><i>x</i></b>", "<b><i>x</b></i>", true, false, true);
        row("tag restyled", "<span style='color:red;'>x</span>", "<span style=\"color:red\">x</span>", true, false,
            true);
        row("entity left bare", "<b>A</b> &amp; B", "<b>A</b> & B", true, false, true);
        row("emoji blank narrowed", "🗑  Remove selected", "🗑 Auswahl entfernen", true, true, false);
        row("emoji with selector", "ℹ️  Qbout Norvale", "ℹ️  À propos de Norvale", true, true, true);
    }
    void detectorsCatchFaults()
    {
        QFETCH(QString, source);
        QFETCH(QString, translation);
        QTEST(placeholderCounts(source) == placeholderCounts(translation), "placeholdersOk");
        QTEST(markupError(source, translation).isEmpty(), "markupOk");
        QTEST(keepsLeadingSymbol(source, translation), "symbolOk");
    }
};

QTEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
