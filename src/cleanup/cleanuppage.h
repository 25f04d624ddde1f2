#pragma once

#include <QList>
#include <QWidget>

class CleanupRowWidget;
class CleanupScanner;
class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

// The disk-cleanup page: a header card with the total found, one row per junk category, and a
// bar to select and clean them. It scans by itself shortly after it is built.
class CleanupPage final : public QWidget {
    Q_OBJECT
public:
    explicit CleanupPage(QWidget* parent = nullptr);

    CleanupScanner* scanner() const { return m_scanner; }

    // The page always fills the main window's page stack, so its natural size tells nobody
    // anything. Answering from the rows would lay out all eleven rows' texts before the window
    // first shows, while this page is still hidden behind the dashboard.
    QSize sizeHint() const override { return QSize(); }
    QSize minimumSizeHint() const override { return QSize(); }

private slots:
    void onScanProgress(int percent);
    void onScanFinished();
    void onCleanProgress(int percent);
    void onCleanFinished(qint64 bytesFreed);
    void onCleanClicked();
    void onRescanClicked();
    void onSelectAllClicked();

private:
    QWidget* createHeader();
    QWidget* createHeaderCard();
    QWidget* createBottomBar();
    void updateSelectionSummary();
    void setBusy(bool busy);
    void startRescanAfterClean();

    CleanupScanner* m_scanner = nullptr;
    QList<CleanupRowWidget*> m_rows;
    QLabel* m_totalLabel = nullptr;
    QLabel* m_statusTitle = nullptr;
    QLabel* m_statusDetail = nullptr;
    QLabel* m_summaryLine = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_rescanButton = nullptr;
    QPushButton* m_selectAllButton = nullptr;
    QPushButton* m_cleanButton = nullptr;
    QLabel* m_bottomSummary = nullptr;
    QTimer* m_rescanTimer = nullptr;
    bool m_cleaning = false;
};
