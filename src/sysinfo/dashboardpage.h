#pragma once

#include <QWidget>

// Placeholder until the page is built: it shows that the page is still empty.
class DashboardPage final : public QWidget {
    Q_OBJECT
public:
    explicit DashboardPage(QWidget* parent = nullptr);

    // Called by the main window; starts nothing yet.
    void start();

signals:
    void navigateTo(int index);
};
