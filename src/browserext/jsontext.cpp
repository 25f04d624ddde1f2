#include "jsontext.h"

#include <QJsonDocument>
#include <QStringDecoder>

#include <algorithm>

namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

QByteArray quoted(const QString& text)
{
    // Keys written here are fixed ASCII words; escaping covers anything else correctly anyway.
    QByteArray out = "\"";
    for (const char c : text.toUtf8()) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += QByteArray("\\u00") + QByteArray::number(static_cast<unsigned char>(c), 16).rightJustified(2, '0');
        } else {
            out += c;
        }
    }
    return out + '"';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// One past a string starting at `pos`, or -1. Strict: no raw control characters, only the escapes
// JSON knows, four hex digits after \u.
qsizetype strictStringEnd(const QByteArray& text, qsizetype pos)
{
    const qsizetype size = text.size();
    for (++pos; pos < size;) {
        const char c = text.at(pos);
        if (c == '"')
            return pos + 1;
        if (static_cast<unsigned char>(c) < 0x20)
            return -1;
        if (c != '\\') {
            ++pos;
            continue;
        }
        const char e = pos + 1 < size ? text.at(pos + 1) : '\0';
        if (e == 'u') {
            for (qsizetype i = pos + 2; i < pos + 6; ++i) {
                if (i >= size || !isHexDigit(text.at(i)))
                    return -1;
            }
            pos += 6;
        } else if (e != '\0' && QByteArrayView("\"\\/bfnrt").contains(e)) {
            pos += 2;
        } else {
            return -1;
        }
    }
    return -1;
}

// One past a number starting at `pos`, or -1: "-"? ("0" | [1-9][0-9]*) ("." [0-9]+)? ([eE] [+-]? [0-9]+)?
qsizetype strictNumberEnd(const QByteArray& text, qsizetype pos)
{
    const qsizetype size = text.size();
    auto at = [&](qsizetype i) { return i < size ? text.at(i) : '\0'; };
    auto digits = [&](qsizetype i) {
        const qsizetype begin = i;
        while (isDigit(at(i)))
            ++i;
        return i > begin ? i : -1;
    };
    if (at(pos) == '-')
        ++pos;
    if (at(pos) == '0')
        ++pos;
    else if ((pos = digits(pos)) < 0)
        return -1;
    if (at(pos) == '.' && (pos = digits(pos + 1)) < 0)
        return -1;
    if (at(pos) == 'e' || at(pos) == 'E') {
        ++pos;
        if (at(pos) == '+' || at(pos) == '-')
            ++pos;
        pos = digits(pos);
    }
    return pos;
}

