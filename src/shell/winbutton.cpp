#include "winbutton.h"

#include <QApplication>
#include <QPainter>

namespace {

const QColor HoverWash(0, 0, 0, 18);

} // namespace

WinButton::WinButton(int kind, QWidget* parent)
    : QPushButton(parent)
    , m_kind(kind)
{
    setFixedSize(46, 32);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_Hover);
    setFlat(true);
    setStyleSheet(QStringLiteral("border: none; background: transparent;"));
}

void WinButton::setKind(int kind)
{
    m_kind = kind;
}

void WinButton::enterEvent(QEnterEvent* event)
{
    m_hovered = true;
    update();
    QPushButton::enterEvent(event);
}

void WinButton::leaveEvent(QEvent* event)
{
    m_hovered = false;
    update();
    QPushButton::leaveEvent(event);
}

void WinButton::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool closeHover = m_hovered && m_kind == Close;

    if (m_hovered)
        p.fillRect(rect(), m_kind == Close ? QColor(QStringLiteral("#E81123")) : HoverWash);

    p.setPen(QPen(closeHover ? QColor(Qt::white) : QColor(QStringLiteral("#64748b")), 1.1, Qt::SolidLine, Qt::SquareCap,
        Qt::BevelJoin));
    p.setBrush(Qt::NoBrush);

    const int cx = width() / 2;
    const int cy = height() / 2;
    switch (m_kind) {
    case Menu:
        for (int y : { cy - 4, cy, cy + 4 })
            p.drawLine(cx - 6, y, cx + 6, y);
        break;
    case Minimize:
        p.drawLine(cx - 5, cy, cx + 5, cy);
        break;
    case Maximize:
        p.drawRect(cx - 5, cy - 5, 10, 10);
        break;
    case Restore: {
        p.drawRect(cx - 2, cy - 5, 7, 7);
        // Cover the back window's lines where the front window overlaps it. The button's own
        // palette cannot supply the cover: its transparent style sheet makes the Window role
        // transparent, so the colour comes from the palette it would have had without it.
        const QRect front(cx - 5, cy - 2, 7, 7);
        p.fillRect(front, m_hovered ? HoverWash : QApplication::palette(this).color(QPalette::Window));
        p.drawRect(front);
        break;
    }
    case Close:
        p.drawLine(cx - 4, cy - 4, cx + 4, cy + 4);
        p.drawLine(cx + 4, cy - 4, cx - 4, cy + 4);
        break;
    default:
        break;
    }
}
