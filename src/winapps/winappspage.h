#pragma once

#include <QWidget>

// Placeholder until the page is built: it shows that the page is still empty.
class WinAppsPage final : public QWidget {
    Q_OBJECT
public:
    explicit WinAppsPage(QWidget* parent = nullptr);

    // Called by the main window; starts nothing yet.
    void startScan();
};
