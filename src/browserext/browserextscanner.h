#pragma once

#include "browserext.h"

#include <QJsonObject>
#include <QStringList>
#include <QThread>

// Lists the extensions installed in Chrome and Edge (every channel) and Firefox from the browsers'
// own profile files. The whole scan runs in run(), on this thread; the list leaves in scanDone.
// An interruption request ends the scan early, and then no list is sent.
class BrowserExtScanner final : public QThread {
    Q_OBJECT
public:
    explicit BrowserExtScanner(QObject* parent = nullptr);

    // The user-data folders of every channel of a Chromium browser, in channel order, cleaned and
    // without repeats. `localAppData` empty means the generic data folder.
    static QStringList chromiumUserDataFolders(const QString& browser, const QString& localAppData);
    // Sorts version folder names ascending, comparing their "." and "_" separated numbers.
    static void sortVersionFolders(QStringList& names);
    // Reads a JSON object; anything missing, too large or malformed gives an empty object.
    static QJsonObject readJsonObject(const QString& path);
    // The "_locales" folder whose messages name the extension: the manifest's default locale when
    // it is a real locale name, else "en".
    static QString manifestLocale(const QJsonObject& manifest);
    // The message a "__MSG_key__" name stands for, looked up without regard to case in the text of
    // a messages.json; empty when there is none.
    static QString messageIn(const QByteArray& messages, QString key);
    // The add-ons of one profile's "extensions.json" that the user installed and has not disabled.
    static QList<BrowserExt> firefoxExtensions(const QByteArray& database, const QString& profile);

signals:
    void scanDone(const QList<BrowserExt>& extensions);

protected:
    void run() override;

private:
    // `verbose`: also log missing user-data folders and every profile (Chrome does, Edge does not).
    QList<BrowserExt> scanChromium(const QString& browser, const char* logPrefix, bool verbose) const;
    QList<BrowserExt> scanChromiumProfile(const QString& profile, const QString& browser) const;
    QList<BrowserExt> scanFirefox() const;
};
