#pragma once

#include <QPoint>
#include <QWidget>

class BrowserExtPage;
class CleanupPage;
class DashboardPage;
class QStackedWidget;
class Sidebar;
class TitleBar;
class UninstallPage;
class WinAppsPage;

// The program's only top-level window: frameless, the sidebar on the left, the title bar over a
// stack of five pages on the right. It decides which page shows and starts each page's first
// scan on its first visit.
class MainWindow final : public QWidget {
    Q_OBJECT
public:
    enum PageIndex { Dashboard = 0, Cleanup = 1, Uninstall = 2, WinApps = 3, BrowserExtensions = 4 };

    explicit MainWindow(QWidget* parent = nullptr);

    // The name the restart notice shows for a language code.
    static QString languageDisplayName(const QString& code);

    TitleBar* titleBar() const { return m_titleBar; }
    Sidebar* sidebar() const { return m_sidebar; }
    QStackedWidget* pageStack() const { return m_pageStack; }
    bool isMaximizedByWindow() const { return m_maximized; }

public slots:
    void navigateTo(int index);

signals:
    // The first visit of a page that loads on demand; emitted right before its load starts.
    void firstVisitStarted(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private slots:
    void onToggleMaximize();
    void onAbout();
    void onHelp();
    void onSupport();
    void onLanguageChanged(const QString& languageCode);

private:
    bool isInTitleBar(const QPoint& globalPos) const;

    QWidget* m_mainContainer = nullptr;
    TitleBar* m_titleBar = nullptr;
    Sidebar* m_sidebar = nullptr;
    QStackedWidget* m_pageStack = nullptr;
    DashboardPage* m_dashboardPage = nullptr;
    CleanupPage* m_cleanupPage = nullptr;
    UninstallPage* m_uninstallPage = nullptr;
    WinAppsPage* m_winAppsPage = nullptr;
    BrowserExtPage* m_browserExtPage = nullptr;
    bool m_dashboardStarted = false;
    bool m_uninstallLoaded = false;
    bool m_winAppsLoaded = false;
    bool m_extensionsLoaded = false;
    QPoint m_dragOffset;
    bool m_dragging = false;
    bool m_maximized = false;
};
