#pragma once

#include <QByteArray>
#include <QString>

// A package manifest read as plain text. Manifests in the wild are not always well-formed XML,
// and only a few values are needed, so they are found by searching instead of parsing.
class AppxManifest final {
public:
    // The install folder's AppxManifest.xml, else its bundle manifest; empty when neither reads.
    static AppxManifest load(const QString& installFolder);
    explicit AppxManifest(QByteArray text = QByteArray());

    bool isEmpty() const { return m_text.isEmpty(); }
    // The trimmed text between the first <tag> and the next </tag>; empty when either is missing.
    QString element(const char* tag) const;
    // The text after the first name="..." up to the next double quote.
    QString attribute(const char* name) const;

    // Absolute path of the first logo attribute (44, 30, then 150 square) that leads to an image
    // file inside the install folder, trying scale-qualified names when the plain one is missing.
    QString logoPath(const QString& installFolder) const;

private:
    QByteArray m_text;
};
