#include "paintedcheckbox.h"

#include <QPainter>
#include <QPainterPath>

void paintCheckBox(QPainter& painter, const QRectF& box, bool checked)
{
    painter.save();
    if (checked) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x3b, 0x82, 0xf6));
        painter.drawRoundedRect(box, 4, 4);
        QPen tick(Qt::white, 1.8);
        tick.setCapStyle(Qt::RoundCap);
        tick.setJoinStyle(Qt::RoundJoin);
        painter.setPen(tick);
        painter.setBrush(Qt::NoBrush);
        const QRectF inner = box.adjusted(3, 3, -3, -3);
        QPainterPath path;
        path.moveTo(inner.left(), inner.top() + inner.height() * 0.55);
        path.lineTo(inner.left() + inner.width() * 0.38, inner.bottom() - inner.height() * 0.1);
        path.lineTo(inner.right(), inner.top() + inner.height() * 0.12);
        painter.drawPath(path);
    } else {
        painter.setPen(QPen(QColor(0xcb, 0xd5, 0xe1), 1));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
    painter.restore();
}
