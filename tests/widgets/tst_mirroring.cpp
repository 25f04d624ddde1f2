#include "cleanup/cleanuprowwidget.h"
#include "uninstall/uninstallrowwidget.h"
#include "winapps/winapprow.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

namespace {

// The painted tick of a selected row is the only saturated blue the rows paint in their
// margin; its horizontal extent tells where the row put it.
QPair<int, int> tickColumns(QWidget* row)
{
    const QImage image = row->grab().toImage();
    int first = -1;
    int last = -1;
    const int y = row->height() / 2 - 5;
    for (int x = 0; x < image.width(); ++x) {
        const QColor c = image.pixelColor(x, y);
        if (c.blue() > 200 && c.red() < 90 && c.green() < 160) {
            if (first < 0)
                first = x;
            last = x;
        }
    }
    return { first, last };
}

std::unique_ptr<QWidget> makeRow(const QString& kind)
{
    if (kind == QLatin1String("cleanup")) {
        JunkCategory category;
        category.name = QStringLiteral("Windows Temporary Files");
        category.icon = QStringLiteral("🗂️");
        category.paths = QStringList { QStringLiteral("C:/Windows/Temp") };
        category.selected = true;
        auto row = std::make_unique<CleanupRowWidget>(category);
        row->setSelected(true);
        return row;
    }
    if (kind == QLatin1String("winapps")) {
        WinApp app;
        app.displayName = QStringLiteral("Camera");
        app.publisher = QStringLiteral("Microsoft Corporation");
        app.version = QStringLiteral("2023.2312.3.0");
        auto row = std::make_unique<WinAppRow>(app);
        row->setSelected(true);
        return row;
    }
    InstalledApp app;
    app.name = QStringLiteral("GIMP 2.10.36");
    app.publisher = QStringLiteral("The GIMP Team");
    auto row = std::make_unique<UninstallRowWidget>(app);
    row->setSelected(true);
    return row;
}

} // namespace

class tst_Mirroring : public QObject {
    Q_OBJECT

private slots:
    void tickSitsBesideTheRow_data();
    void tickSitsBesideTheRow();
    void removeButtonFollowsThePainting_data();
    void removeButtonFollowsThePainting();
};

void tst_Mirroring::tickSitsBesideTheRow_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("onTheRight");

    QTest::newRow("cleanup, left to right") << "cleanup" << Qt::LeftToRight << true;
    QTest::newRow("cleanup, right to left") << "cleanup" << Qt::RightToLeft << false;
    QTest::newRow("windows apps, left to right") << "winapps" << Qt::LeftToRight << false;
    QTest::newRow("windows apps, right to left") << "winapps" << Qt::RightToLeft << true;
    QTest::newRow("programs, left to right") << "uninstall" << Qt::LeftToRight << false;
    QTest::newRow("programs, right to left") << "uninstall" << Qt::RightToLeft << true;
}

// The tick must land in the room the row's layout leaves for it, on the side the direction asks
// for, and overlap none of the row's own widgets. The direction changes after construction, as it
// does at start-up when the catalogue's direction arrives with the first events.
void tst_Mirroring::tickSitsBesideTheRow()
{
    QFETCH(QString, kind);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, onTheRight);

    auto row = makeRow(kind);
    row->resize(700, row->sizeHint().height() > 0 ? row->sizeHint().height() : 52);
    row->setLayoutDirection(direction);
    row->show();
    QVERIFY(QTest::qWaitForWindowExposed(row.get()));

    const auto [first, last] = tickColumns(row.get());
    QVERIFY2(first >= 0, "no tick painted");
    if (onTheRight)
        QVERIFY2(first > row->width() / 2, qPrintable(QString::number(first)));
    else
        QVERIFY2(last < row->width() / 2, qPrintable(QString::number(last)));

    for (QWidget* child : row->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!child->isVisible())
            continue;
        const QRect g = child->geometry();
        QVERIFY2(last < g.left() || first > g.right(),
            qPrintable(QStringLiteral("tick %1..%2 under %3 at %4..%5")
                           .arg(first)
                           .arg(last)
                           .arg(QLatin1String(child->metaObject()->className()))
                           .arg(g.left())
                           .arg(g.right())));
    }
}

void tst_Mirroring::removeButtonFollowsThePainting_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("clickX"); // from the row's start edge
    QTest::addColumn<bool>("requested");

    // The button is painted at the row's end edge.
    QTest::newRow("left to right, on the button") << Qt::LeftToRight << 660 << true;
    QTest::newRow("left to right, far side") << Qt::LeftToRight << 40 << false;
    QTest::newRow("right to left, on the button") << Qt::RightToLeft << 660 << true;
    QTest::newRow("right to left, far side") << Qt::RightToLeft << 40 << false;
}

void tst_Mirroring::removeButtonFollowsThePainting()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, clickX);
    QFETCH(bool, requested);

    InstalledApp app;
    app.name = QStringLiteral("GIMP 2.10.36");
    UninstallRowWidget row(app);
    row.resize(700, UninstallRowWidget::RowHeight);
    row.setLayoutDirection(direction);
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));

    QSignalSpy spy(&row, &UninstallRowWidget::uninstallRequested);
    const int x = direction == Qt::RightToLeft ? row.width() - 1 - clickX : clickX;
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(x, row.height() / 2));
    QCOMPARE(spy.count() == 1, requested);
}

QTEST_MAIN(tst_Mirroring)
#include "tst_mirroring.moc"
