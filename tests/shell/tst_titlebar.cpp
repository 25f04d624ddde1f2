#include "shell/titlebar.h"
#include "shell/winbutton.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include "support/mouse.h"

namespace {

QSettings settings()
{
    return QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"));
}

QAction* languageAction(TitleBar& bar, const QString& code)
{
    const auto actions = bar.languageGroup()->actions();
    for (QAction* a : actions) {
        if (a->data().toString() == code)
            return a;
    }
    return nullptr;
}

// Buttons paint on a transparent background; the title bar under them is white.
QImage paint(QWidget& w)
{
    QImage image(w.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    w.render(&image);
    return image;
}

TitleBar* barInWindow(QWidget& window, const QPoint& topLeft)
{
    window.setGeometry(QRect(topLeft, QSize(600, 300)));
    auto* bar = new TitleBar(&window);
    bar->setGeometry(0, 0, 600, 40);
    window.show();
    return QTest::qWaitForWindowExposed(&window) ? bar : nullptr;
}

} // namespace

class tst_TitleBar : public QObject {
    Q_OBJECT

private slots:
    void init() { settings().clear(); }

    void menuEntriesInOrder()
    {
        TitleBar bar;
        QStringList texts;
        const auto actions = bar.menu()->actions();
        for (QAction* a : actions)
            texts << (a->isSeparator() ? QStringLiteral("|") : a->text());
        // The first entry keeps its misspelt source text: the catalogues key on it.
        const QStringList expected = { QStringLiteral("ℹ️  Qbout Norvale"), "|", QStringLiteral("🌐  Language"), "|",
            QStringLiteral("❓  Help"), QStringLiteral("💬  Support"), "|", "Quit" };
        QCOMPARE(texts, expected);
    }

    void checkedLanguage_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("checked");
        QTest::newRow("nothing stored marks Simplified Chinese") << QString() << "zh_CN";
        QTest::newRow("stored German") << QString("de") << "de";
    }

    void checkedLanguage()
    {
        QFETCH(QString, stored);
        QFETCH(QString, checked);
        if (!stored.isNull())
            settings().setValue(QStringLiteral("language"), stored);
        TitleBar bar;
        QCOMPARE(bar.currentLanguage(), checked);
        QVERIFY(bar.languageGroup()->checkedAction());
        QCOMPARE(bar.languageGroup()->checkedAction()->data().toString(), checked);
    }

