// Draws every SVG icon at every device-pixel side the interface asks for, for a build of Norvale
// that has no SVG renderer of its own, and lists the pictures in a resource collection file.
// Usage: norvale-iconrenderer <output-folder> <icon.svg>...
// Output: <name>-<pixels>.png for each icon and side, and icons-png.qrc beside them.
#include "widgets/iconsizes.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[])
{
    // Rendering to images needs no display; keep it usable on a build machine without one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s <output-folder> <icon.svg>...\n", argv[0]);
        return 2;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    QString qrc = QStringLiteral("<RCC>\n  <qresource prefix=\"/icons-png\">\n");
    for (int i = 2; i < argc; ++i) {
        const QString svg = QString::fromLocal8Bit(argv[i]);
        QSvgRenderer renderer(svg);
        if (!renderer.isValid()) {
            std::fprintf(stderr, "not an SVG icon: %s\n", argv[i]);
            return 1;
        }
        for (const int pixels : iconsizes::pixelSides()) {
            QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            renderer.render(&painter, QRectF(0, 0, pixels, pixels));
            painter.end();
            const QString name = QStringLiteral("%1-%2.png").arg(QFileInfo(svg).completeBaseName()).arg(pixels);
            if (!image.save(out + QLatin1Char('/') + name)) {
                std::fprintf(stderr, "cannot write %s/%s\n", argv[1], qPrintable(name));
                return 1;
            }
            qrc += QStringLiteral("    <file>%1</file>\n").arg(name);
        }
    }
    qrc += QStringLiteral("  </qresource>\n</RCC>\n");
    QSaveFile file(out + QStringLiteral("/icons-png.qrc"));
    if (!file.open(QIODevice::WriteOnly) || file.write(qrc.toUtf8()) < 0 || !file.commit()) {
        std::fprintf(stderr, "cannot write %s/icons-png.qrc\n", argv[1]);
        return 1;
    }
    return 0;
}
