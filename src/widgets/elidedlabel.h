#pragma once

#include <QLabel>

// A one-line plain-text label that ends in "…" when its column is too narrow for the text, instead
// of cutting a letter in half at the edge. The text is read in its own direction (a size stays
// "8 MB" in a right-to-left interface). Style sheets, alignment and tool tips work as on QLabel;
// text() stays whole.
class ElidedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    // What is painted at the current width.
    QString shownText() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};
