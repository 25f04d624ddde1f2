#pragma once

#include <QPushButton>

// A painted caption button of the frameless window.
class WinButton final : public QPushButton {
    Q_OBJECT
public:
    enum Kind { Menu = 0, Minimize = 1, Maximize = 2, Restore = 3, Close = 4 };

    explicit WinButton(int kind, QWidget* parent = nullptr);

    int kind() const { return m_kind; }
    void setKind(int kind);
    bool isHovered() const { return m_hovered; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int m_kind = Menu;
    bool m_hovered = false;
};
