#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

class QActionGroup;
class QMenu;
class WinButton;

// The frameless window's caption: drags and double-clicks move and maximise the window, four
// painted buttons and the application menu. Everything but moving goes out as a signal.
class TitleBar final : public QWidget {
    Q_OBJECT
public:
    explicit TitleBar(QWidget* parent = nullptr);

    void setMaximized(bool maximized);
    bool isMaximized() const { return m_maximized; }
    QString currentLanguage() const { return m_currentLanguage; }
    QMenu* menu() const { return m_menu; }
    QActionGroup* languageGroup() const { return m_languageGroup; }
    WinButton* maximizeButton() const { return m_maxButton; }

signals:
    void minimizeRequested();
    void maximizeRequested();
    void closeRequested();
    void helpRequested();
    void supportRequested();
    void aboutRequested();
    void languageChanged(const QString& languageCode);

public slots:
    void showMenu();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void buildMenu();
    void onLanguageTriggered(const QString& code);

    WinButton* m_menuButton = nullptr;
    WinButton* m_minButton = nullptr;
    WinButton* m_maxButton = nullptr;
    WinButton* m_closeButton = nullptr;
    QMenu* m_menu = nullptr;
    QActionGroup* m_languageGroup = nullptr;
    QString m_currentLanguage;
    bool m_maximized = false;
    bool m_dragging = false;
    QPoint m_dragOffset;
};
