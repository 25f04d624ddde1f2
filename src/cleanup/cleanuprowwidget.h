#pragma once

#include "junkcategory.h"

#include <QWidget>

class QLabel;
class QProgressBar;

// One junk category on the cleanup page: icon, name, first folder, a size bar and the size, with
// a painted check box. A press anywhere on the row toggles it.
class CleanupRowWidget final : public QWidget {
    Q_OBJECT
public:
    explicit CleanupRowWidget(const JunkCategory& category, QWidget* parent = nullptr);

    int index() const { return m_index; }
    void setIndex(int index) { m_index = index; }

    bool isSelected() const { return m_selected; }
    // Repaints and emits selectionChanged() when the state changes.
    void setSelected(bool selected);

    qint64 size() const { return m_size; }
    void setSize(qint64 bytes);

    // The page's byte text: GB with one decimal from 1 GiB, whole MB from 1 MiB, otherwise whole KB.
    static QString formatSize(qint64 bytes);

signals:
    void selectionChanged(bool selected);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool m_selected = false;
    bool m_hovered = false;
    int m_index = -1;
    qint64 m_size = 0;
    QLabel* m_sizeLabel = nullptr;
    QProgressBar* m_bar = nullptr;
};
