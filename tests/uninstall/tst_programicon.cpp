#include <uninstall/programicon.h>
#include <uninstall/uninstallmanager.h>

#include <platform/platform.h>
#include <platform/sandbox/sandboxplatform.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_ProgramIcon : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void parseLocation_data();
    void parseLocation();
    void uninstallerPath_data();
    void uninstallerPath();
    void fromLocation_data();
    void fromLocation();
    void sourceOrder_data();
    void sourceOrder();

private:
    // Puts an image file at a Windows path of the sandbox.
    void putImage(const QString& windowsPath, QColor color, QSize size = QSize(32, 32), const char* format = "PNG");
    void putFile(const QString& windowsPath);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<platform::SandboxPlatform> m_platform;
};

void tst_ProgramIcon::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_platform = std::make_unique<platform::SandboxPlatform>(m_dir->path().toStdWString());
    platform::setCurrent(m_platform.get());
}

void tst_ProgramIcon::cleanup()
{
    platform::setCurrent(nullptr);
    m_platform.reset();
    m_dir.reset();
}

void tst_ProgramIcon::putImage(const QString& windowsPath, QColor color, QSize size, const char* format)
{
    const QString path = UninstallManager::localPath(windowsPath);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY(image.save(path, format));
}

void tst_ProgramIcon::putFile(const QString& windowsPath)
{
    const QString path = UninstallManager::localPath(windowsPath);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("MZ");
}

void tst_ProgramIcon::parseLocation_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("index");
    QTest::newRow("negative index made positive") << "C:\\App\\app.exe,-101"
                                                  << "C:\\App\\app.exe" << 101;
    QTest::newRow("quoted with index") << "\"C:\\Program Files\\App\\app.exe\",0"
                                       << "C:\\Program Files\\App\\app.exe" << 0;
    QTest::newRow("no index") << "C:\\App\\app.exe"
                              << "C:\\App\\app.exe" << 0;
    QTest::newRow("blanks around the index") << "  C:\\App\\app.dll , 3 "
                                             << "C:\\App\\app.dll" << 3;
    QTest::newRow("comma in a folder name") << "C:\\Vendor, Inc\\app.exe"
                                            << "C:\\Vendor, Inc\\app.exe" << 0;
    QTest::newRow("last comma counts") << "C:\\Vendor, Inc\\app.exe,2"
                                       << "C:\\Vendor, Inc\\app.exe" << 2;
    QTest::newRow("comma first") << ",5"
                                 << ",5" << 0;
    QTest::newRow("index without positive partner") << "a.exe,-2147483648"
                                                    << "a.exe,-2147483648" << 0;
    QTest::newRow("quotes everywhere removed") << "\"C:\\A\\\"b.exe\""
                                               << "C:\\A\\b.exe" << 0;
}

void tst_ProgramIcon::parseLocation()
{
    QFETCH(QString, text);
    const ProgramIcon::Location loc = ProgramIcon::parseLocation(text);
    QTEST(loc.path, "path");
    QTEST(loc.index, "index");
}

void tst_ProgramIcon::uninstallerPath_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("path");
    QTest::newRow("quoted with switch") << "\"C:\\Program Files\\App\\unins000.exe\" /SILENT"
                                        << "C:\\Program Files\\App\\unins000.exe";
    QTest::newRow("upper case") << "C:\\APP\\UNINST.EXE /S"
                                << "C:\\APP\\UNINST.EXE";
    QTest::newRow("msiexec") << "MsiExec.exe /X{GUID}"
                             << "MsiExec.exe";
    QTest::newRow("no .exe") << "rundll32 shell32,Control_RunDLL"
                             << "";
    QTest::newRow(".exe first") << ".exe"
                                << "";
}

void tst_ProgramIcon::uninstallerPath()
{
    QFETCH(QString, command);
    QTEST(ProgramIcon::uninstallerPath(command), "path");
}