// The text from `pos` is exactly one JSON value and trailing space. The reader in front of this
// forgives things a browser's own reader refuses (unknown escapes, raw control characters, "1."
// and ".5"); a file a browser would reject is not one this class may edit and write back.
// Iterative, so nesting depth costs no stack.
bool isStrictJson(const QByteArray& text, qsizetype pos)
{
    enum class Expect { Value, ValueOrEnd, Key, KeyOrEnd, Next };
    const qsizetype size = text.size();
    auto at = [&](qsizetype i) { return i < size ? text.at(i) : '\0'; };
    QByteArray open; // the brackets of the containers we are inside, innermost last
    Expect expect = Expect::Value;
    for (;;) {
        while (pos < size && isSpace(text.at(pos)))
            ++pos;
        const char c = at(pos);
        switch (expect) {
        case Expect::ValueOrEnd:
        case Expect::Value:
            if (expect == Expect::ValueOrEnd && c == ']') {
                open.chop(1);
                ++pos;
                expect = Expect::Next;
            } else if (c == '{' || c == '[') {
                open += c;
                ++pos;
                expect = c == '{' ? Expect::KeyOrEnd : Expect::ValueOrEnd;
            } else {
                if (c == '"') {
                    pos = strictStringEnd(text, pos);
                } else if (c == '-' || isDigit(c)) {
                    pos = strictNumberEnd(text, pos);
                } else {
                    qsizetype end = -1;
                    for (const char* literal : { "true", "false", "null" }) {
                        // The text's terminating NUL ends a comparison that reaches its end.
                        if (qstrncmp(text.constData() + pos, literal, qstrlen(literal)) == 0)
                            end = pos + qstrlen(literal);
                    }
                    pos = end;
                }
                if (pos < 0)
                    return false;
                expect = Expect::Next;
            }
            break;
        case Expect::KeyOrEnd:
        case Expect::Key:
            if (expect == Expect::KeyOrEnd && c == '}') {
                open.chop(1);
                ++pos;
                expect = Expect::Next;
                break;
            }
            if (c != '"' || (pos = strictStringEnd(text, pos)) < 0)
                return false;
            while (pos < size && isSpace(text.at(pos)))
                ++pos;
            if (at(pos) != ':')
                return false;
            ++pos;
            expect = Expect::Value;
            break;
        case Expect::Next:
            if (open.isEmpty())
                return pos == size;
            if (c == ',') {
                ++pos;
                expect = open.endsWith('{') ? Expect::Key : Expect::Value;
            } else if ((c == '}' && open.endsWith('{')) || (c == ']' && open.endsWith('['))) {
                open.chop(1);
                ++pos;
            } else {
                return false;
            }
            break;
        }
    }
}

} // namespace

JsonText::JsonText(QByteArray text)
    : m_text(std::move(text))
{
    const qsizetype start = m_text.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(m_text.mid(start), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject() || !isStrictJson(m_text, start))
        return;
    // Both readers have accepted the text, so the span walks below meet only well-formed JSON.
    const qsizetype begin = skipSpace(start);
    const qsizetype end = valueEnd(begin);
    if (at(begin) == '{' && end > begin)
        m_root = { begin, end };
}

qsizetype JsonText::skipSpace(qsizetype pos) const
{
    while (pos < m_text.size() && isSpace(m_text.at(pos)))
        ++pos;
    return pos;
}

qsizetype JsonText::stringEnd(qsizetype pos) const
{
    for (++pos; pos < m_text.size(); ++pos) {
        const char c = m_text.at(pos);
        if (c == '\\')
            ++pos;
        else if (c == '"')
            return pos + 1;
    }
    return -1;
}

qsizetype JsonText::valueEnd(qsizetype pos) const
{
    const char first = at(pos);
    if (first == '"')
        return stringEnd(pos);
    if (first == '{' || first == '[') {
        // Counted, not recursive: nesting depth costs nothing here.
        qsizetype depth = 0;
        while (pos < m_text.size()) {
            const char c = m_text.at(pos);
            if (c == '"') {
                pos = stringEnd(pos);
                if (pos < 0)
                    return -1;
                continue;
            }
            if (c == '{' || c == '[') {
                ++depth;
            } else if (c == '}' || c == ']') {
                if (--depth == 0)
                    return pos + 1;
            }
            ++pos;
        }
        return -1;
    }
    const qsizetype begin = pos;
    while (pos < m_text.size()) {
        const char c = m_text.at(pos);
        if (c == ',' || c == '}' || c == ']' || isSpace(c))
            break;
        ++pos;
    }
    return pos > begin ? pos : -1;
}

JsonText::Span JsonText::member(Span object, const QString& key) const
{
    Span found;
    if (!object.isValid() || !isObject(object))
        return found;
    qsizetype pos = skipSpace(object.begin + 1);
    while (pos < object.end && at(pos) == '"') {
        const Span keySpan { pos, stringEnd(pos) };
        if (keySpan.end < 0)
            return Span();
        pos = skipSpace(keySpan.end);
        if (at(pos) != ':')
            return Span();
        const qsizetype valueBegin = skipSpace(pos + 1);
        const qsizetype end = valueEnd(valueBegin);
        if (end < 0)
            return Span();
        if (string(keySpan) == key)
            found = { valueBegin, end };
        pos = skipSpace(end);
        if (at(pos) != ',')
            break;
        pos = skipSpace(pos + 1);
    }
    return found;
}

