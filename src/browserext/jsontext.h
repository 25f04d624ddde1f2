#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// A JSON document edited as text. Values are found by their byte spans in the original text and
// edits are spliced in there, so every byte outside an edit stays as it was: integers beyond the
// range of a double, escapes, non-ASCII text, key order and spacing. Used to rewrite files that
// a browser owns without losing anything it stored.
class JsonText final {
public:
    struct Span {
        qsizetype begin = -1;
        qsizetype end = -1; // one past the value's last byte
        bool isValid() const { return begin >= 0 && end > begin; }
    };

    explicit JsonText(QByteArray text);

    // Strictly well-formed JSON (a leading byte-order mark allowed) whose top level is an object.
    // Nothing else may be read or edited.
    bool isObjectDocument() const { return m_root.isValid(); }
    Span root() const { return m_root; }

    bool isObject(Span span) const { return at(span.begin) == '{'; }
    bool isArray(Span span) const { return at(span.begin) == '['; }
    bool isString(Span span) const { return at(span.begin) == '"'; }

    // The value of `key` in the object at `object`; the last one when a key repeats, as parsers
    // that keep one value do. Invalid when absent or when `object` is not an object.
    Span member(Span object, const QString& key) const;
    // The elements of the array at `array`, in order; empty when it is not an array.
    QList<Span> elements(Span array) const;
    // The decoded text of the string at `span`; empty when it is not a string.
    QString string(Span span) const;
    QByteArray bytes(Span span) const { return m_text.mid(span.begin, span.end - span.begin); }

    // Edits refer to the original text and must not overlap; edited() applies them all.
    void replace(Span span, const QByteArray& with);
    // Adds members after the last member of the object at `object`.
    void insertMembers(Span object, const QList<QPair<QString, QByteArray>>& members);
    bool hasEdits() const { return !m_edits.isEmpty(); }
    QByteArray edited() const;

private:
    struct Edit {
        qsizetype begin;
        qsizetype end;
        QByteArray text;
    };

    char at(qsizetype pos) const { return pos >= 0 && pos < m_text.size() ? m_text.at(pos) : '\0'; }
    qsizetype skipSpace(qsizetype pos) const;
    // One past the end of the value starting at `pos`, or -1 when the text ends first.
    qsizetype valueEnd(qsizetype pos) const;
    qsizetype stringEnd(qsizetype pos) const;

    QByteArray m_text;
    Span m_root;
    QList<Edit> m_edits;
};
