#pragma once

#include <QPixmap>
#include <QString>

// A vector icon from the resources (":/icons/icons/<name>.svg"), `side` device-independent pixels
// square at the given device-pixel ratio. Null when the resource holds no such icon.
// Every icon of the interface is loaded here, so that a build without Qt Svg (the Windows build,
// which draws from pictures rendered at build time) differs from the others in this one place.
QPixmap iconPixmap(const QString& resource, int side, qreal devicePixelRatio);
