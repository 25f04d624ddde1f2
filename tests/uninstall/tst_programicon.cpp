#include "uninstall/programicon.h"

#include "platform/forwardingplatform.h"
#include "platform/iconextractor.h"
#include "support/currentmachine.h"

#include <QDir>
#include <QImage>
#include <QTest>

namespace {

// A sandbox machine whose icon extraction writes down every file it is asked to read.
class RecordingIcons final : public platform::IconExtractor {
public:
    explicit RecordingIcons(platform::IconExtractor& inner)
        : m_inner(inner)
    {
    }
    platform::IconResult extract(const std::wstring& path, int index) override
    {
        paths << QString::fromStdWString(path);
        return m_inner.extract(path, index);
    }
    QStringList paths;

private:
    platform::IconExtractor& m_inner;
};

class IconPlatform final : public platform::ForwardingPlatform {
public:
    IconPlatform()
        : ForwardingPlatform(machine.platform())
        , icons_(machine.platform().icons())
    {
        platform::setCurrent(this);
    }
    ~IconPlatform() override { platform::setCurrent(nullptr); }

    platform::IconExtractor& icons() override { return icons_; }

    CurrentMachine machine;
    RecordingIcons icons_;
};

} // namespace

class tst_ProgramIcon : public QObject {
    Q_OBJECT

private slots:
    void parseLocation_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("index");
        const auto row = [](const char* what, const char* text, const char* path, int index) {
            QTest::newRow(what) << QString(text) << QString(path) << index;
        };
        row("plain path", "C:\\App\\app.exe", "C:\\App\\app.exe", 0);
        row("index after the last comma", " \"C:\\A,B\\app.exe\" , 3 ", "C:\\A,B\\app.exe", 3);
        row("negative index taken as positive", "C:\\app.dll,-101", "C:\\app.dll", 101);
        row("text after the comma is part of the path", "C:\\a,b.ico", "C:\\a,b.ico", 0);
        row("comma first is no separator", ",2", ",2", 0);
        row("empty", "", "", 0);
    }

    void parseLocation()
    {
        QFETCH(QString, text);
        const ProgramIcon::Location loc = ProgramIcon::parseLocation(text);
        QTEST(loc.path, "path");
        QTEST(loc.index, "index");
    }

    // An icon, uninstaller or install folder on a share is never read: the list would contact
    // another machine. On this system "//tmp/x" is "/tmp/x", so a lookup that did not refuse the
    // share would find the real files and ask for their icons.
    void networkPathsAreNotRead_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("value"); // "<app>" stands for the program's folder as a share
        QTest::addColumn<bool>("found");
        const auto row = [](const char* what, const char* field, const char* value, bool found) {
            QTest::newRow(what) << QString(field) << QString(value) << found;
        };
        row("local icon: the control", "displayIcon", "C:\\App\\app.png,0", true);
        row("icon on a share", "displayIcon", "\"<app>\\app.png\",0", false);
        row("uninstaller on a share", "uninstallString", "\"<app>\\unins000.exe\" /S", false);
        row("install folder on a share", "installLocation", "<app>", false);
    }

    void networkPathsAreNotRead()
    {
        NORVALE_SANDBOX_ONLY("a share path there is a folder of the sandbox");
        QFETCH(QString, field);
        QFETCH(QString, value);
        QFETCH(bool, found);
        IconPlatform machine;
        const QString folder = machine.machine.map("C:/App");
        QVERIFY(QDir().mkpath(folder));
        QImage image(8, 8, QImage::Format_ARGB32);
        image.fill(Qt::red);
        for (const char* name : { "app.png", "unins000.exe.0.png", "unins000.exe", "main.exe.0.png", "main.exe" })
            QVERIFY(image.save(folder + '/' + name, "PNG"));
        // Backslashes as an entry writes them; a listing on this system needs forward slashes.
        const QString share
            = field == "installLocation" ? '/' + folder : QDir::toNativeSeparators('/' + folder).replace('/', '\\');
        value.replace("<app>", share);

        InstalledApp app;
        (field == "displayIcon"              ? app.displayIcon
                : field == "uninstallString" ? app.uninstallString
                                             : app.installLocation)
            = value;
        QCOMPARE(!ProgramIcon::forApp(app).isNull(), found);
        QCOMPARE(machine.icons_.paths.isEmpty(), !found);
    }

    void missingFileGivesNoImage()
    {
        QVERIFY(ProgramIcon::fromLocation(QStringLiteral("C:/Nowhere/none.exe,0")).isNull());
        QVERIFY(ProgramIcon::fromLocation(QString()).isNull());
    }
};

QTEST_MAIN(tst_ProgramIcon)
#include "tst_programicon.moc"
