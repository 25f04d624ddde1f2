#pragma once

#include <QDate>
#include <QList>
#include <QMetaType>
#include <QString>

// One installed desktop program as its uninstall entry describes it.
struct InstalledApp {
    QString name;
    QString publisher;
    QString version;
    QString installDate; // "yyyy-MM-dd" when the entry had eight digits, otherwise as written
    QString uninstallString; // empty: the program has no uninstaller
    QString extraInfo;
    QString displayIcon;
    QString installLocation;
    qint64 estimatedSize = 0; // bytes
    QString status; // "ok", "old", "system" or "nouninstaller"
    QDate lastUsed;
};

Q_DECLARE_METATYPE(InstalledApp)
