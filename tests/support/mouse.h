#pragma once

#include <QApplication>
#include <QMouseEvent>

// A mouse event sent straight to the widget: QTest's helpers cannot press and move with the
// button held, nor double-click with another button than the one pressed.
inline void sendMouse(
    QWidget* target, QEvent::Type type, const QPoint& local, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(local), target->mapToGlobal(QPointF(local)), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}