void tst_ProgramIcon::fromLocation_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QSize>("size"); // empty: a null image
    QTest::addColumn<QColor>("color");
    QTest::newRow("executable, shell icon")
        << "\"C:\\Program Files\\App\\app.exe\",0" << QSize(56, 56) << QColor(Qt::red);
    QTest::newRow("executable, icon at index")
        << "C:\\Program Files\\App\\app.exe,-3" << QSize(56, 56) << QColor(Qt::blue);
    QTest::newRow("icon file through a variable")
        << "%ProgramFiles%\\App\\app.ico" << QSize(56, 56) << QColor(Qt::green);
    QTest::newRow("wide image keeps its aspect")
        << "C:\\Program Files\\App\\wide.png" << QSize(56, 28) << QColor(Qt::yellow);
    QTest::newRow("missing file") << "C:\\Program Files\\App\\missing.exe" << QSize() << QColor();
    QTest::newRow("file without icon") << "C:\\Program Files\\App\\plain.exe" << QSize() << QColor();
    QTest::newRow("not an image") << "C:\\Program Files\\App\\broken.png" << QSize() << QColor();
    QTest::newRow("expansion too long") << "%ProgramFiles%\\" + QString(1100, 'x') + "\\a.ico" << QSize() << QColor();
    QTest::newRow("outside the sandbox") << "/etc/hostname" << QSize() << QColor();
}

void tst_ProgramIcon::fromLocation()
{
    QFETCH(QString, location);
    QFETCH(QSize, size);
    QFETCH(QColor, color);
    putFile("C:\\Program Files\\App\\app.exe");
    putFile("C:\\Program Files\\App\\plain.exe");
    putImage("C:\\Program Files\\App\\app.exe.png", Qt::red);
    putImage("C:\\Program Files\\App\\app.exe.3.png", Qt::blue);
    putImage("C:\\Program Files\\App\\app.ico", Qt::green, QSize(48, 48), "ICO");
    putImage("C:\\Program Files\\App\\wide.png", Qt::yellow, QSize(64, 32));
    QFile broken(UninstallManager::localPath("C:\\Program Files\\App\\broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("\x89PNG but not really");
    broken.close();

    const QImage image = ProgramIcon::fromLocation(location);
    if (size.isEmpty()) {
        QVERIFY(image.isNull());
        return;
    }
    QCOMPARE(image.size(), size);
    QCOMPARE(image.pixelColor(size.width() / 2, size.height() / 2).rgb(), color.rgb());
}

void tst_ProgramIcon::sourceOrder_data()
{
    QTest::addColumn<QString>("displayIcon");
    QTest::addColumn<QString>("uninstall");
    QTest::addColumn<QColor>("color"); // invalid: a null image
    QTest::newRow("display icon first") << "C:\\P\\A\\app.ico"
                                        << "\"C:\\P\\A\\unins.exe\" /S" << QColor(Qt::green);
    QTest::newRow("then the uninstaller") << "C:\\P\\A\\gone.ico"
                                          << "\"C:\\P\\A\\unins.exe\" /S" << QColor(Qt::red);
    QTest::newRow("then the main executable") << ""
                                              << "MsiExec.exe /X{G}" << QColor(Qt::blue);
}

void tst_ProgramIcon::sourceOrder()
{
    QFETCH(QString, displayIcon);
    QFETCH(QString, uninstall);
    QFETCH(QColor, color);
    putImage("C:\\P\\A\\app.ico", Qt::green, QSize(32, 32), "ICO");
    putFile("C:\\P\\A\\unins.exe");
    putImage("C:\\P\\A\\unins.exe.png", Qt::red);
    putFile("C:\\P\\A\\a.exe");
    putImage("C:\\P\\A\\a.exe.png", Qt::blue);

    InstalledApp app;
    app.displayIcon = displayIcon;
    app.uninstallString = uninstall;
    app.installLocation = "C:\\P\\A";
    // The smallest executable is the main one: a.exe (2 bytes) ties unins.exe, so drop the tie.
    QFile::resize(UninstallManager::localPath("C:\\P\\A\\unins.exe"), 100);
    QFuture<QImage> future = ProgramIcon::loadAsync(app);
    const QImage image = future.result();
    QCOMPARE(image.size(), QSize(56, 56));
    QCOMPARE(image.pixelColor(28, 28).rgb(), color.rgb());
}

QTEST_GUILESS_MAIN(tst_ProgramIcon)
#include "tst_programicon.moc"
