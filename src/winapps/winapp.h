#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One packaged app as the scanner found it.
struct WinApp {
    QString displayName;
    QString name; // package identity name
    QString fullName; // identifies the exact package to the resource loader and to removal
    QString publisher;
    QString version;
    QString installDate;
    QString sizeText;
    QString logoPath;
    // The publisher part of the package identity ("8wekyb3d8bbwe"): stable across versions and
    // languages, unlike the display name, so two apps of one publisher can be told apart reliably.
    QString publisherId;
    // The package family name, which is how winget lists an installed packaged app.
    QString wingetId;
};

Q_DECLARE_METATYPE(WinApp)
