#pragma once

#include <QPushButton>

// One sidebar entry: an icon, a text and an optional badge; the style sheet matches its
// "active" property.
class NavButton final : public QPushButton {
    Q_OBJECT
public:
    NavButton(const QString& icon, const QString& text, const QString& badge, QWidget* parent = nullptr);

    void setActive(bool active);
    bool isActive() const { return m_active; }

private:
    bool m_active = false;
};
