#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTest>
#include <QWidget>

namespace {

QStringList g_styleWarnings;
QtMessageHandler g_previousHandler = nullptr;

void collectStyleWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg && message.contains(QLatin1String("Could not parse")))
        g_styleWarnings.append(message);
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

QString readStyleSheet()
{
    QFile file(":/styles/main.qss");
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

template <typename W> W* makePolished(QWidget* parent, const QString& objectName)
{
    auto* widget = new W(parent);
    widget->setObjectName(objectName);
    widget->ensurePolished();
    return widget;
}

// Share of pixels that are not fully transparent.
double coverage(const QImage& image)
{
    qint64 covered = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                ++covered;
        }
    }
    return double(covered) / (image.width() * image.height());
}

} // namespace

class tst_Resources final : public QObject {
    Q_OBJECT

private slots:
    void styleSheetParses();
    void styleSheetValues_data();
    void styleSheetValues();
    void navButtonKeepsItsHeight();

    void iconsRender_data();
    void iconsRender();
    void logoCarriesEverySize();
};

void tst_Resources::styleSheetParses()
{
    const QString sheet = readStyleSheet();
    QVERIFY(!sheet.isEmpty());

    g_styleWarnings.clear();
    g_previousHandler = qInstallMessageHandler(collectStyleWarnings);
    qApp->setStyleSheet(sheet);
    QWidget window;
    for (const char* name : { "NavButton", "ChipButton", "BtnPrimary", "BtnGreen", "BtnGhost" })
        makePolished<QPushButton>(&window, QLatin1String(name));
    makePolished<QLineEdit>(&window, "SearchBox");
    makePolished<QComboBox>(&window, QString());
    makePolished<QScrollBar>(&window, QString());
    makePolished<QLabel>(&window, "PageTitleLabel");
    window.ensurePolished();
    qInstallMessageHandler(g_previousHandler);

    QVERIFY2(g_styleWarnings.isEmpty(), qPrintable(g_styleWarnings.join('\n')));
}

void tst_Resources::styleSheetValues_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("weight");
    QTest::addColumn<QString>("textColour"); // #aarrggbb

    QTest::newRow("page title") << "QLabel"
                                << "PageTitleLabel" << 20 << 700 << "#0f172a";
    QTest::newRow("page subtitle") << "QLabel"
                                   << "PageSubLabel" << 12 << 400 << "#64748b";
    QTest::newRow("bottom bar statistics") << "QLabel"
                                           << "BarStatLabel" << 13 << 400 << "#475569";
    QTest::newRow("group caption") << "QLabel"
                                   << "GroupHeader" << 13 << 700 << "#1d4ed8";
    QTest::newRow("cleanup row name") << "QLabel"
                                      << "CleanName" << 13 << 600 << "#0f172a";
    QTest::newRow("safe badge") << "QLabel"
                                << "BadgeSafe" << 10 << 700 << "#166534";
    QTest::newRow("brand name") << "QLabel"
                                << "BrandNameLabel" << 15 << 700 << "#ffffff";
    QTest::newRow("brand version, translucent") << "QLabel"
                                                << "BrandVerLabel" << 11 << 400 << "#7fffffff";
    QTest::newRow("sidebar caption, translucent") << "QLabel"
                                                  << "NavSectionLabel" << 10 << 700 << "#66ffffff";
    QTest::newRow("sidebar entry, translucent") << "QPushButton"
                                                << "NavButton" << 13 << 500 << "#a6ffffff";
    QTest::newRow("primary button") << "QPushButton"
                                    << "BtnPrimary" << 13 << 600 << "#ffffff";
    QTest::newRow("ghost button") << "QPushButton"
                                  << "BtnGhost" << 12 << 500 << "#475569";
    QTest::newRow("chip button") << "QPushButton"
                                 << "ChipButton" << 12 << 400 << "#475569";
}

