#pragma once

#include <QWidget>

// Placeholder until the page is built: it shows that the page is still empty.
class CleanupPage final : public QWidget {
    Q_OBJECT
public:
    explicit CleanupPage(QWidget* parent = nullptr);

};
