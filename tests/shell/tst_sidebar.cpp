#include "shell/navbutton.h"
#include "shell/sidebar.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

class tst_Sidebar : public QObject {
    Q_OBJECT

private slots:
    void entriesInOrder()
    {
        Sidebar bar;
        QCOMPARE(bar.width(), 224);
        QStringList texts;
        for (NavButton* b : bar.buttons())
            texts << b->findChild<QLabel*>(QStringLiteral("NavLabel"))->text();
        QCOMPARE(texts,
            QStringList({ QStringLiteral("系统概览"), QStringLiteral("磁盘清理"), QStringLiteral("软件卸载"),
                QStringLiteral("Windows App"), QStringLiteral("浏览器扩展") }));
        QCOMPARE(bar.activeIndex(), 0);
        QVERIFY(bar.buttons().at(0)->isActive());
        QCOMPARE(bar.buttons().at(0)->property("active").toBool(), true);
    }

    void clickMarksAndRequests_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < 5; ++i)
            QTest::newRow(qPrintable(QStringLiteral("entry %1").arg(i))) << i;
    }

    void clickMarksAndRequests()
    {
        QFETCH(int, index);
        Sidebar bar;
        QSignalSpy spy(&bar, &Sidebar::pageRequested);
        QTest::mouseClick(bar.buttons().at(index), Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), index);
        for (int i = 0; i < bar.buttons().size(); ++i)
            QCOMPARE(bar.buttons().at(i)->isActive(), i == index);
        // The active entry asks again when clicked again, and keeps its look.
        auto* label = bar.buttons().at(index)->findChild<QLabel*>(QStringLiteral("NavLabel"));
        const QString style = label->styleSheet();
        QTest::mouseClick(bar.buttons().at(index), Qt::LeftButton);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toInt(), index);
        QCOMPARE(label->styleSheet(), style);
    }

    void gradientIsPainted()
    {
        Sidebar bar;
        bar.resize(224, 700);
        const QImage image = bar.grab().toImage();
        // Bottom right, away from the top glow and the labels: the gradient's last stop.
        const QColor bottom(image.pixel(220, 698));
        QVERIFY2(qAbs(bottom.red() - 14) <= 3 && qAbs(bottom.green() - 114) <= 3 && qAbs(bottom.blue() - 164) <= 3,
            qPrintable(bottom.name()));
        // Top right, outside the 160 px glow: the first stop.
        const QColor top(image.pixel(222, 1));
        QVERIFY2(qAbs(top.red() - 15) <= 3 && qAbs(top.green() - 45) <= 3 && qAbs(top.blue() - 107) <= 3,
            qPrintable(top.name()));
    }
};

QTEST_MAIN(tst_Sidebar)
#include "tst_sidebar.moc"
