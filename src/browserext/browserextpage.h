#pragma once

#include "browserext.h"
#include "browserextremover.h"

#include <QFutureWatcher>
#include <QList>
#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <functional>

class BrowserExtScanner;
class BrowserExtRow;
class BrowserGroupWidget;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

// Page 4: the extensions of every browser, grouped per browser, with single and batch removal.
// The scan runs on the scanner's own thread and removals on the global pool; a browser that is
// still running is offered to be ended first, since it would write its files back on exit.
class BrowserExtPage final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserExtPage)
public:
    // Starts a program detached; false when it could not be started.
    using ProgramStarter = std::function<bool(const QString& program, const QStringList& arguments)>;
    using UrlOpener = std::function<bool(const QUrl& url)>;

    explicit BrowserExtPage(QWidget* parent = nullptr);
    ~BrowserExtPage() override;

    // Scans again unless a scan or a removal is under way.
    void startScan();

    // What the fallback uses to show the browser's own extension page; tests replace both.
    void setProgramStarter(ProgramStarter starter) { m_startProgram = std::move(starter); }
    void setUrlOpener(UrlOpener opener) { m_openUrl = std::move(opener); }

    QList<BrowserGroupWidget*> groups() const { return m_groups; }

public slots:
    void onScanDone(const QList<BrowserExt>& extensions);
    void onSearch(const QString& text);
    void onRemoveSelected();
    void onSelectionChanged();

private:
    void onRemoveRequested(const BrowserExt& ext);
    void onSingleFinished();
    void onBatchFinished();

    QWidget* createHeader();
    QWidget* createBottomBar();
    QWidget* createOverlay();
    void showOverlay(const QString& title, int total);
    void hideOverlay();
    void setBusy(bool busy);
    void updateCount();
    QList<BrowserExtRow*> selectedRows() const;
    // Asks until every browser of `browsers` is closed or the user gives up; false when the
    // removal must not go ahead.
    bool ensureBrowsersClosed(const QStringList& browsers, bool batch);
    int killAndWait(const QString& browser);
    void openExtensionPage(const QString& browser);
    void clearGroups();
    bool isScanning() const;

    QPointer<BrowserExtScanner> m_scanner;
    bool m_scanDelivered = false;
    QFutureWatcher<BrowserExtRemover::Result>* m_singleWatcher = nullptr;
    QFutureWatcher<QList<BrowserExtRemover::Result>>* m_batchWatcher = nullptr;
    BrowserExt m_removing; // the extension of the running single removal
    QList<BrowserExt> m_batch; // the extensions of the running batch, in order

    QList<BrowserExt> m_extensions;
    QList<BrowserGroupWidget*> m_groups;
    QString m_search;
    bool m_busy = false;

    QLabel* m_count = nullptr;
    QLineEdit* m_searchBox = nullptr;
    QPushButton* m_refresh = nullptr;
    QWidget* m_content = nullptr;
    QVBoxLayout* m_groupsLayout = nullptr;
    QLabel* m_empty = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_removeSelected = nullptr;
    QWidget* m_overlay = nullptr;
    QLabel* m_overlayTitle = nullptr;
    QLabel* m_overlayItem = nullptr;
    QProgressBar* m_overlayProgress = nullptr;

    ProgramStarter m_startProgram;
    UrlOpener m_openUrl;

protected:
    void resizeEvent(QResizeEvent* event) override;
};
