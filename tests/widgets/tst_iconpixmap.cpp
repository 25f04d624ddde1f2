#include "widgets/iconpixmap.h"
#include "widgets/iconsizes.h"

#include <QDir>
#include <QImage>
#include <QTest>

namespace {

const QString NavIcon = QStringLiteral(":/icons/icons/home.svg");
const QString Logo = QStringLiteral(":/icons/icons/windows-logo.svg");

// The share of the picture that is not fully transparent, in percent.
int coverage(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int covered = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            covered += qAlpha(image.pixel(x, y)) > 0;
    return image.isNull() ? 0 : covered * 100 / (image.width() * image.height());
}

} // namespace

// Runs in every build: with Qt Svg the icons are drawn on request, in the Windows build they are
// pictures drawn at build time, and the two must come out alike to the code that asks.
class tst_IconPixmap : public QObject {
    Q_OBJECT

private slots:
    void sizeAndRatio_data()
    {
        QTest::addColumn<QString>("resource");
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        QTest::newRow("navigation at 100 %") << NavIcon << iconsizes::Navigation << 1.0;
        QTest::newRow("navigation at 125 %: 22.5 rounds to 23") << NavIcon << iconsizes::Navigation << 1.25;
        QTest::newRow("navigation at 200 %") << NavIcon << iconsizes::Navigation << 2.0;
        QTest::newRow("logo at 150 %") << Logo << iconsizes::WindowsLogo << 1.5;
        QTest::newRow("unlisted scale, from a larger picture") << NavIcon << iconsizes::Navigation << 1.1;
        QTest::newRow("unlisted side") << Logo << 24 << 1.0;
        QTest::newRow("beyond the largest picture") << Logo << iconsizes::WindowsLogo << 4.0;
    }
    void sizeAndRatio()
    {
        QFETCH(QString, resource);
        QFETCH(int, side);
        QFETCH(qreal, ratio);
        const QPixmap pixmap = iconPixmap(resource, side, ratio);
        const int pixels = qRound(side * ratio);
        QCOMPARE(pixmap.size(), QSize(pixels, pixels));
        QCOMPARE(pixmap.devicePixelRatio(), ratio);
        QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(pixels / ratio, pixels / ratio));
        // Drawn, and drawn to the edges rather than into a corner of a larger canvas.
        QVERIFY2(coverage(pixmap) >= 15, qPrintable(QString::number(coverage(pixmap))));
        const QImage image = pixmap.toImage();
        int lastCovered = 0;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (qAlpha(image.pixel(x, y)) > 0)
                    lastCovered = x;
        QVERIFY(lastCovered >= pixels * 3 / 4);
    }

    // Every icon at every side and scale the interface lists, so a picture the Windows build
    // failed to draw shows here rather than as a blank button.
    void everyListedSizeOfEveryIcon()
    {
        const QStringList icons = QDir(QStringLiteral(":/icons/icons")).entryList({ QStringLiteral("*.svg") });
        QVERIFY(icons.contains(QStringLiteral("home.svg")));
        for (const QString& icon : icons) {
            for (const int side : iconsizes::Sides) {
                for (const double scale : iconsizes::Scales) {
                    const QPixmap pixmap = iconPixmap(":/icons/icons/" + icon, side, scale);
                    QVERIFY2(pixmap.width() == qRound(side * scale) && coverage(pixmap) > 0,
                        qPrintable(QStringLiteral("%1 at %2 x %3").arg(icon).arg(side).arg(scale)));
                }
            }
        }
    }

    void nothingToDraw_data()
    {
        QTest::addColumn<QString>("resource");
        QTest::addColumn<int>("side");
        QTest::newRow("no such icon") << ":/icons/icons/none.svg" << 18;
        QTest::newRow("not a resource") << "home.svg" << 18;
        QTest::newRow("empty name") << QString() << 18;
        QTest::newRow("no side") << NavIcon << 0;
        QTest::newRow("negative side") << NavIcon << -18;
    }
    void nothingToDraw()
    {
        QFETCH(QString, resource);
        QFETCH(int, side);
        QVERIFY(iconPixmap(resource, side, 1.0).isNull());
    }
};

QTEST_MAIN(tst_IconPixmap)
#include "tst_iconpixmap.moc"
