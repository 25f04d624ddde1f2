#pragma once

#include <QWidget>

// Placeholder until the page is built: it shows that the page is still empty.
class UninstallPage final : public QWidget {
    Q_OBJECT
public:
    explicit UninstallPage(QWidget* parent = nullptr);

    // Called by the main window; starts nothing yet.
    void startFirstLoad();
};
