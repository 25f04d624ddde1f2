#pragma once

#include "installedapp.h"

#include <QFuture>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QWidget>

// One installed program in the uninstall list: tick, icon, name, publisher, size, install date
// and its "Remove" button. Clicking the row toggles the tick. Everything is painted, the button
// included, so that a list of a thousand programs is a thousand plain widgets and builds quickly;
// the icon is read on the pool the first time the row is painted, so only what the user gets to
// see is loaded.
class QPainter;

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
    // The "Remove" button is this wide at least, wider where a translation needs the room.
    static constexpr int ButtonWidth = 72;
    static constexpr int ColumnGap = 12;

    explicit UninstallRowWidget(const InstalledApp& app, QWidget* parent = nullptr);
    // Cancels the icon load, or waits for it when it already runs: it reads the platform, which
    // may go away with the page.
    ~UninstallRowWidget() override;

    const InstalledApp& app() const { return m_app; }
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    QRect removeButtonRect() const;
    bool hasIcon() const { return !m_icon.isNull(); }

    // The Remove button's width in the interface's language, for the rows and the column heads.
    static int buttonWidth(const QFont& base);
    // "amber", "red" or "quiet": the Remove button's look for a status.
    static QString removeKind(const QString& status);
    static QString sizeColor(qint64 bytes);

signals:
    void selectionChanged(bool selected);
    void uninstallRequested(const InstalledApp& app);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void loadIcon();
    void paintRemoveButton(QPainter& p);

    InstalledApp m_app;
    bool m_selected = false;
    bool m_iconRequested = false;
    bool m_buttonHovered = false;
    bool m_buttonPressed = false;
    QPixmap m_icon;
    QFuture<QImage> m_iconFuture;
};
