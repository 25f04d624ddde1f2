#pragma once

#include "winapp.h"

#include <QWidget>

class QLabel;

// One packaged app on the Windows apps page: a painted check box, the logo or a coloured
// initial, the app's texts in the page's columns and its remove button. A press on the row
// toggles its selection.
class WinAppRow final : public QWidget {
    Q_OBJECT
public:
    explicit WinAppRow(const WinApp& app, QWidget* parent = nullptr);

    const WinApp& app() const { return m_app; }
    bool isSelected() const { return m_selected; }
    // Repaints and emits selectionChanged() when the state changes.
    void setSelected(bool selected);

    // The avatar colour for a display name: one of eight, chosen by its first character.
    static QColor avatarColor(const QString& displayName);

    // Column widths the page's header shares with the rows.
    static constexpr int CheckColumn = 40;
    static constexpr int PublisherColumn = 132;
    static constexpr int VersionColumn = 116;
    static constexpr int DateColumn = 96;
    static constexpr int SizeColumn = 62;
    static constexpr int ActionColumn = 60;
    static constexpr int ColumnSpacing = 8;
    // The action column is at least ActionColumn wide and grows to fit the remove button's text
    // in the current language, the same for every row and the header.
    static int actionColumnWidth();

signals:
    void selectionChanged(bool selected);
    void removeRequested(const WinApp& app);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QLabel* makeAvatar();

    WinApp m_app;
    bool m_selected = false;
    bool m_hovered = false;
};
