#include "widgets/circlebadge.h"

#include <QImage>
#include <QTest>

namespace {
QImage paint(CircleBadge& badge)
{
    QImage image(badge.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    badge.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QPixmap solid(const QSize& pixels, qreal ratio, const QColor& color)
{
    QPixmap pixmap(pixels);
    pixmap.fill(color);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

// The bounding rectangle of the pixels exactly of one colour.
QRect extentOf(const QImage& image, const QColor& color)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                extent |= QRect(x, y, 1, 1);
    return extent;
}
} // namespace

class tst_CircleBadge : public QObject {
    Q_OBJECT

private slots:
    void fillAlphaShowsOnDisc_data();
    void fillAlphaShowsOnDisc();
    void pixmapCentredByLogicalSize_data();
    void pixmapCentredByLogicalSize();
    void textDrawnOverPixmap_data();
    void textDrawnOverPixmap();
};

void tst_CircleBadge::fillAlphaShowsOnDisc_data()
{
    QTest::addColumn<int>("fillAlpha");
    QTest::addColumn<int>("expectedAlpha");

    QTest::newRow("default 38") << -1 << 38;
    QTest::newRow("half") << 128 << 128;
    QTest::newRow("invisible") << 0 << 0;
    QTest::newRow("above the range is opaque") << 400 << 255;
}

void tst_CircleBadge::fillAlphaShowsOnDisc()
{
    QFETCH(int, fillAlpha);
    QFETCH(int, expectedAlpha);

    CircleBadge badge;
    badge.setFixedSize(60, 60);
    if (fillAlpha >= 0)
        badge.setFillAlpha(fillAlpha);
    QVERIFY(badge.testAttribute(Qt::WA_TranslucentBackground));

    const QImage image = paint(badge);
    const QColor centre = image.pixelColor(30, 30);
    QCOMPARE(centre.alpha(), expectedAlpha);
    if (expectedAlpha > 0)
        QCOMPARE(centre.rgb(), qRgb(255, 255, 255));
    // Outside the disc the background stays see-through.
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(59, 59).alpha(), 0);
    // The rim is more opaque than the default fill where it crosses the top of the disc.
    if (fillAlpha < 0)
        QVERIFY(image.pixelColor(30, 0).alpha() > expectedAlpha);
}

void tst_CircleBadge::pixmapCentredByLogicalSize_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QRect>("expected");

    QTest::newRow("ratio 1 in 64") << QSize(64, 64) << QSize(40, 40) << 1.0 << QRect(12, 12, 40, 40);
    QTest::newRow("ratio 2 covers half its pixels") << QSize(64, 64) << QSize(40, 40) << 2.0 << QRect(22, 22, 20, 20);
    QTest::newRow("odd leftover rounds down") << QSize(60, 60) << QSize(21, 21) << 1.0 << QRect(19, 19, 21, 21);
    QTest::newRow("non-square") << QSize(60, 60) << QSize(40, 20) << 2.0 << QRect(20, 25, 20, 10);
}

void tst_CircleBadge::pixmapCentredByLogicalSize()
{
    QFETCH(QSize, widget);
    QFETCH(QSize, pixels);
    QFETCH(qreal, ratio);
    QFETCH(QRect, expected);

    const QColor red(220, 20, 20);
    CircleBadge badge;
    badge.setFixedSize(widget);
    badge.setPixmap(solid(pixels, ratio, red));

    QCOMPARE(extentOf(paint(badge), red), expected);
}

void tst_CircleBadge::textDrawnOverPixmap_data()
{
    QTest::addColumn<int>("textAlpha");
    QTest::addColumn<bool>("textVisible");

    QTest::newRow("opaque text shows over the picture") << 255 << true;
    QTest::newRow("invisible text leaves the picture") << 0 << false;
}

void tst_CircleBadge::textDrawnOverPixmap()
{
    QFETCH(int, textAlpha);
    QFETCH(bool, textVisible);

    // A dark picture filling the whole badge: any light pixel on it is the text.
    const QColor navy(10, 20, 90);
    CircleBadge badge;
    badge.setFixedSize(64, 64);
    badge.setPixmap(solid(QSize(64, 64), 1.0, navy));
    badge.setText(QStringLiteral("WW"));
    badge.setTextPixelSize(28);
    badge.setTextAlpha(textAlpha);

    const QImage image = paint(badge);
    int light = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            light += qGray(image.pixel(x, y)) > 200;
    QCOMPARE(light > 0, textVisible);
    // The text sits in the middle, so the corners show only the picture.
    QCOMPARE(image.pixelColor(0, 0), navy);
}

QTEST_MAIN(tst_CircleBadge)
#include "tst_circlebadge.moc"
