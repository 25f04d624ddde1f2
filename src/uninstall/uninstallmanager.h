#pragma once

#include "installedapp.h"
#include "uninstalledapp.h"

#include <QDate>
#include <QFuture>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QRegularExpression>

#include <atomic>
#include <optional>

namespace platform {
struct UserAssistValue;
}

// Keeps the list of installed desktop programs, the usage marks and the uninstall history, and
// runs uninstallers. The inventory and batches run on the global thread pool; a single uninstall
// runs on the calling thread.
class UninstallManager final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UninstallManager)
public:
    explicit UninstallManager(QObject* parent = nullptr);
    // Waits for a running inventory, and for the uninstaller a batch is running (no further
    // program of the batch is started).
    ~UninstallManager() override;

    // Rebuilds the list on the pool; ignored while a rebuild runs. refreshFinished() follows.
    void refresh();
    bool isRefreshing() const;
    QList<InstalledApp> apps() const;

    // Usage marks: lower-case executable file name -> the last day it was started.
    void loadUsageData();
    QHash<QString, QDate> usageMap() const;

    void loadHistory();
    // The entries of a history file's text; nullopt when the text is not a history (an empty
    // text is an empty one).
    static std::optional<QList<UninstalledApp>> parseHistory(const QByteArray& content);
    // The text saveHistory writes.
    static QByteArray historyText(const QList<UninstalledApp>& history);
    bool saveHistory();
    void recordUninstall(const InstalledApp& app);
    QList<UninstalledApp> history() const;
    static QString historyFilePath();

    // Runs the program's uninstaller and waits for it (at most UninstallTimeoutMs); true when
    // the program counts as uninstalled.
    bool uninstall(const InstalledApp& app);
    // One program after another on the pool; batchFinished() follows the last.
    void uninstallBatch(const QList<InstalledApp>& apps);

    // The day "today" is for the status rules; an invalid date means the real today.
    void setReferenceDate(const QDate& day) { m_referenceDate = day; }

    // The rules, open for the page and for tests.
    static bool matchesExclusion(const QString& displayName);
    static bool containsSystemPackage(const QString& displayName);
    static QString normaliseInstallDate(const QString& raw);
    static QString mainExecutable(const QString& installLocation);
    static QString classify(const InstalledApp& app, const QHash<QString, QDate>& usage, const QDate& today);
    static void sortForDisplay(QList<InstalledApp>& apps);
    static QString formatSize(qint64 bytes);
    static QString rot13(const QString& text);
    // The executable a decoded UserAssist name stands for, or an empty text.
    static QString userAssistExecutable(const QString& decodedName);
    // The executable and the day of one UserAssist record; nullopt when it names no executable
    // or no day after 1970.
    static std::optional<QPair<QString, QDate>> usageMark(const platform::UserAssistValue& value);
    // The local day of a FILETIME, invalid before 1970.
    static QDate fileTimeToDate(quint64 fileTime);
    // A Windows path as this machine reaches it (the sandbox maps "C:\..." into its folder).
    static QString localPath(const QString& windowsPath);
    // The install location as a local folder to look at (quotes removed, variables expanded), or
    // an empty text for none, a relative one or one on a network path.
    static QString installFolder(const QString& installLocation);

    static constexpr int UninstallTimeoutMs = 300000; // five minutes, then the uninstaller is left alone

signals:
    void refreshFinished();
    void uninstallStarted(const QString& name);
    void uninstallFinished(const QString& name, bool ok);
    void batchFinished();

private:
    void rebuild();
    // Moves a history that could not be loaded out of the way before it is first replaced.
    bool keepUnreadableHistory();
    QDate today() const;

    mutable QMutex m_mutex;
    QList<InstalledApp> m_apps;
    QHash<QString, QDate> m_usage;
    QList<UninstalledApp> m_history;
    QDate m_referenceDate;
    QFuture<void> m_refresh;
    QFuture<void> m_previousRefresh;
    QFuture<void> m_batch;
    std::atomic_bool m_refreshing { false };
    std::atomic_bool m_stopping { false };
    std::atomic_bool m_keepUnreadableHistory { false };
};
