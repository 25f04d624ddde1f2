#pragma once

#include <QLabel>

// The text of the label of that object name below `widget`; a label that is not there reads as
// a text no expected one can match, so a renamed label fails the comparison instead of crashing.
inline QString labelText(const QWidget& widget, const char* objectName)
{
    const auto* label = widget.findChild<QLabel*>(QLatin1String(objectName));
    return label ? label->text() : QStringLiteral("<no label %1>").arg(QLatin1String(objectName));
}
