#pragma once

#include "winapp.h"

#include <QThread>

namespace platform {
struct PackageRecord;
class PackageCatalogue;
} // namespace platform

// Lists the current user's packaged apps, leaving out system parts, frameworks and language or
// media add-ons. All work, system calls and folder walks included, runs on the scanner's own thread;
// an interruption request ends it at the next package or file, and then no list is sent.
class WinAppScanner final : public QThread {
    Q_OBJECT
public:
    explicit WinAppScanner(QObject* parent = nullptr);

    // True when a package is a framework, resource, system, bundle or add-on package that the
    // user did not install as an app of its own.
    static bool isHidden(const platform::PackageRecord& package);
    // The reference as the resource loader needs it, the package name filled in where a short
    // form leaves it out.
    static QString expandReference(const QString& reference, const QString& packageName);
    // Empty for 0; binary units, whole KB and MB, GB with two decimals.
    static QString formatSize(qint64 bytes);
    // Regular, visible files below the folder; links are not followed.
    static qint64 folderSize(const QString& folder);
    // The folder's creation date (its change date where there is none), or empty without a folder.
    static QString folderDate(const QString& folder);

signals:
    void scanProgress(int accepted);
    void scanDone(const QList<WinApp>& apps);

protected:
    void run() override;

private:
    static WinApp makeApp(const platform::PackageRecord& package, platform::PackageCatalogue& catalogue);
};