    void choosingALanguage()
    {
        TitleBar bar;
        QSignalSpy spy(&bar, &TitleBar::languageChanged);
        // The current one (nothing stored: Simplified Chinese) writes nothing and says nothing.
        languageAction(bar, "zh_CN")->trigger();
        QCOMPARE(spy.count(), 0);
        QVERIFY(!settings().contains(QStringLiteral("language")));
        languageAction(bar, "pt")->trigger();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("pt"));
        QCOMPARE(settings().value(QStringLiteral("language")).toString(), QStringLiteral("pt"));
        QCOMPARE(bar.currentLanguage(), QStringLiteral("pt"));
        languageAction(bar, "pt")->trigger();
        QCOMPARE(spy.count(), 1);
    }

    void dragMovesTheWindow()
    {
        QWidget window;
        TitleBar* bar = barInWindow(window, QPoint(100, 100));
        QVERIFY(bar);
        const QPoint start = window.frameGeometry().topLeft();
        sendMouse(bar, QEvent::MouseButtonPress, QPoint(100, 20), Qt::LeftButton, Qt::LeftButton);
        sendMouse(bar, QEvent::MouseMove, QPoint(130, 45), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(window.frameGeometry().topLeft(), start + QPoint(30, 25));
        sendMouse(bar, QEvent::MouseButtonRelease, QPoint(130, 45), Qt::LeftButton, Qt::NoButton);
        const QPoint afterRelease = window.frameGeometry().topLeft();
        sendMouse(bar, QEvent::MouseMove, QPoint(200, 20), Qt::NoButton, Qt::NoButton);
        QCOMPARE(window.frameGeometry().topLeft(), afterRelease);
    }

    void dragWhileMaximisedRestoresUnderCursor()
    {
        QWidget window;
        TitleBar* bar = barInWindow(window, QPoint(0, 0));
        QVERIFY(bar);
        bar->setMaximized(true);
        QSignalSpy restore(bar, &TitleBar::maximizeRequested);
        sendMouse(bar, QEvent::MouseButtonPress, QPoint(500, 10), Qt::LeftButton, Qt::LeftButton);
        const QPoint cursor = bar->mapToGlobal(QPoint(520, 12));
        sendMouse(bar, QEvent::MouseMove, QPoint(520, 12), Qt::NoButton, Qt::LeftButton);
        QCOMPARE(restore.count(), 1);
        // The window hangs centred under the cursor: half the bar's width and height.
        QCOMPARE(window.frameGeometry().topLeft(), cursor - QPoint(300, 20));
    }

    void winButtonHoverColours_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QColor>("wash");
        QTest::newRow("close turns red") << int(WinButton::Close) << QColor(0xE8, 0x11, 0x23);
        // Black at alpha 18 over white.
        QTest::newRow("others get a grey wash") << int(WinButton::Minimize) << QColor(237, 237, 237);
    }

    void winButtonHoverColours()
    {
        QFETCH(int, kind);
        QFETCH(QColor, wash);
        WinButton button(kind);
        const QImage idle = paint(button);
        QCOMPARE(QColor(idle.pixel(2, 2)), QColor(Qt::white));
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(&button, &enter);
        QVERIFY(button.isHovered());
        const QImage hovered = paint(button);
        const QColor corner(hovered.pixel(2, 2));
        QVERIFY2(qAbs(corner.red() - wash.red()) <= 2 && qAbs(corner.green() - wash.green()) <= 2
                && qAbs(corner.blue() - wash.blue()) <= 2,
            qPrintable(corner.name()));
        if (kind == WinButton::Close) { // the cross turns white on the red
            const QColor cross(hovered.pixel(button.width() / 2, button.height() / 2));
            QVERIFY2(cross.green() > 200 && cross.blue() > 200, qPrintable(cross.name()));
        }
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&button, &leave);
        QVERIFY(!button.isHovered());
    }

    // Points are offsets from the button's centre (23, 16), away from stroke ends and corners
    // where antialiasing leaves only a faint trace; blank points lie clear of every stroke.
    void winButtonGlyphs_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QList<QPoint>>("inked");
        QTest::addColumn<QList<QPoint>>("blank");
        QTest::newRow("menu: three bars four apart")
            << int(WinButton::Menu) << QList<QPoint> { { -5, -4 }, { 0, -4 }, { 0, 0 }, { 5, 0 }, { -5, 4 } }
            << QList<QPoint> { { 0, -2 }, { 0, 2 }, { -9, 0 }, { 9, 0 }, { 0, 7 } };
        // Where the back window's edges pass behind the front window they are covered.
        QTest::newRow("restore: front window hides the back one")
            << int(WinButton::Restore)
            << QList<QPoint> { { 0, -5 }, { 3, -5 }, { 5, -2 }, { 5, 0 }, { 4, 2 }, { -5, 0 }, { -5, 3 }, { -2, 5 },
                   { -3, -2 }, { 2, 3 } }
            << QList<QPoint> { { -2, 0 }, { -2, 1 }, { 0, 2 }, { 0, 1 }, { -3, 3 }, { 3, -3 }, { -5, -5 }, { 5, 5 } };
        QTest::newRow("close: two diagonals eight wide")
            << int(WinButton::Close) << QList<QPoint> { { 0, 0 }, { -3, -3 }, { 2, 2 }, { 2, -3 }, { -3, 2 } }
            << QList<QPoint> { { 0, -4 }, { 0, 4 }, { -4, 0 }, { 4, 0 }, { -6, -6 }, { 6, 6 } };
    }

    void winButtonGlyphs()
    {
        QFETCH(int, kind);
        QFETCH(QList<QPoint>, inked);
        QFETCH(QList<QPoint>, blank);
        // The program's palette: the title bar and the window colour behind the glyphs are white.
        const QPalette previous = QApplication::palette();
        QPalette white = previous;
        white.setColor(QPalette::Window, Qt::white);
        QApplication::setPalette(white);
        WinButton button(kind);
        const QImage image = paint(button);
        QApplication::setPalette(previous);
        const QPoint centre(button.width() / 2, button.height() / 2);
        for (const bool ink : { true, false }) {
            for (const QPoint& offset : ink ? inked : blank) {
                const QColor c = image.pixelColor(centre + offset);
                QVERIFY2(ink ? c.blue() < 215 : c == QColor(Qt::white),
                    qPrintable(QStringLiteral("(%1, %2) %3").arg(offset.x()).arg(offset.y()).arg(c.name())));
            }
        }
    }
};

QTEST_MAIN(tst_TitleBar)
#include "tst_titlebar.moc"
