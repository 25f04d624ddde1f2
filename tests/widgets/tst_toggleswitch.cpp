#include "widgets/toggleswitch.h"

#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>

namespace {
constexpr float OffX = 3.0f;
constexpr float OnX = 23.0f;
// Far longer than the slide, so a slow machine still finishes it.
constexpr int SettleMs = 2000;
} // namespace

class tst_ToggleSwitch : public QObject {
    Q_OBJECT

private slots:
    void pressTogglesAndSlides()
    {
        ToggleSwitch toggle;
        QCOMPARE(toggle.thumbX(), OffX);
        QSignalSpy spy(&toggle, &ToggleSwitch::toggled);
        // Any button toggles, not only the left one.
        for (Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
            const bool on = !toggle.isChecked();
            QTest::mousePress(&toggle, button);
            // The state flips at the press, before the thumb has moved.
            QCOMPARE(toggle.isChecked(), on);
            QCOMPARE(spy.count(), 1);
            QCOMPARE(spy.takeFirst().at(0).toBool(), on);
            QTRY_COMPARE_WITH_TIMEOUT(toggle.thumbX(), on ? OnX : OffX, SettleMs);
            QTest::mouseRelease(&toggle, button);
        }
    }

    void secondPressDuringSlideTurnsBack()
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
        QVERIFY(!toggle.isChecked());
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toBool(), false);

        // It turns back from where it is: no jump, and never further right.
        float furthest = toggle.thumbX();
        QCOMPARE(furthest, before);
        for (int waited = 0; toggle.thumbX() != OffX && waited < SettleMs; waited += 5) {
            QTest::qWait(5);
            furthest = qMax(furthest, toggle.thumbX());
        }
        QCOMPARE(toggle.thumbX(), OffX);
        QCOMPARE(furthest, before);
    }
};

QTEST_MAIN(tst_ToggleSwitch)
#include "tst_toggleswitch.moc"
