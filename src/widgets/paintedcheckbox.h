#pragma once

class QPainter;
class QRectF;

// The rounded check box that painted rows draw for their selection: a blue square with a white
// tick when checked, a grey outline when not. Rows that paint themselves share it so that every
// list ticks alike.
void paintCheckBox(QPainter& painter, const QRectF& box, bool checked);
