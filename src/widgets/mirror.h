#pragma once

#include <QMargins>
#include <QRect>
#include <QRectF>

class QLayout;
class QWidget;

// Painted widgets place their parts by x coordinate, written for a left-to-right interface. In a
// right-to-left one (Arabic) Qt's layouts mirror the widgets around them, so a painted part has to
// move to the mirrored place too, or it ends up on the far side of the row from its neighbours.
namespace Mirror {

QRectF place(const QWidget* widget, const QRectF& leftToRight);
QRect place(const QWidget* widget, const QRect& leftToRight);

// Qt mirrors the order of a layout's items but not its margins, so a margin that leaves room for
// a painted part stays on the wrong side. This keeps the layout's margins on the side the
// widget's direction asks for, now and whenever the direction changes (the catalogue sets it
// once the event loop runs, after the first widgets exist).
void keepMarginsMirrored(QWidget* widget, QLayout* layout, const QMargins& leftToRight);

} // namespace Mirror
