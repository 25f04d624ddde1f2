#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

// One entry of the uninstall history: a program this system uninstalled successfully.
struct UninstalledApp {
    QString name;
    QString publisher;
    QString installLocation;
    QString displayIcon;
    QDateTime uninstalledAt;
};

Q_DECLARE_METATYPE(UninstalledApp)
