#include <uninstall/uninstallmanager.h>

#include <platform/forwardingplatform.h>
#include <platform/launcher.h>
#include <platform/uninstallentries.h>
#include <support/currentmachine.h>

#include "../platform/win/uninstall_sample.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using platform::Hive;

namespace {

const QDate Today(2025, 3, 1);

// A UserAssist record of the given length with the FILETIME of a UTC noon at offset 16.
std::vector<std::uint8_t> userAssistData(std::size_t bytes, const QDate& day)
{
    std::vector<std::uint8_t> data(bytes, 0);
    const qint64 secs = day.isValid() ? QDateTime(day, QTime(12, 0), Qt::UTC).toSecsSinceEpoch() + 11644473600LL : 0;
    for (std::size_t i = 0; i < 8 && 16 + i < bytes; ++i)
        data[16 + i] = std::uint8_t((quint64(secs) * 10000000ULL) >> (8 * i));
    return data;
}

void put(const QString& windowsPath, const QByteArray& content)
{
    QVERIFY(testfiles::write(UninstallManager::localPath(windowsPath), content));
}

// The sandbox machine, with every start through the shell written down. Windows Installer is
// played as the real one behaves: "/X" of a product runs its removal, while an "/I" of an installed
// product is a maintenance pass that changes nothing and exits 0.
class RecordingPlatform final : public platform::ForwardingPlatform, public platform::Launcher {
public:
    explicit RecordingPlatform(platform::Platform& inner)
        : ForwardingPlatform(inner)
        , m_inner(inner)
    {
    }

    QList<platform::ShellExecuteRequest> requests;

    platform::ShellExecuteResult shellExecuteAndWait(
        const platform::ShellExecuteRequest& request, std::uint32_t timeoutMs) override
    {
        requests << request;
        const QString params = QString::fromStdWString(request.parameters);
        if (QString::fromStdWString(request.file).compare("msiexec.exe", Qt::CaseInsensitive) == 0
            && !params.contains(QRegularExpression("(^| )/x", QRegularExpression::CaseInsensitiveOption)))
            return { true, 0, platform::WaitObject0, 0, {} }; // started, no error, ended, exit code 0
        return m_inner.launcher().shellExecuteAndWait(request, timeoutMs);
    }

    platform::Launcher& launcher() override { return *this; }

private:
    platform::Platform& m_inner;
};

} // namespace

class tst_UninstallManager : public QObject {
    Q_OBJECT
    std::unique_ptr<CurrentMachine> m_machine;
    std::unique_ptr<RecordingPlatform> m_recording;
    platform::Registry& reg() { return m_machine->platform().registry(); }

private slots:
    void init()
    {
        platform::setCurrent(nullptr);
        m_recording.reset();
        m_machine.reset();
        m_machine = std::make_unique<CurrentMachine>();
        m_recording = std::make_unique<RecordingPlatform>(m_machine->platform());
        platform::setCurrent(m_recording.get());
        const QString history = UninstallManager::historyFilePath();
        for (const QString& path : { history, history + ".bak" }) {
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
            QFile::remove(path);
            QDir().rmdir(path);
        }
    }

