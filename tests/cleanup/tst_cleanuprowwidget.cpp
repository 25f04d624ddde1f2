#include "cleanup/cleanuprowwidget.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 GiB = 1024 * MiB;

JunkCategory category(bool selected)
{
    return { QStringLiteral("prefetch"), QStringLiteral("Prefetch"), QStringLiteral("⚡"),
        { QStringLiteral("C:/Windows/Prefetch"), QStringLiteral("C:/Other") }, 0, selected };
}

QColor pixel(QWidget& widget, QPoint at)
{
    return widget.grab().toImage().pixelColor(at);
}

} // namespace

class tst_CleanupRowWidget : public QObject {
    Q_OBJECT
private slots:
    void formatSize_data();
    void formatSize();
    void sizeColoursAndBar_data();
    void sizeColoursAndBar();
    void pressTogglesAndPaints();
};

void tst_CleanupRowWidget::formatSize_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << qint64(0) << "0 KB";
    QTest::newRow("negative") << qint64(-5000) << "0 KB";
    QTest::newRow("whole KB below 1 MiB") << qint64(10 * 1024) << "10 KB";
    QTest::newRow("just below 1 MiB stays KB") << MiB - 1 << "1024 KB";
    QTest::newRow("1 MiB") << MiB << "1 MB";
    QTest::newRow("MB without decimals") << qint64(300.4 * MiB) << "300 MB";
    QTest::newRow("1 GiB has one decimal") << GiB << "1.0 GB";
    QTest::newRow("2.5 GiB") << GiB * 5 / 2 << "2.5 GB";
}

void tst_CleanupRowWidget::formatSize()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(CleanupRowWidget::formatSize(bytes), text);
}

void tst_CleanupRowWidget::sizeColoursAndBar_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("textColour");
    QTest::addColumn<QString>("barColour");
    QTest::addColumn<int>("barValue");

    QTest::newRow("empty") << qint64(0) << "#2563eb"
                           << "#3b82f6" << 0;
    QTest::newRow("exactly 200 MiB is blue") << 200 * MiB << "#2563eb"
                                             << "#3b82f6" << 19;
    QTest::newRow("one byte more is amber") << 200 * MiB + 1 << "#d97706"
                                            << "#f59e0b" << 19;
    QTest::newRow("exactly 800 MiB is amber") << 800 * MiB << "#d97706"
                                              << "#f59e0b" << 78;
    QTest::newRow("one byte more is red") << 800 * MiB + 1 << "#dc2626"
                                          << "#ef4444" << 78;
    QTest::newRow("2 GiB fills the bar and no more") << 2 * GiB << "#dc2626"
                                                     << "#ef4444" << 100;
    QTest::newRow("a few bytes show an empty bar") << qint64(3) << "#2563eb"
                                                   << "#3b82f6" << 0;
}

void tst_CleanupRowWidget::sizeColoursAndBar()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, textColour);
    QFETCH(QString, barColour);
    QFETCH(int, barValue);

    CleanupRowWidget row(category(true));
    auto* label = row.findChild<QLabel*>(QStringLiteral("CleanupRowSize"));
    auto* bar = row.findChild<QProgressBar*>(QStringLiteral("CleanupRowBar"));
    QVERIFY(label && bar);
    row.setSize(bytes);
    QCOMPARE(row.size(), bytes);
    QCOMPARE(label->text(), CleanupRowWidget::formatSize(bytes));
    QVERIFY2(
        label->styleSheet().contains(QStringLiteral("color:%1;").arg(textColour)), qPrintable(label->styleSheet()));
    QVERIFY2(bar->styleSheet().contains(QStringLiteral("::chunk { background:%1;").arg(barColour)),
        qPrintable(bar->styleSheet()));
    QCOMPARE(bar->value(), barValue);
}

void tst_CleanupRowWidget::pressTogglesAndPaints()
{
    CleanupRowWidget row(category(false));
    row.resize(600, 64);
    auto* path = row.findChild<QLabel*>(QStringLiteral("CleanupRowPath"));
    QVERIFY(path);
    QCOMPARE(path->text(), QStringLiteral("C:/Windows/Prefetch"));

    const QPoint box(row.width() - 30 + 8, row.height() / 2); // centre of the painted check box
    const QPoint inside(row.width() - 60, 4); // clear of the children, inside the rounded frame
    QCOMPARE(pixel(row, inside), QColor(Qt::white));
    QCOMPARE(pixel(row, box), QColor(Qt::white));

    QSignalSpy changed(&row, &CleanupRowWidget::selectionChanged);
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(20, 20)); // anywhere on the row
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), true);
    QVERIFY(row.isSelected());
    QCOMPARE(pixel(row, inside), QColor(0xef, 0xf6, 0xff));
    QCOMPARE(pixel(row, box + QPoint(-5, -5)), QColor(0x3b, 0x82, 0xf6));

    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(300, 50));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toBool(), false);
    QVERIFY(!row.isSelected());
}

QTEST_MAIN(tst_CleanupRowWidget)
#include "tst_cleanuprowwidget.moc"
