#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// What a force-remove target is; the numbers are what the dialog's kind table is keyed by.
enum class ForceRemoveKind : int {
    InstallDir = 0,
    AppData = 1,
    RegistryKey = 2,
    StartupRegistry = 3,
    StartupShortcut = 4,
    ScheduledTask = 5,
    Service = 6,
};

// One trace of a program that force removal can delete.
struct ForceRemoveItem {
    ForceRemoveKind kind = ForceRemoveKind::InstallDir;
    QString path; // folder, "HKLM\..." / "HKCU\..." registry path, file, task name or service name
    QString label;
    qint64 sizeBytes = 0; // what deleting it frees; 0 for registry values, tasks and services
    bool highRisk = false;
    bool checked = true;
};

Q_DECLARE_METATYPE(ForceRemoveItem)
