#pragma once

#include "junkcategory.h"

#include <QFuture>
#include <QList>
#include <QMutex>
#include <QObject>

#include <atomic>

// Owns the fixed table of junk categories, measures them (scan) and empties the chosen ones
// (clean). Both run on the global thread pool and report through signals emitted from there;
// the table's sizes are written by the scan, final once scanFinished() has arrived.
class CleanupScanner final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CleanupScanner)
public:
    explicit CleanupScanner(QObject* parent = nullptr);
    // Waits for a running scan or clean to reach the end of its current folder.
    ~CleanupScanner() override;

    void scan();
    // Positions in the table; positions outside it are skipped.
    void clean(const QList<int>& positions);

    // A copy: the page may read it (a selection changed) while a scan writes the sizes.
    QList<JunkCategory> categories() const;

    // Cache folders of the Chromium-family browser whose channel folders (below Local AppData)
    // are given, and of Firefox, in the order the table lists them.
    static QStringList chromiumCacheFolders(const QString& localAppData, const QStringList& channels);
    static QStringList firefoxCacheFolders(const QString& roamingAppData, const QString& localAppData);

signals:
    void scanProgress(int percent);
    void scanFinished();
    void cleanProgress(int percent);
    void cleanFinished(qint64 bytesFreed);

private:
    void buildTable();
    void runScan();
    void runClean(const QList<int>& positions);
    // The folders a scan or clean of these listed paths works in.
    QStringList workFolders(const QStringList& paths) const;
    qint64 measure(const QStringList& paths) const;
    void track(const QFuture<void>& future);

    QStringList pathsAt(int position) const;

    mutable QMutex m_mutex; // guards the sizes in m_categories, which the scan writes
    QList<JunkCategory> m_categories;
    // The Firefox profiles folder when it is listed in place of cache folders; empty otherwise.
    QString m_firefoxProfiles;
    std::atomic<bool> m_stopping { false };
    QList<QFuture<void>> m_tasks; // only touched on the owner's thread
};