void tst_Resources::styleSheetValues()
{
    QFETCH(QString, className);
    QFETCH(QString, objectName);
    QFETCH(int, pixelSize);
    QFETCH(int, weight);
    QFETCH(QString, textColour);

    qApp->setStyleSheet(readStyleSheet());
    QWidget window;
    QWidget* widget = className == QLatin1String("QLabel") ? static_cast<QWidget*>(new QLabel("x", &window))
                                                           : new QPushButton("x", &window);
    widget->setObjectName(objectName);
    window.show();
    widget->ensurePolished();

    QCOMPARE(widget->font().pixelSize(), pixelSize);
    QCOMPARE(widget->font().weight(), QFont::Weight(weight));
    const QPalette::ColorRole role = className == QLatin1String("QLabel") ? QPalette::WindowText : QPalette::ButtonText;
    QCOMPARE(widget->palette().color(role).rgba(), QColor(textColour).rgba());
}

void tst_Resources::navButtonKeepsItsHeight()
{
    qApp->setStyleSheet(readStyleSheet());
    QWidget window;
    auto* plain = new QPushButton("x", &window);
    auto* nav = new QPushButton("x", &window);
    nav->setObjectName("NavButton");
    window.show();

    QVERIFY(nav->sizeHint().height() >= 36);
    QVERIFY(plain->sizeHint().height() < 36);
    QCOMPARE(nav->font().pixelSize(), 13);

    // The active look is a dynamic-property rule; repolishing must pick the white text up.
    nav->setProperty("active", true);
    nav->style()->unpolish(nav);
    nav->style()->polish(nav);
    QCOMPARE(nav->palette().color(QPalette::ButtonText).name(), QStringLiteral("#ffffff"));
}

void tst_Resources::iconsRender_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("colour");

    const QColor white(Qt::white);
    const QColor slate(0x47, 0x55, 0x69);
    for (const char* name : { "home", "cleanup", "uninstall", "winapps", "extensions", "windows-logo" })
        QTest::newRow(name) << QString::fromLatin1(name) << white;
    for (const char* name :
        { "app", "check", "close", "install", "maximize", "minimize", "search", "startup", "sysinfo", "tweaks" })
        QTest::newRow(name) << QString::fromLatin1(name) << slate;
}

void tst_Resources::iconsRender()
{
    QFETCH(QString, name);
    QFETCH(QColor, colour);

    const QString path = QStringLiteral(":/icons/icons/%1.svg").arg(name);
    QSvgRenderer renderer(path);
    QVERIFY2(renderer.isValid(), qPrintable(path));
    QCOMPARE(renderer.viewBoxF(), QRectF(0, 0, 24, 24));

    QImage image(48, 48, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(0, 0, 48, 48));
    }

    // A line icon draws something, but is not a filled square.
    const double covered = coverage(image);
    QVERIFY2(covered > 0.04 && covered < 0.75, qPrintable(QString::number(covered)));

    // Its strongest pixel carries the colour meant for its background.
    QRgb strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > qAlpha(strongest))
                strongest = image.pixel(x, y);
        }
    }
    const QColor found = QColor::fromRgba(strongest);
    QVERIFY2(qAbs(found.red() - colour.red()) <= 2 && qAbs(found.green() - colour.green()) <= 2
            && qAbs(found.blue() - colour.blue()) <= 2,
        qPrintable(found.name()));
}

void tst_Resources::logoCarriesEverySize()
{
    QImageReader reader(":/icons/icons/logo.ico");
    QVERIFY2(reader.canRead(), qPrintable(reader.errorString()));

    QList<int> sizes;
    for (int i = 0; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image = reader.read();
        QVERIFY(!image.isNull());
        QCOMPARE(image.width(), image.height());
        QVERIFY(image.hasAlphaChannel());
        // Rounded corners: the corner pixel is clear, the centre is opaque.
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(image.width() / 2, image.height() / 2)), 255);
        sizes.append(image.width());
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, (QList<int> { 16, 24, 32, 48, 64, 128, 256 }));

    const QPixmap pixmap(":/icons/icons/logo.ico");
    QVERIFY(!pixmap.isNull());
}

QTEST_MAIN(tst_Resources)

#include "tst_resources.moc"
