#include "widgets/ringgauge.h"

#include <QImage>
#include <QTest>
#include <QtMath>

class tst_RingGauge : public QObject {
    Q_OBJECT

private slots:
    void arcColourAndSweep_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QColor>("colour");

        const QColor own(37, 99, 235), amber("#f59e0b"), red("#ef4444");
        QTest::newRow("0: no arc at all") << 0 << QColor();
        QTest::newRow("negative: no arc at all") << -5 << QColor();
        QTest::newRow("65: last in its own colour") << 65 << own;
        QTest::newRow("66: first amber") << 66 << amber;
        QTest::newRow("85: last amber") << 85 << amber;
        QTest::newRow("86: first red") << 86 << red;
        QTest::newRow("100: the whole ring") << 100 << red;
    }

    void arcColourAndSweep()
    {
        QFETCH(int, value);
        QFETCH(QColor, colour);

        RingGauge gauge(QStringLiteral("CPU"), QColor(37, 99, 235));
        gauge.setValue(value);
        QImage image(gauge.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        gauge.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);

        // Walk the middle of the ring (centre (65, 65), radius 56) clockwise from twelve: the arc's
        // colour up to its end (the round cap covers the end itself), the grey track past it. Near
        // the end the cap's edge makes either answer right.
        const qreal end = value * 3.6;
        for (qreal angle = 0.0; angle < 360.0; angle += 15.0) {
            if (angle > end && angle < end + 8.0)
                continue;
            const QPoint at(qFloor(65.0 + 56.0 * qSin(qDegreesToRadians(angle))),
                qFloor(65.0 - 56.0 * qCos(qDegreesToRadians(angle))));
            const QColor expected = value > 0 && angle <= end ? colour : QColor(226, 232, 240);
            QVERIFY2(image.pixelColor(at) == expected,
                qPrintable(QStringLiteral("%1 degrees: %2").arg(angle).arg(image.pixelColor(at).name())));
        }
    }
};

QTEST_MAIN(tst_RingGauge)
#include "tst_ringgauge.moc"
