#include "iconpixmap.h"

#include "iconsizes.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QtMath>

#ifdef NORVALE_PNG_ICONS

namespace {

// Pictures of ":/icons/icons/<name>.svg" are ":/icons-png/<name>-<device pixels>.png".
QString pictureOf(const QString& resource, int pixels)
{
    return QStringLiteral(":/icons-png/%1-%2.png").arg(QFileInfo(resource).completeBaseName()).arg(pixels);
}

} // namespace

QPixmap iconPixmap(const QString& resource, int side, qreal devicePixelRatio)
{
    const int pixels = qRound(side * devicePixelRatio);
    // The pictures are found by the icon's name alone; the icon itself must exist all the same.
    if (pixels <= 0 || !QFile::exists(resource))
        return QPixmap();
    QPixmap pixmap(pictureOf(resource, pixels));
    if (pixmap.isNull()) {
        // An unlisted size or scale: the smallest larger picture shrinks with the least blur.
        const auto sides = iconsizes::pixelSides();
        auto candidate = sides.lower_bound(pixels);
        if (candidate == sides.end() && !sides.empty())
            --candidate;
        if (candidate == sides.end())
            return QPixmap();
        const QPixmap larger(pictureOf(resource, *candidate));
        if (larger.isNull())
            return QPixmap();
        pixmap = larger.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

#else

#include <QSvgRenderer>

QPixmap iconPixmap(const QString& resource, int side, qreal devicePixelRatio)
{
    const int pixels = qRound(side * devicePixelRatio);
    QSvgRenderer renderer(resource);
    if (pixels <= 0 || !renderer.isValid())
        return QPixmap();
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(0, 0, side, side));
    return pixmap;
}

#endif
