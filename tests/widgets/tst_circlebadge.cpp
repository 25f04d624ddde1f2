#include "widgets/circlebadge.h"

#include <QImage>
#include <QTest>

class tst_CircleBadge : public QObject {
    Q_OBJECT

private slots:
    void pixmapCentredThenText()
    {
        // 64 pixels at ratio 2 are 32 logical ones, so the picture must cover (16, 16)-(47, 47).
        const QColor navy(10, 20, 90);
        QPixmap pixmap(64, 64);
        pixmap.fill(navy);
        pixmap.setDevicePixelRatio(2.0);
        CircleBadge badge;
        badge.setFixedSize(64, 64);
        badge.setPixmap(pixmap);
        badge.setText(QStringLiteral("WW"));
        badge.setTextPixelSize(28);
        QImage image(badge.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        badge.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);

        QCOMPARE(image.pixelColor(16, 16), navy);
        QCOMPARE(image.pixelColor(47, 47), navy);
        QVERIFY(image.pixelColor(15, 15) != navy);
        QVERIFY(image.pixelColor(48, 48) != navy);
        // Light pixels on the dark picture can only be the text, so it went on top.
        int light = 0;
        for (int y = 16; y < 48; ++y)
            for (int x = 16; x < 48; ++x)
                light += qGray(image.pixel(x, y)) > 200;
        QVERIFY(light > 0);
    }
};

QTEST_MAIN(tst_CircleBadge)
#include "tst_circlebadge.moc"
