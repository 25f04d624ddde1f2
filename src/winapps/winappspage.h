#pragma once

#include "winapp.h"
#include "winappremover.h"

#include <QFutureWatcher>
#include <QList>
#include <QWidget>

#include <atomic>
#include <memory>

class ProcessRunner;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTimer;
class QVBoxLayout;
class WinAppRow;

// The Windows apps page: the packaged apps found by a WinAppScanner, with search, selection,
// single and batch removal (run on the thread pool) and refresh.
class WinAppsPage final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WinAppsPage)
public:
    explicit WinAppsPage(QWidget* parent = nullptr);
    ~WinAppsPage() override;

    // Called by the main window on the first visit.
    void startScan();
    // Starts a fresh scan: clears the rows and shows the scanning banner.
    void refresh();
    // Removes the apps on the thread pool; returns at once.
    void removeApps(const QList<WinApp>& apps);

    // Tests replace the programs removal runs.
    void setProcessRunner(std::shared_ptr<ProcessRunner> runner);

public slots:
    void onScanDone(const QList<WinApp>& apps);
    void onScanProgress(int found);
    void onSearch();
    void onRemoveSelected();
    void onRowSelectionChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* createHeader();
    QWidget* createBanner();
    QWidget* createColumnHeader();
    QWidget* createBottomBar();
    QWidget* createOverlay();
    void rebuildRows();
    void updateCounts();
    void setBusy(bool busy);
    void onRemoveRequested(const WinApp& app);
    void onRemovalStatus(const QString& displayName, int position, int count);
    void onRemovalFinished();

    QList<WinApp> m_apps;
    QList<WinAppRow*> m_rows;
    QString m_search;
    int m_selected = 0;
    bool m_scanning = false;
    bool m_removing = false;

    std::shared_ptr<ProcessRunner> m_runner;
    // Raised when the page goes: a running batch starts no further app.
    std::shared_ptr<std::atomic_bool> m_stopRemoval = std::make_shared<std::atomic_bool>(false);
    QFutureWatcher<QList<RemoveResult>>* m_watcher = nullptr;

    QLabel* m_countLabel = nullptr;
    QLineEdit* m_searchEdit = nullptr;
    QPushButton* m_refreshButton = nullptr;
    QWidget* m_banner = nullptr;
    QLabel* m_spinner = nullptr;
    QLabel* m_bannerText = nullptr;
    QTimer* m_spinTimer = nullptr;
    int m_spinStep = 0;
    QWidget* m_rowsContainer = nullptr;
    QVBoxLayout* m_rowsLayout = nullptr;
    QLabel* m_selectionLabel = nullptr;
    QPushButton* m_removeButton = nullptr;
    QWidget* m_overlay = nullptr;
    QLabel* m_overlayText = nullptr;
    QProgressBar* m_overlayBar = nullptr;
    QLabel* m_overlayCount = nullptr;
};
