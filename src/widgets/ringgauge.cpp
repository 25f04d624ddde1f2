#include "widgets/ringgauge.h"

#include <QFont>
#include <QPainter>

namespace {
constexpr int GaugeSize = 130;
constexpr qreal RingInset = 9.0;
constexpr qreal RingWidth = 10.0;
constexpr int FullCircle = 360 * 16;
constexpr int TwelveOClock = 90 * 16;
constexpr int AmberFrom = 66;
constexpr int RedFrom = 86;
} // namespace

RingGauge::RingGauge(const QString& label, const QColor& color, QWidget* parent)
    : QWidget(parent)
    , m_label(label)
    , m_color(color)
{
    setFixedSize(GaugeSize, GaugeSize);
}

void RingGauge::setValue(int value)
{
    m_value = value;
}

void RingGauge::setDetail(const QString& detail)
{
    m_detail = detail;
}

QColor RingGauge::arcColor() const
{
    if (m_value >= RedFrom)
        return QColor("#ef4444");
    if (m_value >= AmberFrom)
        return QColor("#f59e0b");
    return m_color;
}

void RingGauge::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const int w = width();
    const int h = height();
    const QRectF ring(RingInset, RingInset, w - 2 * RingInset, h - 2 * RingInset);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(226, 232, 240), RingWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    painter.drawArc(ring, 0, FullCircle);

    if (m_value >= 1) {
        painter.setPen(QPen(arcColor(), RingWidth, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
        // Negative span: the arc grows clockwise from twelve o'clock.
        const int span = static_cast<int>(-m_value * 360.0 / 100.0 * 16.0);
        painter.drawArc(ring, TwelveOClock, span);
    }

    const int half = h / 2;
    // Centred texts read in their own direction: "192/251 GB" stays as written in a right-to-left
    // interface, and a translated label still reads right to left.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);

    QFont percentFont;
    percentFont.setPixelSize(24);
    percentFont.setWeight(QFont::Bold);
    painter.setFont(percentFont);
    painter.setPen(QColor(15, 23, 42));
    painter.drawText(QRect(0, half - 20, w, 28), Qt::AlignHCenter, QStringLiteral("%1%").arg(m_value));

    QFont labelFont;
    labelFont.setPixelSize(11);
    painter.setFont(labelFont);
    painter.setPen(QColor(100, 116, 139));
    painter.drawText(QRect(0, half + 10, w, 18), Qt::AlignHCenter, m_label);

    if (!m_detail.isEmpty()) {
        QFont detailFont;
        detailFont.setPixelSize(10);
        painter.setFont(detailFont);
        painter.setPen(QColor(148, 163, 184));
        painter.drawText(QRect(0, half + 26, w, 18), Qt::AlignHCenter, m_detail);
    }
}
