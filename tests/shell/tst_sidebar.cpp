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
    }

    void clickingActiveEntryAgainReemits()
    {
        Sidebar bar;
        QSignalSpy spy(&bar, &Sidebar::pageRequested);
        QTest::mouseClick(bar.buttons().at(2), Qt::LeftButton);
        const QString style = bar.buttons().at(2)->findChild<QLabel*>(QStringLiteral("NavLabel"))->styleSheet();
        QTest::mouseClick(bar.buttons().at(2), Qt::LeftButton);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(1).at(0).toInt(), 2);
        QCOMPARE(bar.buttons().at(2)->findChild<QLabel*>(QStringLiteral("NavLabel"))->styleSheet(), style);
    }

    void activeLabelStyle()
    {
        NavButton button(QString(), QStringLiteral("x"), QString());
        auto* label = button.findChild<QLabel*>(QStringLiteral("NavLabel"));
        button.setActive(true);
        QVERIFY(label->styleSheet().contains(QLatin1String("color:#ffffff")));
        QVERIFY(label->styleSheet().contains(QLatin1String("font-weight:600")));
        button.setActive(false);
        QVERIFY(label->styleSheet().contains(QLatin1String("rgba(255,255,255,0.65)")));
    }

    void emojiIconAndBadge()
    {
        NavButton button(QStringLiteral("🧹"), QStringLiteral("x"), QStringLiteral("3"));
        const auto labels = button.findChildren<QLabel*>();
        QCOMPARE(labels.size(), 3);
        QCOMPARE(labels.at(0)->text(), QStringLiteral("🧹"));
        QCOMPARE(labels.at(2)->text(), QStringLiteral("3"));
        NavButton plain(QString(), QStringLiteral("x"), QString());
        QCOMPARE(plain.findChildren<QLabel*>().size(), 2);
    }

    void geometry_data()
    {
        QTest::addColumn<QString>("part");
        QTest::addColumn<QRect>("expected"); // in sidebar coordinates; a negative y is not checked
        QTest::newRow("brand block across the top") << "BrandWidget" << QRect(0, 0, 224, 80);
        QTest::newRow("logo inside the brand margins") << "BrandLogo" << QRect(18, -1, 34, 34);
        // The navigation area has 10 px side margins.
        QTest::newRow("entry") << "button 3" << QRect(10, -1, 204, 36);
        QTest::newRow("entry icon after the 10 px inner margin") << "icon 0" << QRect(20, -1, 18, 18);
    }

    void geometry()
    {
        QFETCH(QString, part);
        QFETCH(QRect, expected);
        Sidebar bar;
        bar.resize(224, 700);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));

        QWidget* widget = nullptr;
        if (part.startsWith(QLatin1String("button ")))
            widget = bar.buttons().at(part.mid(7).toInt());
        else if (part.startsWith(QLatin1String("icon ")))
            widget = bar.buttons().at(part.mid(5).toInt())->findChildren<QLabel*>().first();
        else
            widget = bar.findChild<QWidget*>(part);
        QVERIFY(widget);
        const QRect actual(widget->mapTo(&bar, QPoint(0, 0)), widget->size());
        QCOMPARE(actual.size(), expected.size());
        QCOMPARE(actual.x(), expected.x());
        if (expected.y() >= 0)
            QCOMPARE(actual.y(), expected.y());
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
