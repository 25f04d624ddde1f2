#pragma once

#include <uninstall/installedapp.h>
#include <uninstall/uninstalledapp.h>

#include <QDialog>
#include <QList>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;
class ResidueRowWidget;
class ResidueScanner;

// The modal dialog that scans for program leftovers and deletes the ones the user ticks.
class ResidueDialog final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResidueDialog)
public:
    // Global scan, knowing these programs as installed.
    explicit ResidueDialog(const QList<InstalledApp>& installed, QWidget* parent = nullptr);
    // Scan for what these uninstalled programs left.
    explicit ResidueDialog(const QList<UninstalledApp>& uninstalled, QWidget* parent = nullptr);
    ~ResidueDialog() override;

    ResidueScanner* scanner() const { return m_scanner; }
    QList<ResidueRowWidget*> rows() const { return m_rows; }

    static QString formatSize(qint64 bytes);
    static QString shortenPath(const QString& path);

public slots:
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void onScanProgress(int percent, const QString& currentPath);
    void onScanFinished(qint64 totalBytes);
    void onCleanProgress(int percent);
    void onCleanFinished(qint64 freedBytes);
    void onCleanClicked();
    void onSelectAll();
    void onDeselectAll();

private:
    explicit ResidueDialog(QWidget* parent);
    void setChecks(bool checked);

    ResidueScanner* m_scanner = nullptr;
    std::function<void()> m_startAction;
    bool m_started = false;
    bool m_busy = false;
    QList<ResidueRowWidget*> m_rows;
    QStackedWidget* m_pages = nullptr;
    QLabel* m_subtitle = nullptr;
    QLabel* m_statusLabel = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_summaryLabel = nullptr;
    QScrollArea* m_scroll = nullptr;
    QLabel* m_emptyLabel = nullptr;
    QPushButton* m_selectAllButton = nullptr;
    QPushButton* m_deselectAllButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_cleanButton = nullptr;
};
