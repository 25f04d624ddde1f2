#include "widgets/ringgauge.h"

#include <QImage>
#include <QTest>
#include <QtMath>

namespace {
// The ring is drawn in the rectangle (9, 9, 112, 112): centre (65, 65), radius 56, 10 px wide.
constexpr qreal CentreXY = 65.0;
constexpr qreal Radius = 56.0;
const QColor Track(226, 232, 240);
const QColor Own(37, 99, 235);
const QColor Amber("#f59e0b");
const QColor Red("#ef4444");

QImage paint(RingGauge& gauge)
{
    QImage image(gauge.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    gauge.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// The pixel on the middle of the ring at a clock angle in degrees (0 = twelve, 90 = three).
QPoint onRing(qreal clockDegrees)
{
    const qreal radians = qDegreesToRadians(clockDegrees);
    return QPoint(qFloor(CentreXY + Radius * qSin(radians)), qFloor(CentreXY - Radius * qCos(radians)));
}

QColor sample(const QImage& image, qreal clockDegrees)
{
    return image.pixelColor(onRing(clockDegrees));
}

// How many pixels inside the rectangle differ from the white the gauge was painted on.
int inkIn(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixel(x, y) != qRgb(255, 255, 255);
    return count;
}
} // namespace

class tst_RingGauge : public QObject {
    Q_OBJECT

private slots:
    void arcColourFollowsValue_data();
    void arcColourFollowsValue();
    void arcRunsClockwiseFromTwelve_data();
    void arcRunsClockwiseFromTwelve();
    void textLines_data();
    void textLines();
};

void tst_RingGauge::arcColourFollowsValue_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("0: grey track only") << 0 << Track;
    QTest::newRow("negative: grey track only") << -5 << Track;
    QTest::newRow("1: own colour") << 1 << Own;
    QTest::newRow("65: last value in own colour") << 65 << Own;
    QTest::newRow("66: first amber") << 66 << Amber;
    QTest::newRow("85: last amber") << 85 << Amber;
    QTest::newRow("86: first red") << 86 << Red;
    QTest::newRow("100: red") << 100 << Red;
}

void tst_RingGauge::arcColourFollowsValue()
{
    QFETCH(int, value);
    QFETCH(QColor, expected);

    RingGauge gauge(QStringLiteral("CPU"), Own);
    gauge.setValue(value);
    QCOMPARE(gauge.arcColor(), value >= 1 ? expected : Own);

    // Just past twelve o'clock is covered by every arc from 1 % on (its round cap reaches there).
    const QImage image = paint(gauge);
    QCOMPARE(sample(image, 2.0), expected);
    // Opposite the start only a long arc reaches; short ones leave the track visible there.
    QCOMPARE(sample(image, 180.0), value > 50 ? expected : Track);
}

void tst_RingGauge::arcRunsClockwiseFromTwelve_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<qreal>("coveredUpTo");

    QTest::newRow("25: twelve to three") << 25 << 90.0;
    QTest::newRow("50: twelve to six") << 50 << 180.0;
    QTest::newRow("75: twelve to nine") << 75 << 270.0;
    QTest::newRow("100: the whole ring") << 100 << 360.0;
}

void tst_RingGauge::arcRunsClockwiseFromTwelve()
{
    QFETCH(int, value);
    QFETCH(qreal, coveredUpTo);

    RingGauge gauge(QStringLiteral("Memory"), Own);
    gauge.setValue(value);
    const QColor arc = gauge.arcColor();
    const QImage image = paint(gauge);

    // Every 15 degrees clockwise from twelve: coloured up to the end, grey beyond. The end
    // itself is coloured too, since the round cap spreads past it.
    for (qreal angle = 0.0; angle < 360.0; angle += 15.0) {
        const QColor expected = angle <= coveredUpTo ? arc : Track;
        QVERIFY2(sample(image, angle) == expected,
            qPrintable(QStringLiteral("%1 degrees: %2").arg(angle).arg(sample(image, angle).name())));
    }
    // Well inside and outside the ring nothing is painted.
    QCOMPARE(image.pixelColor(onRing(45.0) + QPoint(0, 12)), QColor(Qt::white));
    QCOMPARE(image.pixelColor(2, 65), QColor(Qt::white));
}

void tst_RingGauge::textLines_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("detail");

    QTest::newRow("0 without detail") << 0 << QString();
    QTest::newRow("42 with detail") << 42 << QStringLiteral("6.2 / 16 GB");
    QTest::newRow("100 with detail") << 100 << QStringLiteral("C:");
}

void tst_RingGauge::textLines()
{
    QFETCH(int, value);
    QFETCH(QString, detail);

    RingGauge gauge(QStringLiteral("Disk"), Own);
    gauge.setValue(value);
    gauge.setDetail(detail);
    const QImage image = paint(gauge);

    // Bands inside the ring's inner edge, one per text line; the detail band stops short of
    // where the ring curves in at the bottom.
    const QRect percentBand(35, 45, 60, 28);
    const QRect labelBand(35, 75, 60, 16);
    const QRect detailBand(40, 91, 50, 11);

    QVERIFY(inkIn(image, percentBand) > 0);
    // The percentage is the darkest ink on the gauge.
    bool dark = false;
    for (int y = percentBand.top(); y <= percentBand.bottom(); ++y)
        for (int x = percentBand.left(); x <= percentBand.right(); ++x)
            dark = dark || qGray(image.pixel(x, y)) < 60;
    QVERIFY(dark);
    QVERIFY(inkIn(image, labelBand) > 0);
    QCOMPARE(inkIn(image, detailBand) > 0, !detail.isEmpty());
}

QTEST_MAIN(tst_RingGauge)
#include "tst_ringgauge.moc"
