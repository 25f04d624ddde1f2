#include <uninstall/programicon.h>
#include <uninstall/uninstallmanager.h>

#include <platform/platform.h>
#include <platform/sandbox/sandboxplatform.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

class tst_ProgramIcon : public QObject {
    Q_OBJECT
    QTemporaryDir m_dir;
    platform::SandboxPlatform m_platform { m_dir.path().toStdWString() };

private slots:
    void initTestCase()
    {
        platform::setCurrent(&m_platform);
        const QString dir = UninstallManager::localPath("C:\\Program Files\\App, Inc") + "/";
        QVERIFY(QDir().mkpath(dir));
        // app.exe is the smallest executable, so it counts as the main one.
        for (const auto& [file, size] : { std::pair("app.exe", 2), { "unins.exe", 9 } }) {
            QFile f(dir + file);
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write(QByteArray(size, 'x')) == size);
        }
        for (const auto& [file, color, width, height] : { std::tuple("app.exe.png", Qt::red, 32, 32),
                 { "app.exe.3.png", Qt::blue, 32, 32 }, { "unins.exe.png", Qt::magenta, 32, 32 },
                 { "app.ico", Qt::green, 48, 48 }, { "wide.png", Qt::yellow, 64, 32 } }) {
            QImage image(width, height, QImage::Format_ARGB32);
            image.fill(color);
            QVERIFY(image.save(dir + file));
        }
    }
    void cleanupTestCase() { platform::setCurrent(nullptr); }

    void load_data()
    {
        QTest::addColumn<QString>("displayIcon");
        QTest::addColumn<QString>("uninstall");
        QTest::addColumn<QColor>("color"); // invalid: no image
        QTest::addColumn<QSize>("size");
        // A comma in the folder name leaves only the last comma to mark an index.
        const QString dir = "C:\\Program Files\\App, Inc\\";
        auto row = [](const char* what, const QString& icon, const QString& uninstall, QColor color,
                       QSize size = QSize(56, 56)) {
            QTest::newRow(what) << icon << uninstall << color << (color.isValid() ? size : QSize(0, 0));
        };
        row("quoted executable, shell icon", "\"" + dir + "app.exe\",0", "", Qt::red);
        row("negative index made positive", dir + "app.exe,-3", "", Qt::blue);
        row("index without positive partner", dir + "app.exe,-2147483648", "", QColor());
        row("icon file through a variable", "%ProgramFiles%\\App, Inc\\app.ico", "", Qt::green);
        row("wide image keeps its aspect", dir + "wide.png", "", Qt::yellow, QSize(56, 28));
        row("then the uninstaller", dir + "gone.ico", "\"" + dir + "unins.exe\" /S", Qt::magenta);
        row("then the main executable", "", "MsiExec.exe /X{G}", Qt::red);
        row("expansion too long", "%ProgramFiles%\\" + QString(1100, 'x') + "\\a.ico", "", QColor());
        row("outside the sandbox", "/etc/hostname", "", QColor());
    }
    void load()
    {
        InstalledApp app;
        QFETCH(QString, displayIcon);
        QFETCH(QString, uninstall);
        // Only the rows that fall back past the display icon name the install folder.
        const QString location = uninstall.isEmpty() ? "" : "C:\\Program Files\\App, Inc";
        std::tie(app.displayIcon, app.uninstallString, app.installLocation)
            = std::tie(displayIcon, uninstall, location);
        const QImage image = ProgramIcon::loadAsync(app).result();
        QTEST(image.size(), "size");
        if (!image.isNull())
            QTEST(image.pixelColor(image.width() / 2, image.height() / 2), "color");
    }
};

QTEST_GUILESS_MAIN(tst_ProgramIcon)
#include "tst_programicon.moc"
