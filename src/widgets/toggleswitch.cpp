#include "widgets/toggleswitch.h"

#include <QEasingCurve>
#include <QPainter>
#include <QPainterPath>
#include <QPropertyAnimation>

namespace {
constexpr int SwitchWidth = 44;
constexpr int SwitchHeight = 24;
constexpr int SlideMs = 180;
constexpr float ThumbOffX = 3.0f;
// The on position is measured from the right edge and leaves a wider margin there than the
// off position does on the left; the thumb is meant to rest a little off-centre when on.
constexpr int ThumbOnFromRight = 21;
constexpr qreal ThumbY = 5.0;
constexpr qreal ThumbSize = 14.0;
constexpr qreal TrackTop = 2.0;
constexpr qreal TrackRadius = 11.0;
constexpr qreal RimWidth = 1.5;
} // namespace

ToggleSwitch::ToggleSwitch(QWidget* parent)
    : QWidget(parent)
    , m_animation(new QPropertyAnimation(this, "thumbX", this))
{
    setFixedSize(SwitchWidth, SwitchHeight);
    setCursor(Qt::PointingHandCursor);
    m_animation->setDuration(SlideMs);
    m_animation->setEasingCurve(QEasingCurve::InOutQuad);
}

void ToggleSwitch::setThumbX(float x)
{
    m_thumbX = x;
    update();
}

QSize ToggleSwitch::sizeHint() const
{
    return QSize(SwitchWidth, SwitchHeight);
}

void ToggleSwitch::mousePressEvent(QMouseEvent* /*event*/)
{
    m_checked = !m_checked;
    const float target = m_checked ? float(width() - ThumbOnFromRight) : ThumbOffX;

    // Starting from wherever the thumb is lets a press during the slide turn it back smoothly.
    m_animation->stop();
    m_animation->setStartValue(m_thumbX);
    m_animation->setEndValue(target);
    m_animation->start();

    emit toggled(m_checked);
}

void ToggleSwitch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QColor track = m_checked ? QColor(59, 130, 246) : QColor(191, 219, 254);
    const QColor rim = m_checked ? QColor(45, 107, 224) : QColor(147, 197, 253);

    QPainterPath shape;
    shape.addRoundedRect(
        QRectF(0, TrackTop, width(), height() - 2 * TrackTop), TrackRadius, TrackRadius, Qt::AbsoluteSize);
    painter.fillPath(shape, track);
    painter.strokePath(shape, QPen(rim, RimWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));

    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(m_thumbX, ThumbY, ThumbSize, ThumbSize));
}
