#pragma once

#include "installedapp.h"

#include <QPixmap>
#include <QWidget>

class QPushButton;

// One installed program in the uninstall list: tick, icon, name, publisher, size, install date
// and its "Remove" button. Clicking the row toggles the tick. The icon is read on the pool the
// first time the row is painted, so a long list only loads what the user gets to see.
class UninstallRowWidget final : public QWidget {
    Q_OBJECT
public:
    static constexpr int RowHeight = 52;
    // Column geometry, shared with the page's column heads.
    static constexpr int SidePadding = 16;
    static constexpr int NameX = 84;
    static constexpr int PublisherWidth = 170;
    static constexpr int SizeWidth = 72;
    static constexpr int DateWidth = 92;
    static constexpr int ButtonWidth = 72;
    static constexpr int ColumnGap = 12;

    explicit UninstallRowWidget(const InstalledApp& app, QWidget* parent = nullptr);

    const InstalledApp& app() const { return m_app; }
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    QPushButton* removeButton() const { return m_remove; }
    bool hasIcon() const { return !m_icon.isNull(); }

    // "amber", "red" or "quiet": the Remove button's look for a status.
    static QString removeKind(const QString& status);
    // The style of every Remove button in a list, set once on the list rather than per button.
    static QString removeButtonStyleSheet();
    static QString sizeColor(qint64 bytes);

signals:
    void selectionChanged(bool selected);
    void uninstallRequested(const InstalledApp& app);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadIcon();

    InstalledApp m_app;
    bool m_selected = false;
    bool m_iconRequested = false;
    QPixmap m_icon;
    QPushButton* m_remove = nullptr;
};
