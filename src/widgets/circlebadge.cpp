#include "widgets/circlebadge.h"

#include <QFont>
#include <QPainter>

namespace {
int clampAlpha(int alpha)
{
    return qBound(0, alpha, 255);
}

QColor whiteWithAlpha(int alpha)
{
    return QColor(255, 255, 255, alpha);
}
} // namespace

CircleBadge::CircleBadge(QWidget* parent)
    : QWidget(parent)
{
    // Only the disc is painted, so the hero card's colour shows through around and behind it.
    setAttribute(Qt::WA_TranslucentBackground);
}

void CircleBadge::setText(const QString& text)
{
    m_text = text;
    update();
}

void CircleBadge::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    update();
}

void CircleBadge::setFillAlpha(int alpha)
{
    m_fillAlpha = clampAlpha(alpha);
    update();
}

void CircleBadge::setBorderAlpha(int alpha)
{
    m_borderAlpha = clampAlpha(alpha);
    update();
}

void CircleBadge::setTextPixelSize(int size)
{
    // A font cannot have a pixel size below one.
    m_textPixelSize = qMax(1, size);
    update();
}

void CircleBadge::setTextAlpha(int alpha)
{
    m_textAlpha = clampAlpha(alpha);
    update();
}

void CircleBadge::setBold(bool bold)
{
    m_bold = bold;
    update();
}

void CircleBadge::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);

    const int w = width();
    const int h = height();
    // Half a pixel in keeps the one-pixel rim wholly inside the widget.
    const QRectF disc = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);

    painter.setPen(Qt::NoPen);
    painter.setBrush(whiteWithAlpha(m_fillAlpha));
    painter.drawEllipse(disc);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(whiteWithAlpha(m_borderAlpha), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawEllipse(disc);

    if (!m_pixmap.isNull()) {
        // A high-density pixmap is placed by the size it covers on screen, not by its pixel count.
        const qreal ratio = m_pixmap.devicePixelRatio();
        const int logicalWidth = qRound(m_pixmap.width() / ratio);
        const int logicalHeight = qRound(m_pixmap.height() / ratio);
        painter.drawPixmap(QPoint((w - logicalWidth) / 2, (h - logicalHeight) / 2), m_pixmap);
    }

    if (!m_text.isEmpty()) {
        QFont font;
        font.setPixelSize(m_textPixelSize);
        if (m_bold)
            font.setWeight(QFont::Bold);
        painter.setFont(font);
        painter.setPen(whiteWithAlpha(m_textAlpha));
        painter.drawText(rect(), Qt::AlignCenter, m_text);
    }
}
