#include "cleanup/cleanuprowwidget.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>

namespace {
constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;
} // namespace

class tst_CleanupRowWidget : public QObject {
    Q_OBJECT
private slots:
    void sizeTextColourAndBar_data();
    void sizeTextColourAndBar();
    void pressTogglesAndPaints();
};

void tst_CleanupRowWidget::sizeTextColourAndBar_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("colour"); // of the text; the bar's is the lighter shade
    QTest::addColumn<int>("bar");

    const QString blue = "#2563eb/#3b82f6", amber = "#d97706/#f59e0b", red = "#dc2626/#ef4444";
    QTest::newRow("negative") << qint64(-5000) << "0 KB" << blue << 0;
    QTest::newRow("a few bytes") << qint64(3) << "0 KB" << blue << 0;
    QTest::newRow("just below 1 MiB stays KB") << MiB - 1 << "1024 KB" << blue << 0;
    QTest::newRow("1 MiB") << MiB << "1 MB" << blue << 0;
    QTest::newRow("exactly 200 MiB is blue") << 200 * MiB << "200 MB" << blue << 19;
    QTest::newRow("one byte more is amber") << 200 * MiB + 1 << "200 MB" << amber << 19;
    QTest::newRow("MB without decimals") << qint64(300.4 * MiB) << "300 MB" << amber << 29;
    QTest::newRow("exactly 800 MiB is amber") << 800 * MiB << "800 MB" << amber << 78;
    QTest::newRow("one byte more is red") << 800 * MiB + 1 << "800 MB" << red << 78;
    QTest::newRow("1 GiB has one decimal") << GiB << "1.0 GB" << red << 100;
    QTest::newRow("past 2 GiB the bar stays full") << GiB * 5 / 2 << "2.5 GB" << red << 100;
}

void tst_CleanupRowWidget::sizeTextColourAndBar()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QFETCH(QString, colour);
    QFETCH(int, bar);

    CleanupRowWidget row({ "prefetch", "Prefetch", "⚡", { "C:/Windows/Prefetch" }, 0, true });
    auto* label = row.findChild<QLabel*>(QStringLiteral("CleanupRowSize"));
    auto* progress = row.findChild<QProgressBar*>(QStringLiteral("CleanupRowBar"));
    QVERIFY(label && progress);
    row.setSize(bytes);
    QCOMPARE(label->text(), text);
    QVERIFY2(label->styleSheet().contains("color:" + colour.section('/', 0, 0) + ';'), qPrintable(label->styleSheet()));
    QVERIFY2(progress->styleSheet().contains("::chunk { background:" + colour.section('/', 1) + ';'),
        qPrintable(progress->styleSheet()));
    QCOMPARE(progress->value(), bar);
}

void tst_CleanupRowWidget::pressTogglesAndPaints()
{
    CleanupRowWidget row({ "prefetch", "Prefetch", "⚡", { "C:/Windows/Prefetch" }, 0, false });
    row.resize(600, 64);
    const auto pixel = [&](QPoint at) { return row.grab().toImage().pixelColor(at); };
    const QPoint box(row.width() - 30 + 8, row.height() / 2); // centre of the painted check box
    const QPoint inside(row.width() - 60, 4); // clear of the children, inside the rounded frame
    QCOMPARE(pixel(inside), QColor(Qt::white));
    QCOMPARE(pixel(box), QColor(Qt::white));

    QSignalSpy changed(&row, &CleanupRowWidget::selectionChanged);
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(20, 20)); // anywhere on the row
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), true);
    QVERIFY(row.isSelected());
    QCOMPARE(pixel(inside), QColor(0xef, 0xf6, 0xff));
    QCOMPARE(pixel(box + QPoint(-5, -5)), QColor(0x3b, 0x82, 0xf6));

    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(300, 50));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toBool(), false);
    QVERIFY(!row.isSelected());
}

QTEST_MAIN(tst_CleanupRowWidget)
#include "tst_cleanuprowwidget.moc"
