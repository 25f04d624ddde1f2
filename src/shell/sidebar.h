#pragma once

#include <QList>
#include <QWidget>

class NavButton;

// The dark-blue column on the left: the brand block and one entry per page. It marks the page on
// show and asks the window for a page by index.
class Sidebar final : public QWidget {
    Q_OBJECT
public:
    explicit Sidebar(QWidget* parent = nullptr);

    void setActive(int index);
    int activeIndex() const { return m_activeIndex; }
    const QList<NavButton*>& buttons() const { return m_buttons; }

signals:
    void pageRequested(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* createBrandBlock();
    QWidget* createNavigation();

    QList<NavButton*> m_buttons;
    int m_activeIndex = 0;
};
