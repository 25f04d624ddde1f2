#include "mirror.h"

#include <QEvent>
#include <QLayout>
#include <QPointer>
#include <QWidget>

namespace Mirror {

QRectF place(const QWidget* widget, const QRectF& leftToRight)
{
    if (widget->layoutDirection() != Qt::RightToLeft)
        return leftToRight;
    return QRectF(widget->width() - leftToRight.x() - leftToRight.width(), leftToRight.y(), leftToRight.width(),
        leftToRight.height());
}

QRect place(const QWidget* widget, const QRect& leftToRight)
{
    return place(widget, QRectF(leftToRight)).toRect();
}

namespace {

class MarginKeeper : public QObject {
public:
    MarginKeeper(QWidget* widget, QLayout* layout, const QMargins& leftToRight)
        : QObject(widget)
        , m_layout(layout)
        , m_margins(leftToRight)
    {
        apply(widget->layoutDirection());
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            apply(static_cast<QWidget*>(watched)->layoutDirection());
        return false;
    }

private:
    void apply(Qt::LayoutDirection direction)
    {
        if (!m_layout)
            return;
        if (direction == Qt::RightToLeft)
            m_layout->setContentsMargins(m_margins.right(), m_margins.top(), m_margins.left(), m_margins.bottom());
        else
            m_layout->setContentsMargins(m_margins);
    }

    QPointer<QLayout> m_layout;
    QMargins m_margins;
};

} // namespace

void keepMarginsMirrored(QWidget* widget, QLayout* layout, const QMargins& leftToRight)
{
    new MarginKeeper(widget, layout, leftToRight);
}

} // namespace Mirror
