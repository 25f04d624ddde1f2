#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    // The style sheet's background and border, as QFrame would draw them.
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    // Names, versions and sizes keep their own reading direction whatever the interface's, so that
    // "8 MB" never reads "MB 8" and the ellipsis lands at the end of the text; the alignment
    // still follows the interface.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    style()->drawItemText(&painter, contentsRect(), int(QStyle::visualAlignment(layoutDirection(), alignment())),
        palette(), isEnabled(), shownText(), foregroundRole());
}