QList<JsonText::Span> JsonText::elements(Span array) const
{
    QList<Span> result;
    if (!array.isValid() || !isArray(array))
        return result;
    qsizetype pos = skipSpace(array.begin + 1);
    while (pos < array.end - 1 && at(pos) != ']') {
        const qsizetype end = valueEnd(pos);
        if (end < 0)
            return {};
        result.append({ pos, end });
        pos = skipSpace(end);
        if (at(pos) != ',')
            break;
        pos = skipSpace(pos + 1);
    }
    return result;
}

QString JsonText::string(Span span) const
{
    if (!span.isValid() || !isString(span))
        return QString();
    const QByteArray raw = m_text.mid(span.begin + 1, span.end - span.begin - 2);
    if (!raw.contains('\\'))
        return QString::fromUtf8(raw);
    // Read as Qt's parser reads a string with escapes: a U+FEFF at the start or after a \u escape
    // is a character like any other, not a byte-order mark to drop. Dropping it would let a
    // crafted key stand for the extension's own.
    QString out;
    QByteArray plain;
    auto flush = [&] {
        QStringDecoder utf8(
            QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
        out += utf8.decode(plain);
        plain.clear();
    };
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const char c = raw.at(i);
        if (c != '\\' || i + 1 >= raw.size()) {
            plain += c;
            continue;
        }
        const char e = raw.at(++i);
        switch (e) {
        case 'b':
            plain += '\b';
            break;
        case 'f':
            plain += '\f';
            break;
        case 'n':
            plain += '\n';
            break;
        case 'r':
            plain += '\r';
            break;
        case 't':
            plain += '\t';
            break;
        case 'u': {
            flush();
            bool ok = false;
            const ushort unit = raw.mid(i + 1, 4).toUShort(&ok, 16);
            if (ok) {
                out += QChar(unit); // surrogate halves join into one character in the QString
                i += 4;
            }
            break;
        }
        default:
            plain += e;
            break; // \" \\ \/
        }
    }
    flush();
    return out;
}

void JsonText::replace(Span span, const QByteArray& with)
{
    if (span.isValid())
        m_edits.append({ span.begin, span.end, with });
}

void JsonText::insertMembers(Span object, const QList<QPair<QString, QByteArray>>& members)
{
    if (!object.isValid() || !isObject(object) || members.isEmpty())
        return;
    // After the last member, so the object reads as if the browser had written the values last.
    qsizetype lastEnd = -1;
    qsizetype pos = skipSpace(object.begin + 1);
    while (pos < object.end && at(pos) == '"') {
        pos = skipSpace(stringEnd(pos));
        if (at(pos) != ':')
            return;
        lastEnd = valueEnd(skipSpace(pos + 1));
        if (lastEnd < 0)
            return;
        pos = skipSpace(lastEnd);
        if (at(pos) != ',')
            break;
        pos = skipSpace(pos + 1);
    }
    QByteArray text;
    for (const auto& [key, value] : members) {
        if (!text.isEmpty() || lastEnd >= 0)
            text += ',';
        text += quoted(key) + ':' + value;
    }
    const qsizetype at = lastEnd >= 0 ? lastEnd : object.begin + 1;
    m_edits.append({ at, at, text });
}

QByteArray JsonText::edited() const
{
    QList<Edit> edits = m_edits;
    std::sort(edits.begin(), edits.end(), [](const Edit& a, const Edit& b) { return a.begin > b.begin; });
    QByteArray out = m_text;
    for (const Edit& edit : edits)
        out.replace(edit.begin, edit.end - edit.begin, edit.text);
    return out;
}
