#include "shell/mainwindow.h"
#include "shell/navbutton.h"
#include "shell/sidebar.h"
#include "shell/titlebar.h"
#include "sysinfo/dashboardpage.h"

#include <QApplication>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include "support/mouse.h"

class tst_MainWindow : public QObject {
    Q_OBJECT

private slots:
    void sizeLimits()
    {
        MainWindow window;
        QCOMPARE(window.size(), QSize(980, 700));
        QCOMPARE(window.minimumSize(), QSize(980, 680));
        window.resize(600, 400);
        QCOMPARE(window.size(), QSize(980, 680));
    }

    void firstVisitsStartOnce_data()
    {
        QTest::addColumn<QList<int>>("visits");
        QTest::addColumn<QList<int>>("starts");
        QTest::newRow("uninstall, away and back") << QList<int> { 2, 0, 2 } << QList<int> { 2 };
        QTest::newRow("every page twice") << QList<int> { 0, 1, 2, 3, 4, 4, 3, 2, 1, 0 } << QList<int> { 2, 3, 4 };
        QTest::newRow("dashboard and cleanup start nothing") << QList<int> { 0, 1, 0, 1 } << QList<int> {};
    }

    void firstVisitsStartOnce()
    {
        QFETCH(QList<int>, visits);
        QFETCH(QList<int>, starts);
        MainWindow window;
        QSignalSpy spy(&window, &MainWindow::firstVisitStarted);
        for (int index : visits) {
            window.navigateTo(index);
            QCOMPARE(window.pageStack()->currentIndex(), index);
            QCOMPARE(window.sidebar()->activeIndex(), index);
        }
        QList<int> started;
        for (const auto& args : std::as_const(spy))
            started << args.at(0).toInt();
        QCOMPARE(started, starts);
    }

    void quickActionMovesTheActiveMark()
    {
        MainWindow window;
        auto* dashboard = qobject_cast<DashboardPage*>(window.pageStack()->widget(0));
        QVERIFY(dashboard);
        emit dashboard->navigateTo(1);
        QCOMPARE(window.pageStack()->currentIndex(), 1);
        QVERIFY(window.sidebar()->buttons().at(1)->isActive());
        QVERIFY(!window.sidebar()->buttons().at(0)->isActive());
    }

    void doubleClickTwiceRestoresGeometry()
    {
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect before = window.geometry();
        sendMouse(window.titleBar(), QEvent::MouseButtonDblClick, QPoint(100, 20), Qt::RightButton, Qt::RightButton);
        QVERIFY(!window.isMaximizedByWindow()); // only the left button
        sendMouse(window.titleBar(), QEvent::MouseButtonDblClick, QPoint(100, 20), Qt::LeftButton, Qt::LeftButton);
        QVERIFY(window.isMaximizedByWindow());
        QVERIFY(window.titleBar()->isMaximized());
        sendMouse(window.titleBar(), QEvent::MouseButtonDblClick, QPoint(100, 20), Qt::LeftButton, Qt::LeftButton);
        QVERIFY(!window.isMaximizedByWindow());
        QVERIFY(!window.titleBar()->isMaximized());
        QTRY_COMPARE(window.geometry(), before);
    }

    // A press the title bar did not take reaches the window: it drags only inside the bar's band.
    void pressOnTheWindowDragsOnlyInTheTitleBand_data()
    {
        QTest::addColumn<bool>("inBar");
        QTest::newRow("in the title bar's band") << true;
        QTest::newRow("on a page") << false;
    }
    void pressOnTheWindowDragsOnlyInTheTitleBand()
    {
        QFETCH(bool, inBar);
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint start = window.frameGeometry().topLeft();
        const QPoint at = inBar ? window.titleBar()->mapTo(&window, QPoint(300, 20)) : QPoint(600, 400);
        sendMouse(&window, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
        sendMouse(&window, QEvent::MouseMove, at + QPoint(15, 10), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(window.frameGeometry().topLeft(), start + (inBar ? QPoint(15, 10) : QPoint()));
    }

    void languageDisplayNames_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("name");
        QTest::newRow("Japanese in its own script") << "ja" << QStringLiteral("日本語");
        QTest::newRow("Portuguese shows the code") << "pt" << QString("pt");
    }
    void languageDisplayNames()
    {
        QFETCH(QString, code);
        QTEST(MainWindow::languageDisplayName(code), "name");
    }
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
