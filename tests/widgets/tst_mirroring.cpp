#include "cleanup/cleanuprowwidget.h"
#include "uninstall/uninstallrowwidget.h"
#include "winapps/winapprow.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <tuple>

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
    const auto selected = [](auto* row) {
        row->setSelected(true);
        return std::unique_ptr<QWidget>(row);
    };
    if (kind == QLatin1String("cleanup"))
        return selected(
            new CleanupRowWidget({ "win_temp", "Windows Temporary Files", "🗂️", { "C:/Windows/Temp" }, 0, true }));
    if (kind == QLatin1String("winapps")) {
        WinApp app;
        std::tie(app.displayName, app.publisher, app.version)
            = std::tuple("Camera", "Microsoft Corporation", "2023.2312.3.0");
        return selected(new WinAppRow(app));
    }
    InstalledApp app;
    std::tie(app.name, app.publisher) = std::tuple("GIMP 2.10.36", "The GIMP Team");
    return selected(new UninstallRowWidget(app));
}

} // namespace

class tst_Mirroring : public QObject {
    Q_OBJECT

private slots:
    void tickSitsBesideTheRow_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("onTheRight");
        // The cleanup row puts its tick at the end edge, the others at the start edge.
        for (const char* kind : { "cleanup", "winapps", "uninstall" }) {
            const bool atEnd = kind == QLatin1String("cleanup");
            QTest::addRow("%s, left to right", kind) << kind << Qt::LeftToRight << atEnd;
            QTest::addRow("%s, right to left", kind) << kind << Qt::RightToLeft << !atEnd;
        }
    }

    // The tick must land in the room the row's layout leaves for it, on the side the direction asks
    // for, and overlap none of the row's own widgets. The direction changes after construction, as it
    // does at start-up when the catalogue's direction arrives with the first events.
    void tickSitsBesideTheRow()
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
                qPrintable(
                    QStringLiteral("tick %1..%2 under %3").arg(first).arg(last).arg(child->metaObject()->className())));
        }
    }

    void removeButtonFollowsThePainting_data()
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

    void removeButtonFollowsThePainting()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, clickX);
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
        QTEST(spy.count() == 1, "requested");
    }
};

QTEST_MAIN(tst_Mirroring)
#include "tst_mirroring.moc"
