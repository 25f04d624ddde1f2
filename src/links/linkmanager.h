#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

// The program's web links per language, from the ":/data/data/links.json" resource, and the
// current language. One instance for the whole process.
class LinkManager final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkManager)
public:
    // Texts for link failures that the catalogues carry under this class's context.
    enum class ErrorText { LoadFailed, BrowserTitle, BrowserFailed, ConfigTitle };

    static LinkManager* instance();

    QString getLink(const QString& category, const QString& key) const;
    void setLanguage(const QString& code);
    QString currentLanguage() const { return m_currentLanguage; }
    QString fallbackLanguage() const { return m_fallbackLanguage; }
    QStringList supportedLanguages() const { return m_supportedLanguages; }

    // The start-up rule that turns a locale name (zh_HK, de_DE) into one of the thirteen codes.
    static QString mapLocaleName(const QString& localeName);

    // BrowserFailed takes the address that could not be opened as %1.
    static QString errorText(ErrorText which, const QString& url = QString());

    // What a links file holds; nullopt when it is not a JSON object.
    struct Catalogue {
        QJsonObject root;
        QStringList languages;
        QString fallback = QStringLiteral("en");
    };
    static std::optional<Catalogue> parseLinks(const QByteArray& json);
    // The address of `key` in `category` in `language`, else in `fallback`, else empty.
    static QString linkIn(const QJsonObject& root, const QString& category, const QString& key, const QString& language,
        const QString& fallback);

    // Tests build their own catalogue from a file of their choice.
    explicit LinkManager(const QString& linksFile, QObject* parent = nullptr);

signals:
    void languageChanged(const QString& languageCode);

private:
    bool loadLinks(const QString& path);
    QString detectLanguage() const;

    QString m_currentLanguage = QStringLiteral("en");
    QString m_fallbackLanguage = QStringLiteral("en");
    QStringList m_supportedLanguages;
    QJsonObject m_root;
};
