#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One installed browser extension. The same extension found in several profiles or channels of
// one browser is one record: the remover searches every profile itself.
struct BrowserExt {
    QString browser; // "Google Chrome", "Microsoft Edge" or "Mozilla Firefox"
    QString id; // Chromium: the extension's folder name; Firefox: the add-on id
    QString name; // never empty: falls back to id
    QString description;
    QString version;
    QString iconPath; // absolute path of an icon file, or empty
    bool enabled = true;
};

Q_DECLARE_METATYPE(BrowserExt)
Q_DECLARE_METATYPE(QList<BrowserExt>)
