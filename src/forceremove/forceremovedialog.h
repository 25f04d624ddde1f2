#pragma once

#include "uninstall/installedapp.h"

#include <QDialog>
#include <QList>

class ForceRemoveRowWidget;
class ForceRemoveScanner;
class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

// The modal window that force-removes one program: scans once when first shown, lists what it
// found, removes the checked targets and shows what that freed.
class ForceRemoveDialog final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ForceRemoveDialog)
public:
    explicit ForceRemoveDialog(const InstalledApp& app, QWidget* parent = nullptr);
    ~ForceRemoveDialog() override;

    // The views in the order the dialog passes through them.
    enum View { ScanningView, ListView, RemovingView, DoneView };

    ForceRemoveScanner* scanner() const { return m_scanner; }
    View currentView() const;
    const QList<ForceRemoveRowWidget*>& rows() const { return m_rows; }

public slots:
    void onScanProgress(int percent, const QString& text);
    void onScanFinished(qint64 totalBytes);
    void onExecuteProgress(int percent, const QString& text);
    void onExecuteFinished(qint64 freedBytes);
    void onExecuteClicked();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildHeader();
    QWidget* buildScanningView();
    QWidget* buildListView();
    QWidget* buildRemovingView();
    QWidget* buildDoneView();
    void setAllChecked(bool checked);
    static QString statusText(const QString& text);

    InstalledApp m_app;
    ForceRemoveScanner* m_scanner = nullptr;
    QList<ForceRemoveRowWidget*> m_rows;
    bool m_scanStarted = false;
    bool m_done = false;

    QStackedWidget* m_views = nullptr;
    QProgressBar* m_scanProgress = nullptr;
    QLabel* m_scanStatus = nullptr;
    QLabel* m_locationNote = nullptr;
    QVBoxLayout* m_rowLayout = nullptr;
    QLabel* m_emptyLabel = nullptr;
    QProgressBar* m_removeProgress = nullptr;
    QLabel* m_removeStatus = nullptr;
    QLabel* m_summary = nullptr;
    QPushButton* m_primary = nullptr;
};
