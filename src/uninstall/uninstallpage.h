#pragma once

#include "installedapp.h"

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class UninstallManager;
class UninstallRowWidget;

// The programs page: lists the installed desktop programs, filters, searches, sorts and selects
// them, runs single and batch uninstalls, and opens the residue and force-remove dialogs.
class UninstallPage final : public QWidget {
    Q_OBJECT
public:
    enum SortOrder { BySize = 0, ByDate = 1, ByName = 2 };

    explicit UninstallPage(QWidget* parent = nullptr);
    ~UninstallPage() override;

    // Called by the main window the first time the page is shown.
    void startFirstLoad();

    UninstallManager* manager() const { return m_manager; }
    // Shows these programs as an inventory delivers them; the current sort and filter apply.
    void showApps(const QList<InstalledApp>& apps);
    QList<UninstallRowWidget*> rows() const { return m_rows; }
    // The programs in the list's current order.
    QList<InstalledApp> listedApps() const;

    // The page always fills the main window's page stack; asking its rows would lay them out
    // while the page is still hidden.
    QSize sizeHint() const override { return QSize(); }
    QSize minimumSizeHint() const override { return QSize(); }

public slots:
    void onRefreshFinished();
    void onUninstallStarted(const QString& name);
    void onUninstallFinished(const QString& name, bool ok);
    void onBatchFinished();
    void onBatchUninstall();
    void onSearch(const QString& text);
    void onSortChanged(int index);
    void onFilterChanged(const QString& key);

private slots:
    void onRefreshClicked();
    void onUninstallRequested(const InstalledApp& app);
    void onCleanResiduesClicked();
    void onStatusLinkActivated(const QString& link);

private:
    struct Entry {
        InstalledApp app;
        bool selected = false;
    };

    QWidget* createHeader();
    QWidget* createToolRow();
    QWidget* createColumnHeads();
    QWidget* createListArea();
    QWidget* createBottomBar();
    void rebuildRows();
    void applyFilter();
    void updateBottomBar();
    void updateCounters();
    void setRefreshing(bool refreshing);
    void setBatchRunning(bool running);
    void openResidueDialogForHistory();
    // The one way into force removal, for a program without a working uninstaller.
    void openForceRemove(const InstalledApp& app);

    UninstallManager* m_manager = nullptr;
    QList<Entry> m_entries;
    QList<UninstallRowWidget*> m_rows;
    QString m_search;
    QString m_filterKey;
    int m_sort = BySize;
    bool m_hasInventory = false;
    bool m_batchRunning = false;
    bool m_singleRunning = false;

    QLabel* m_appsCount = nullptr;
    QLabel* m_unusedCount = nullptr;
    QLineEdit* m_searchBox = nullptr;
    QPushButton* m_allChip = nullptr;
    QPushButton* m_unusedChip = nullptr;
    QPushButton* m_refreshButton = nullptr;
    QComboBox* m_sortBox = nullptr;
    QScrollArea* m_scroll = nullptr;
    QLabel* m_emptyLabel = nullptr;
    QWidget* m_overlay = nullptr;
    QLabel* m_statLabel = nullptr;
    QLabel* m_statusLabel = nullptr;
    QPushButton* m_cleanResiduesButton = nullptr;
    QPushButton* m_uninstallSelectedButton = nullptr;
};
