#pragma once

#include "residueitem.h"

#include <uninstall/uninstalledapp.h>

#include <QFuture>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>

// Finds what programs left on disk (orphaned data folders, cache, log and crash folders, large
// temporary folders, and the folders of programs this system uninstalled) and deletes chosen
// results. Scans and cleaning run on the global thread pool; a stop flag ends them early.
class ResidueScanner final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResidueScanner)
public:
    // The places the scans start from, as this machine reaches them.
    struct Roots {
        QString driveRoot;
        QString home;
        QString roaming; // the user's Roaming folder itself
        QString local; // home + "/AppData/Local"
        QString programData;
        QString temp;
        QString windowsTemp;
        QStringList systemFolders; // Program Files and the environment's own Local folder
        // Every folder whose loss would wreck the machine or the profile; no result may be one
        // of them or hold one. The temp folders are left out: the temp pass empties them.
        QStringList protectedFolders() const;

        static Roots fromPlatform();
    };

    static constexpr int GeneralFileBudget = 5000;
    static constexpr int TempFileBudget = 10000;

    explicit ResidueScanner(QObject* parent = nullptr);
    // Stops a running scan or clean and waits for it, so no signal outlives the scanner.
    ~ResidueScanner() override;

    void setInstalledApps(const QStringList& names, const QStringList& publishers);
    void setRoots(const Roots& roots) { m_roots = roots; }
    const Roots& roots() const { return m_roots; }

    void scan();
    void scanForApps(const QList<UninstalledApp>& apps);
    void stopScan();
    void clean(const QList<int>& indices);
    bool isRunning() const;
    // Read only after scanFinished or cleanFinished.
    QList<ResidueItem> results() const;

    static bool isKnownProgram(const QString& folderName, const QStringList& installedNames);
    // The folder names searched for one uninstalled program; never a path or a well-known name.
    static QStringList searchTerms(const UninstalledApp& app);
    static bool isUsableTerm(const QString& term);
    // False when deleting `path` (as the given category does it) could take a known folder.
    static bool isAllowedTarget(const QString& path, int category, const Roots& roots);
    static QString normalisedPath(const QString& path);

signals:
    void scanProgress(int percent, const QString& currentPath);
    void scanFinished(qint64 totalBytes);
    void cleanProgress(int percent);
    void cleanFinished(qint64 freedBytes);

private:
    bool runGlobalScan();
    bool runScanForApps(const QList<UninstalledApp>& apps);
    bool runClean(const QList<int>& indices);
    void orphanPass(const QString& root, bool isProgramData);
    void cacheAndLogPass(const QString& root);
    void tempPass();
    void scanApp(const UninstalledApp& app);
    void addResult(const ResidueItem& item);
    bool finishScan(bool global);
    qint64 measure(const QString& folder, int fileBudget) const;
    // Deletes what is inside `folder` and keeps the folder; the bytes that went.
    qint64 emptyContents(const QString& folder) const;
    bool stopped() const;
    // Runs one task on the pool unless one is running; false when it was refused.
    bool start(std::function<bool()> work);

    QStringList m_installedNames;
    QStringList m_installedPublishers; // carried for the dialog; the known-program test uses names
    Roots m_roots;
    mutable QMutex m_mutex;
    QList<ResidueItem> m_results;
    std::atomic_bool m_stop { false };
    std::atomic_bool m_running { false };
    QFuture<void> m_future;
};
