#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// One leftover folder found by the residue scan.
struct ResidueItem {
    enum Category { OrphanedAppData = 0, Cache = 1, Logs = 2, CrashReports = 3, Temp = 4 };

    int category = OrphanedAppData;
    QString path; // absolute, forward slashes
    QString name; // the folder's or the program's name
    qint64 size = 0; // bytes, a lower bound for very large folders
    bool safe = false; // deletable without a second look
    bool checked = false; // pre-selected for cleaning
};

Q_DECLARE_METATYPE(ResidueItem)
