#include "widgets/toggleswitch.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>

namespace {
constexpr float OffX = 3.0f;
constexpr float OnX = 23.0f;
// Comfortably longer than the 180 ms slide, so a slow machine still finishes it.
constexpr int SettleMs = 2000;

QImage paint(ToggleSwitch& toggle)
{
    QImage image(toggle.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    toggle.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}
} // namespace

class tst_ToggleSwitch : public QObject {
    Q_OBJECT

private slots:
    void freshSwitchIsOff();
    void pressTogglesAndSlides_data();
    void pressTogglesAndSlides();
    void paintsTrackAndThumb_data();
    void paintsTrackAndThumb();
    void secondPressDuringSlideTurnsBack();
};

void tst_ToggleSwitch::freshSwitchIsOff()
{
    ToggleSwitch toggle;
    QVERIFY(!toggle.isChecked());
    QCOMPARE(toggle.thumbX(), OffX);
    QCOMPARE(toggle.sizeHint(), QSize(44, 24));
    QCOMPARE(toggle.size(), QSize(44, 24));
    QCOMPARE(toggle.minimumSize(), toggle.maximumSize());
}

void tst_ToggleSwitch::pressTogglesAndSlides_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left button") << Qt::LeftButton;
    QTest::newRow("right button toggles too") << Qt::RightButton;
    QTest::newRow("middle button toggles too") << Qt::MiddleButton;
}

void tst_ToggleSwitch::pressTogglesAndSlides()
{
    QFETCH(Qt::MouseButton, button);
    ToggleSwitch toggle;
    QSignalSpy spy(&toggle, &ToggleSwitch::toggled);

    QTest::mousePress(&toggle, button);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    // The state flips at the press, before the thumb has moved.
    QVERIFY(toggle.isChecked());
    QTRY_COMPARE_WITH_TIMEOUT(toggle.thumbX(), OnX, SettleMs);

    QTest::mouseRelease(&toggle, button);
    QTest::mousePress(&toggle, button);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
    QVERIFY(!toggle.isChecked());
    QTRY_COMPARE_WITH_TIMEOUT(toggle.thumbX(), OffX, SettleMs);
}

void tst_ToggleSwitch::paintsTrackAndThumb_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QPoint>("trackPoint");
    QTest::addColumn<QPoint>("thumbPoint");
    QTest::addColumn<QColor>("trackColor");

    // The thumb is 14 px wide and 14 px tall from y = 5; the points sit mid-height.
    QTest::newRow("off: light track, thumb on the left")
        << false << QPoint(32, 12) << QPoint(10, 12) << QColor(191, 219, 254);
    QTest::newRow("on: blue track, thumb on the right")
        << true << QPoint(10, 12) << QPoint(30, 12) << QColor(59, 130, 246);
}

void tst_ToggleSwitch::paintsTrackAndThumb()
{
    QFETCH(bool, on);
    QFETCH(QPoint, trackPoint);
    QFETCH(QPoint, thumbPoint);
    QFETCH(QColor, trackColor);

    ToggleSwitch toggle;
    if (on) {
        QTest::mousePress(&toggle, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(toggle.thumbX(), OnX, SettleMs);
    }

    const QImage image = paint(toggle);
    QCOMPARE(QColor(image.pixel(trackPoint)), trackColor);
    QCOMPARE(QColor(image.pixel(thumbPoint)), QColor(Qt::white));
    // Above and below the track (which leaves two rows free at each edge) stays unpainted.
    QCOMPARE(qAlpha(image.pixel(trackPoint.x(), 0)), 0);
    QCOMPARE(qAlpha(image.pixel(trackPoint.x(), 23)), 0);
    // The rim is a darker shade than the fill along the track's top edge.
    const QRgb rim = image.pixel(22, 2);
    QVERIFY2(qGray(rim) < qGray(trackColor.rgb()), qPrintable(QColor(rim).name()));
}

void tst_ToggleSwitch::secondPressDuringSlideTurnsBack()
{
    ToggleSwitch toggle;
    QSignalSpy spy(&toggle, &ToggleSwitch::toggled);

    QTest::mousePress(&toggle, Qt::LeftButton);
    // Hold the slide half-way, so that a slow machine cannot let it finish before the second press.
    auto* slide = toggle.findChild<QPropertyAnimation*>();
    QVERIFY(slide);
    slide->pause();
    slide->setCurrentTime(slide->duration() / 2);
    const float before = toggle.thumbX();
    QVERIFY2(before > OffX + 2.0f && before < OnX - 2.0f, qPrintable(QString::number(before)));

    QTest::mouseRelease(&toggle, Qt::LeftButton);
    QTest::mousePress(&toggle, Qt::LeftButton);
    QCOMPARE(toggle.thumbX(), before);
    QVERIFY(!toggle.isChecked());

    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);

    // The thumb never goes further right than where it turned.
    float furthest = before;
    QElapsedTimer timer;
    timer.start();
    while (toggle.thumbX() != OffX && timer.elapsed() < SettleMs) {
        QTest::qWait(5);
        furthest = qMax(furthest, toggle.thumbX());
    }
    QCOMPARE(toggle.thumbX(), OffX);
    QCOMPARE(furthest, before);
}

QTEST_MAIN(tst_ToggleSwitch)
#include "tst_toggleswitch.moc"
