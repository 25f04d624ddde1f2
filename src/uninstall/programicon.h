#pragma once

#include "installedapp.h"

#include <QFuture>
#include <QImage>
#include <QString>

// A program's icon for its row: found through the uninstall entry, read through the platform's
// icon extraction, scaled to a square. Loading touches the disk, so rows load it on the pool.
class ProgramIcon final {
public:
    static constexpr int Side = 56;

    struct Location {
        QString path;
        int index = 0;
    };

    // Splits "path,index" (quotes removed, a negative index made positive) without expanding.
    static Location parseLocation(const QString& text);
    // The executable named by an uninstall command, or an empty text.
    static QString uninstallerPath(const QString& uninstallString);

    // The icon at a location text, or a null image.
    static QImage fromLocation(const QString& text);
    // The first icon found from the entry's icon, its uninstaller, then its main executable.
    static QImage forApp(const InstalledApp& app);
    static QFuture<QImage> loadAsync(const InstalledApp& app);
};