    void skipRules_data()
    {
        QTest::addColumn<QString>("valueName");
        QTest::addColumn<QVariant>("value"); // a text or a DWORD
        QTest::addColumn<bool>("listed");
        auto row = [](const char* what, const char* valueName, const QVariant& value, bool listed) {
            QTest::newRow(what) << QString(valueName) << value << listed;
        };
        row("KB number", "DisplayName", "KB5034441", false);
        row("security update", "DisplayName", "Security Update for Windows (KB5034441)", false);
        row("Python core interpreter", "DisplayName", "Python 3.12.1 Core Interpreter (64-bit)", false);
        row("Python launcher stays", "DisplayName", "Python Launcher", true);
        row("system package, other case", "DisplayName", "microsoft.vclibs.140.00.UWPDesktop", false);
        row("system component", "SystemComponent", 1u, false);
        row("child of another product", "ParentKeyName", "OfficeProduct", false);
        row("no remove", "NoRemove", 1u, false);
        row("no remove 2", "NoRemove", 2u, true);
    }
    void skipRules()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        QFETCH(QString, valueName);
        QFETCH(QVariant, value);
        const std::wstring path = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Entry";
        reg().setString(Hive::LocalMachine, path, L"DisplayName", L"7-Zip 23.01 (x64)");
        if (value.typeId() == QMetaType::QString)
            reg().setString(Hive::LocalMachine, path, valueName.toStdWString(), value.toString().toStdWString());
        else
            reg().setDword(Hive::LocalMachine, path, valueName.toStdWString(), value.toUInt());
        UninstallManager manager;
        QSignalSpy done(&manager, &UninstallManager::refreshFinished);
        manager.refresh();
        QVERIFY(arrived(done));
        QTEST(manager.apps().size() == 1, "listed");
    }

    void status_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("daysInstalled");
        QTest::addColumn<int>("daysUnused"); // -1: the executable has no usage record
        QTest::addColumn<QString>("expected");
        QTest::newRow("used: 181 installed, 91 unused") << "App" << 181 << 91 << "old";
        QTest::newRow("used: 180 installed") << "App" << 180 << 91 << "ok";
        QTest::newRow("used: 90 unused") << "App" << 181 << 90 << "ok";
        QTest::newRow("no record: 271 days") << "App" << 271 << -1 << "old";
        QTest::newRow("no record: 270 days") << "App" << 270 << -1 << "ok";
        QTest::newRow("no uninstaller beats age") << "" << 3000 << -1 << "nouninstaller";
        QTest::newRow("excluded name is system") << "KB123456" << 3000 << -1 << "system";
    }
    void status()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        QFETCH(QString, name);
        QFETCH(int, daysInstalled);
        QFETCH(int, daysUnused);
        // The smallest executable is the one whose usage counts, not the big one used today.
        put("C:\\App\\App.exe", "MZ");
        put("C:\\App\\Big.exe", QByteArray(500, 'x'));
        InstalledApp a;
        std::tie(a.name, a.uninstallString, a.installDate, a.installLocation)
            = std::tuple(name.isEmpty() ? "App" : name, name.isEmpty() ? "" : "u.exe",
                Today.addDays(-daysInstalled).toString("yyyy-MM-dd"), "C:\\App");
        QHash<QString, QDate> usage { { "big.exe", Today } };
        if (daysUnused >= 0)
            usage.insert("app.exe", Today.addDays(-daysUnused));
        QTEST(UninstallManager::classify(a, usage, Today), "expected");
    }

    void sortOrder()
    {
        QList<InstalledApp> apps;
        for (const auto& [name, status, size] : { std::tuple("huge none", "nouninstaller", 1 << 30),
                 { "big ok", "ok", 500 }, { "small old", "old", 1 }, { "tie first", "ok", 100 },
                 { "system", "system", 200 }, { "tie second", "ok", 100 }, { "big old", "old", 900 } }) {
            apps << InstalledApp();
            std::tie(apps.last().name, apps.last().status, apps.last().estimatedSize) = std::tuple(name, status, size);
        }
        UninstallManager::sortForDisplay(apps);
        QStringList names;
        for (const InstalledApp& a : apps)
            names << a.name;
        QCOMPARE(
            names, QStringList({ "big old", "small old", "big ok", "system", "tie first", "tie second", "huge none" }));
    }

    void userAssistBounds()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        const QDate early(2024, 3, 1);
        const QDate late(2024, 9, 15);
        auto put = [&](int key, const QString& path, std::size_t bytes, const QDate& day) {
            reg().setBinary(Hive::CurrentUser, platform::userAssistCountKeys()[key],
                UninstallManager::rot13(path).toStdWString(), userAssistData(bytes, day));
        };
        put(0, "C:\\A\\min.exe", 24, early);
        put(0, "C:\\A\\max.exe", 64, early);
        put(0, "C:\\A\\modern.exe", 72, early); // today's Windows writes 72 bytes: more than the buffer holds
        put(0, "C:\\A\\short.exe", 23, early);
        put(0, "C:\\A\\zero.exe", 64, QDate());
        put(0, "C:\\A\\twice.exe", 64, late);
        put(1, "D:\\B\\TWICE.exe", 64, early); // the earlier day loses
        put(1, "{6D809377-6AF0-444B-8957-A3773F02200E}\\Notepad++\\notepad++.exe", 24, late); // a known folder
        // The name buffer holds 2,048 characters with the terminator.
        const QString longFolder = "C:\\" + QString(2035, 'x') + "\\";
        put(0, longFolder + "fits.exe", 64, early); // 2,047 characters
        put(0, longFolder + "long1.exe", 64, early); // 2,048 characters

        UninstallManager manager;
        manager.loadUsageData();
        const QHash<QString, QDate> expected { { "min.exe", early }, { "max.exe", early }, { "twice.exe", late },
            { "fits.exe", early }, { "notepad++.exe", late } };
        QCOMPARE(manager.usageMap(), expected);
        QCOMPARE(UninstallManager::rot13("Ünpx {1NP}\\abgrcnq.rkr NOPZnmaz"), "Üack {1AC}\\notepad.exe ABCMaznm");
    }

    // A history that cannot be read may still be the user's only record: it is kept beside the
    // new one. "<folder>" puts a folder in the file's place, which no one can read as a file.
    void history_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("loaded");
        QTest::addColumn<bool>("keptAsBackup");
        QTest::newRow("empty: nothing to keep") << QByteArray() << 0 << false;
        QTest::newRow("not JSON") << QByteArray("uninstall history v1\n") << 0 << true;
        QTest::newRow("cut short") << QByteArray("[{\"name\":\"Tool Box\",\"publisher\":\"Bri") << 0 << true;
        QTest::newRow("object") << QByteArray(R"({"name":"Tool Box"})") << 0 << true;
        QTest::newRow("over the size accepted") << QByteArray("<32 MiB and one byte>") << 0 << true;
        QTest::newRow("cannot be read") << QByteArray("<folder>") << 0 << true;
        QTest::newRow("unparsable time") << QByteArray(R"([{"name":"Old","uninstalledAt":"yesterday-ish"}])") << 1
                                         << false;
    }
    void history()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, loaded);
        QFETCH(bool, keptAsBackup);
        const QString path = UninstallManager::historyFilePath();
        QFile file(path);
        if (content == "<folder>") {
            QVERIFY(QDir().mkdir(path));
        } else {
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (content.startsWith("<32 MiB"))
                QVERIFY(file.write("[") == 1 && file.resize(32 * 1024 * 1024 + 1)); // sparse
            else
                QVERIFY(file.write(content) == content.size());
            file.close();
        }
        const bool wasFile = QFileInfo(path).isFile();
        const qint64 sizeBefore = QFileInfo(path).size();
        {
            UninstallManager manager;
            QCOMPARE(manager.history().size(), loaded);
            InstalledApp a;
            std::tie(a.name, a.publisher, a.installLocation, a.displayIcon)
                = std::tuple("Tool Box", "Brightwork", "C:\\Tools", "C:\\Tools\\tool.exe,0");
            manager.recordUninstall(a);
            manager.recordUninstall(a); // the backup is made once, before the first save only
        }
        const QList<UninstalledApp> history = UninstallManager().history();
        QCOMPARE(history.size(), loaded + 2);
        const UninstalledApp& h = history.last();
        QCOMPARE(QStringList({ h.name, h.publisher, h.installLocation, h.displayIcon }),
            QStringList({ "Tool Box", "Brightwork", "C:\\Tools", "C:\\Tools\\tool.exe,0" }));
        QVERIFY(qAbs(h.uninstalledAt.secsTo(QDateTime::currentDateTime())) < 60);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonArray saved = QJsonDocument::fromJson(file.readAll()).array();
        // Local time to the second, with no offset; a time that could not be read goes back out empty.
        QCOMPARE(saved.last()["uninstalledAt"].toString().size(), 19);
        if (loaded)
            QCOMPARE(saved[0]["uninstalledAt"], QJsonValue(""));

        const QFileInfo backup(path + ".bak");
        QCOMPARE(backup.exists(), keptAsBackup);
        if (keptAsBackup && wasFile) {
            QCOMPARE(backup.size(), sizeBefore);
            QFile kept(backup.filePath());
            QVERIFY(kept.open(QIODevice::ReadOnly));
            QCOMPARE(kept.read(content.size()),
                content.startsWith('<') ? QByteArray("[") + QByteArray(content.size() - 1, 0) : content);
        }
    }

    void uninstall_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("script"); // how the sandbox plays the uninstaller; empty: it refuses to
        QTest::addColumn<QString>("location");
        QTest::addColumn<QString>("refusal"); // what the log says when nothing may be started
        QTest::addColumn<bool>("ok");
        const QString exe = "C:\\Tool\\unins000.exe";
        auto row = [](const char* what, const QString& command, const QString& script, const QString& location, bool ok,
                       const QString& refusal = QString()) {
            QTest::newRow(what) << command << script << location << refusal << ok;
        };
        row("exit 0", "\"" + exe + "\" /S", "exit=0\n", "C:\\Tool", true);
        row("exit 1, folder removed", exe, "exit=1\ndelete=C:\\Tool\n", "C:\\Tool", true);
        row("exit 1, folder stays", exe, "exit=1\n", "C:\\Tool", false);
        row("exit 1, no location", exe, "exit=1\ndelete=C:\\Tool\n", "", false);
        row("time-out, folder stays", exe, "running=1\n", "C:\\Tool", false);
        // The folder test looks at the folder itself, whatever way the entry writes it.
        row("exit 1, quoted location with a variable stays", exe, "exit=1\n", "\"%SystemDrive%\\Tool\"", false);
        row("exit 1, quoted location with a variable removed", exe, "exit=1\ndelete=C:\\Tool\n",
            "\"%SystemDrive%\\Tool\"", true);
        // A location that was never there says nothing about the uninstaller.
        row("missing program, location never existed", "C:\\Gone\\unins000.exe", "", "C:\\Gone", false);
        row("a script is not started", "C:\\Tool\\remove.cmd /S", "", "C:\\Gone", false, "no .exe");
        row("a URL is not started", "https://example.com/unins000.exe", "", "C:\\Gone", false, "URL");
        row("a share is not started", "\\\\server\\share\\unins000.exe /S", "", "C:\\Tool", false, "network path");
    }
    void uninstall()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        QFETCH(QString, command);
        QFETCH(QString, script);
        QFETCH(QString, location);
        QFETCH(QString, refusal);
        QFETCH(bool, ok);
        put("C:\\Tool\\unins000.exe", "MZ");
        put("C:\\Tool\\remove.cmd", "@echo off");
        if (!script.isEmpty())
            put("C:\\Tool\\unins000.exe.demo-uninstall", script.toUtf8());
        if (!refusal.isEmpty())
            QTest::ignoreMessage(
                QtWarningMsg, QRegularExpression("^\\[UninstallManager\\] Not started: \"Tool\" - \".*" + refusal));
        InstalledApp a;
        std::tie(a.name, a.uninstallString, a.installLocation) = std::tuple("Tool", command, location);
        UninstallManager manager;
        QSignalSpy finished(&manager, &UninstallManager::uninstallFinished);
        QCOMPARE(manager.uninstall(a), ok);
        QCOMPARE(finished, QList<QVariantList>({ { "Tool", ok } }));
        QCOMPARE(UninstallManager().history().size(), ok ? 1 : 0); // saved as well
        QCOMPARE(m_recording->requests.size(), refusal.isEmpty() ? 1 : 0);
    }

    // The entry Windows Installer writes for the sample package, read by the inventory and
    // uninstalled: "/I" would only repair it, so it has to run as "/X". The Wine lane runs the
    // same preparation against the real msiexec.
    void msiEntryFromTheInventoryIsRemoved()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        const std::wstring key = sample_msi::KeyPath;
        reg().setString(Hive::LocalMachine, key, L"DisplayName", sample_msi::DisplayName);
        reg().setString(Hive::LocalMachine, key, L"Publisher", sample_msi::Publisher);
        reg().setString(Hive::LocalMachine, key, L"DisplayVersion", sample_msi::DisplayVersion);
        reg().setString(Hive::LocalMachine, key, L"InstallDate", L"20250101");
        reg().setString(Hive::LocalMachine, key, L"InstallLocation", L"");
        reg().setString(
            Hive::LocalMachine, key, L"UninstallString", sample_msi::UninstallString, platform::TypeExpandString);
        reg().setDword(Hive::LocalMachine, key, L"EstimatedSize", 0);
        put("C:\\Windows\\Installer\\" + QString::fromWCharArray(sample_msi::ProductCode) + ".demo-uninstall",
            "unregister=HKLM\\" + QString::fromWCharArray(sample_msi::KeyPath).toUtf8() + "\n");

        UninstallManager manager;
        QSignalSpy refreshed(&manager, &UninstallManager::refreshFinished);
        manager.refresh();
        QVERIFY(arrived(refreshed));
        QCOMPARE(manager.apps().size(), 1);
        const InstalledApp app = manager.apps().first();
        QVERIFY(manager.uninstall(app));

        QCOMPARE(m_recording->requests.size(), 1);
        QCOMPARE(QString::fromStdWString(m_recording->requests.first().parameters),
            QString::fromWCharArray(sample_msi::PreparedParameters));
        QVERIFY(!platform::readUninstallEntry(reg(), Hive::LocalMachine, key));
        const QList<UninstalledApp> history = UninstallManager().history();
        QCOMPARE(history.size(), 1);
        QCOMPARE(
            QStringList({ history[0].name, history[0].publisher, history[0].installLocation, history[0].displayIcon }),
            QStringList({ QString::fromWCharArray(sample_msi::DisplayName),
                QString::fromWCharArray(sample_msi::Publisher), "", "" }));
    }

    // Opening a share would make the list contact another machine: an install location there is
    // never listed for its executables.
    void networkInstallLocationIsNotListed()
    {
        NORVALE_SANDBOX_ONLY("reads registry entries and files of its own machine");
        // On this system "//tmp/x" is "/tmp/x", so an old lookup would find the executable.
        const QString folder = m_machine->outside("App");
        QVERIFY(QDir().mkpath(folder));
        QFile exe(folder + "/app.exe");
        QVERIFY(exe.open(QIODevice::WriteOnly) && exe.write("MZ") == 2);
        exe.close();
        QVERIFY(!UninstallManager::mainExecutable(folder).isEmpty());
        QCOMPARE(UninstallManager::mainExecutable("/" + folder), QString());
        QCOMPARE(UninstallManager::installFolder("\"/" + folder + "\""), QString());
    }
};

QTEST_GUILESS_MAIN(tst_UninstallManager)
#include "tst_uninstallmanager.moc"
