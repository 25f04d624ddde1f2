#include <uninstall/uninstallmanager.h>

#include <platform/platform.h>
#include <platform/registry.h>
#include <platform/sandbox/sandboxplatform.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using platform::Hive;

namespace {

const std::wstring UninstallKey = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const std::wstring UserAssistKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\UserAssist\\{CEBFF5CD-"
                                   L"ACE2-4F4F-9178-9926F41749EA}\\Count";
const std::wstring UserAssistKey2 = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\UserAssist\\{F4E57C4B-"
                                    L"2036-45F0-A9AB-443BCFE33D9F}\\Count";

std::wstring w(const QString& s)
{
    return s.toStdWString();
}

// A UserAssist record of the given length with the FILETIME of a UTC noon at offset 16.
std::vector<std::uint8_t> userAssistData(std::size_t bytes, const QDate& day)
{
    std::vector<std::uint8_t> data(bytes, 0);
    quint64 ft = 0;
    if (day.isValid()) {
        const qint64 secs = QDateTime(day, QTime(12, 0), Qt::UTC).toSecsSinceEpoch();
        ft = quint64(secs + 11644473600LL) * 10000000ULL;
    }
    for (std::size_t i = 0; i < 8 && 16 + i < bytes; ++i)
        data[16 + i] = std::uint8_t(ft >> (8 * i));
    return data;
}

// Log lines of an uninstall; the waiting line notes whether the install folder was still there
// when it was written, which tells whether it came before the uninstaller ran or after.
QStringList g_log;
QString g_watchedFolder;

void captureLog(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (message.contains(QLatin1String("Waiting for uninstaller")))
        g_log << message + (QFileInfo(g_watchedFolder).isDir() ? " (folder present)" : " (folder gone)");
    else
        g_log << message;
}

InstalledApp app(const QString& name, const QString& status, qint64 size)
{
    InstalledApp a;
    a.name = name;
    a.status = status;
    a.estimatedSize = size;
    return a;
}

} // namespace

class tst_UninstallManager : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void hiddenNames_data();
    void hiddenNames();
    void skipRules_data();
    void skipRules();
    void recordFields();
    void installDate_data();
    void installDate();
    void status_data();
    void status();
    void mainExecutablePicksSmallest();
    void sortOrder();
    void refreshSortsAndClassifies();
    void refreshFromTheFinishedSignal();
    void formatSize_data();
    void formatSize();
    void rot13_data();
    void rot13();
    void userAssistName_data();
    void userAssistName();
    void userAssistBounds();
    void historyRoundTrip();
    void brokenHistory_data();
    void brokenHistory();
    void historySaveFailureKeepsList();
    void uninstall_data();
    void uninstall();
    void msiUninstallRemovesEntry();
    void batchRunsInOrder();

private:
    platform::Registry& reg() { return m_platform->registry(); }
    QString drive() const { return m_dir->path() + "/C"; }
    void addEntry(const QString& key, const QString& name, const QString& uninstall = "uninst.exe",
        const QString& location = QString(), const QString& date = QString(), quint32 sizeKb = 0);
    void makeFolderWithExe(const QString& windowsFolder, const QList<QPair<QString, int>>& files);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<platform::SandboxPlatform> m_platform;
};

void tst_UninstallManager::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_platform = std::make_unique<platform::SandboxPlatform>(w(m_dir->path()));
    platform::setCurrent(m_platform.get());
    QFile::remove(UninstallManager::historyFilePath());
}

void tst_UninstallManager::cleanup()
{
    platform::setCurrent(nullptr);
    m_platform.reset();
    m_dir.reset();
}

void tst_UninstallManager::addEntry(const QString& key, const QString& name, const QString& uninstall,
    const QString& location, const QString& date, quint32 sizeKb)
{
    const std::wstring path = UninstallKey + L"\\" + w(key);
    reg().setString(Hive::LocalMachine, path, L"DisplayName", w(name));
    if (!uninstall.isEmpty())
        reg().setString(Hive::LocalMachine, path, L"UninstallString", w(uninstall));
    if (!location.isEmpty())
        reg().setString(Hive::LocalMachine, path, L"InstallLocation", w(location));
    if (!date.isEmpty())
        reg().setString(Hive::LocalMachine, path, L"InstallDate", w(date));
    if (sizeKb)
        reg().setDword(Hive::LocalMachine, path, L"EstimatedSize", sizeKb);
}

void tst_UninstallManager::makeFolderWithExe(const QString& windowsFolder, const QList<QPair<QString, int>>& files)
{
    const QString folder = UninstallManager::localPath(windowsFolder);
    QVERIFY(QDir().mkpath(folder));
    for (const auto& [file, size] : files) {
        QFile f(folder + "/" + file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(size, 'x'));
    }
}

void tst_UninstallManager::hiddenNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hidden");

    QTest::newRow("KB number") << "KB5034441" << true;
    QTest::newRow("kb in lower case is a program") << "kb5034441 viewer" << false;
    QTest::newRow("security update") << "Security Update for Windows (KB5034441)" << true;
    QTest::newRow("plain update for") << "Update for Microsoft Office 2016 (KB4484104) 64-Bit Edition" << true;
    QTest::newRow("Visual C++ redistributable")
        << "Microsoft Visual C++ 2015-2022 Redistributable (x64) - 14.38.33130" << true;
    QTest::newRow(".NET desktop runtime") << "Microsoft .NET Desktop Runtime - 8.0.1 (x64)" << true;
    QTest::newRow("Runtimes is not Runtime") << "Runtimes Explorer" << false;
    QTest::newRow("Edge WebView2") << "Microsoft Edge WebView2 Runtime" << true;
    QTest::newRow("Edge itself") << "Microsoft Edge" << false;
    QTest::newRow("SDK word") << "Android SDK Platform-Tools" << true;
    QTest::newRow("SDK inside a word") << "MySDKApp" << false;
    QTest::newRow("driver") << "NVIDIA Graphics Driver 546.33" << true;
    QTest::newRow("vs_ component") << "vs_CoreEditorFonts" << true;
    QTest::newRow("icecap") << "icecap_collection_x64" << true;
    QTest::newRow("click-to-run") << "Office 16 Click-to-Run Extensibility Component" << true;
    QTest::newRow("Python core interpreter") << "Python 3.12.1 Core Interpreter (64-bit)" << true;
    QTest::newRow("Python add to path") << "Python 3.11.4 Add to Path (64-bit)" << true;
    QTest::newRow("Python Tcl/Tk") << "Python 3.12.1 Tcl/Tk Support (64-bit)" << true;
    QTest::newRow("Python pip bootstrap") << "Python 3.12.1 pip Bootstrap (64-bit)" << true;
    QTest::newRow("Python launcher stays") << "Python Launcher" << false;
    QTest::newRow("Python itself stays") << "Python 3.12.1 (64-bit)" << false;
    QTest::newRow("system package, other case") << "microsoft.vclibs.140.00.UWPDesktop" << true;
    QTest::newRow("store package name") << "Microsoft.WindowsStore_22312.1401.5.0" << true;
    QTest::newRow("ordinary programs") << "7-Zip 23.01 (x64)" << false;
    QTest::newRow("Visual Studio Code") << "Microsoft Visual Studio Code (User)" << false;
    QTest::newRow("Notepad++") << "Notepad++ (64-bit x64)" << false;
}

void tst_UninstallManager::hiddenNames()
{
    QFETCH(QString, name);
    QFETCH(bool, hidden);
    addEntry("Entry", name);
    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    QCOMPARE(manager.apps().isEmpty(), hidden);
}

void tst_UninstallManager::skipRules_data()
{
    QTest::addColumn<QString>("valueName");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("listed");

    auto text = [](const QString& s, bool terminate = true) {
        const auto bytes = platform::encodeRegistryString(s.toStdWString(), terminate);
        return QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size()));
    };
    auto dword = [](quint32 v) { return QByteArray(reinterpret_cast<const char*>(&v), 4); };
    auto qword = [](quint64 v) { return QByteArray(reinterpret_cast<const char*>(&v), 8); };

    QTest::newRow("name of spaces") << "DisplayName" << 1 << text("   ") << false;
    QTest::newRow("name as a DWORD") << "DisplayName" << 4 << dword(0x41) << false;
    QTest::newRow("name longer than the buffer") << "DisplayName" << 1 << text(QString(1024, 'A')) << false;
    QTest::newRow("name filling the buffer without terminator")
        << "DisplayName" << 1 << text(QString(1024, 'A'), false) << true;
    QTest::newRow("name without terminator") << "DisplayName" << 1 << text("Foo", false) << true;
    QTest::newRow("system component") << "SystemComponent" << 4 << dword(1) << false;
    QTest::newRow("system component 0") << "SystemComponent" << 4 << dword(0) << true;
    QTest::newRow("system component as text") << "SystemComponent" << 1 << text("1") << true;
    QTest::newRow("system component as QWORD") << "SystemComponent" << 11 << qword(1) << true;
    QTest::newRow("child of another product") << "ParentKeyName" << 1 << text("OfficeProduct") << false;
    QTest::newRow("blank parent") << "ParentKeyName" << 1 << text("  ") << true;
    QTest::newRow("no remove") << "NoRemove" << 4 << dword(1) << false;
    QTest::newRow("no remove 2") << "NoRemove" << 4 << dword(2) << true;
}

void tst_UninstallManager::skipRules()
{
    QFETCH(QString, valueName);
    QFETCH(int, type);
    QFETCH(QByteArray, data);
    QFETCH(bool, listed);
    const std::wstring path = UninstallKey + L"\\Entry";
    if (valueName != "DisplayName")
        reg().setString(Hive::LocalMachine, path, L"DisplayName", L"Some Program");
    reg().setValue(Hive::LocalMachine, path,
        platform::RawValue { w(valueName), std::uint32_t(type), std::vector<std::uint8_t>(data.begin(), data.end()) });
    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    QCOMPARE(manager.apps().size(), listed ? 1 : 0);
}

void tst_UninstallManager::recordFields()
{
    const std::wstring path = UninstallKey + L"\\{7E3F8A21}";
    reg().setString(Hive::LocalMachine, path, L"DisplayName", L"  Tool Box  ");
    reg().setString(Hive::LocalMachine, path, L"Publisher", L" Brightwork Ltd ");
    reg().setString(Hive::LocalMachine, path, L"DisplayVersion", L"2.4.1 ");
    reg().setString(Hive::LocalMachine, path, L"InstallDate", L" 20240131");
    reg().setString(
        Hive::LocalMachine, path, L"UninstallString", L" \"C:\\Tools\\unins000.exe\" ", platform::TypeExpandString);
    reg().setString(Hive::LocalMachine, path, L"DisplayIcon", L"C:\\Tools\\tool.exe,0");
    reg().setString(Hive::LocalMachine, path, L"InstallLocation", L"C:\\Tools\\");
    reg().setDword(Hive::LocalMachine, path, L"EstimatedSize", 2048);
    // Same program registered for the user too, with a size too wide for a DWORD.
    const std::wstring userPath = UninstallKey + L"\\ToolBox";
    reg().setString(Hive::CurrentUser, userPath, L"DisplayName", L"Tool Box");
    reg().setString(Hive::CurrentUser, userPath, L"Publisher", std::wstring(1100, L'P'));
    reg().setQword(Hive::CurrentUser, userPath, L"EstimatedSize", 2048);

    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    const QList<InstalledApp> apps = manager.apps();
    QCOMPARE(apps.size(), 2); // duplicates stay
    const InstalledApp& a = apps[0];
    QCOMPARE(a.name, "Tool Box");
    QCOMPARE(a.publisher, "Brightwork Ltd");
    QCOMPARE(a.version, "2.4.1");
    QCOMPARE(a.installDate, "2024-01-31");
    QCOMPARE(a.uninstallString, "\"C:\\Tools\\unins000.exe\"");
    QCOMPARE(a.displayIcon, "C:\\Tools\\tool.exe,0");
    QCOMPARE(a.installLocation, "C:\\Tools\\");
    QCOMPARE(a.estimatedSize, 2097152);
    QCOMPARE(UninstallManager::formatSize(a.estimatedSize), "2 MB");
    QVERIFY(a.extraInfo.isEmpty());
    QVERIFY(!a.lastUsed.isValid());
    const InstalledApp& b = apps[1];
    QCOMPARE(b.publisher, QString()); // longer than the buffer
    QCOMPARE(b.estimatedSize, 0);
    QCOMPARE(b.status, "nouninstaller");
    QCOMPARE(UninstallManager::formatSize(b.estimatedSize), "\u2014");
}

void tst_UninstallManager::installDate_data()
{
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("expected");
    QTest::newRow("eight digits") << "20240131"
                                  << "2024-01-31";
    QTest::newRow("blanks around") << " 20240131\t"
                                   << "2024-01-31";
    QTest::newRow("short form stays") << "2023-5-1"
                                      << "2023-5-1";
    QTest::newRow("seven digits") << "2024013"
                                  << "2024013";
    QTest::newRow("nine digits") << "202401311"
                                 << "202401311";
    QTest::newRow("letter among digits") << "2024O131"
                                         << "2024O131";
    QTest::newRow("slashes") << "1/31/2024"
                             << "1/31/2024";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_UninstallManager::installDate()
{
    QFETCH(QString, raw);
    QTEST(UninstallManager::normaliseInstallDate(raw), "expected");
}

void tst_UninstallManager::status_data()
{
    QTest::addColumn<QString>("uninstall");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("daysInstalled"); // -1: the date text below is used instead
    QTest::addColumn<QString>("dateText");
    QTest::addColumn<int>("daysUnused"); // -1: the executable has no usage record
    QTest::addColumn<QString>("expected");

    QTest::newRow("used: 181 installed, 91 unused") << "u.exe"
                                                    << "App" << 181 << "" << 91 << "old";
    QTest::newRow("used: 180 installed") << "u.exe"
                                         << "App" << 180 << "" << 91 << "ok";
    QTest::newRow("used: 90 unused") << "u.exe"
                                     << "App" << 181 << "" << 90 << "ok";
    QTest::newRow("used: long ago, date unparsable") << "u.exe"
                                                     << "App" << -1 << "2023-5-1" << 400 << "ok";
    QTest::newRow("used recently, installed long ago") << "u.exe"
                                                       << "App" << 2000 << "" << 3 << "ok";
    QTest::newRow("no record: 271 days") << "u.exe"
                                         << "App" << 271 << "" << -1 << "old";
    QTest::newRow("no record: 270 days") << "u.exe"
                                         << "App" << 270 << "" << -1 << "ok";
    QTest::newRow("no record: short date form") << "u.exe"
                                                << "App" << -1 << "2019-5-1" << -1 << "ok";
    QTest::newRow("no record: no date") << "u.exe"
                                        << "App" << -1 << "" << -1 << "ok";
    QTest::newRow("no uninstaller beats age") << ""
                                              << "App" << 3000 << "" << -1 << "nouninstaller";
    QTest::newRow("excluded name is system") << "u.exe"
                                             << "KB123456" << 3000 << "" << -1 << "system";
}

void tst_UninstallManager::status()
{
    QFETCH(QString, uninstall);
    QFETCH(QString, name);
    QFETCH(int, daysInstalled);
    QFETCH(QString, dateText);
    QFETCH(int, daysUnused);

    const QDate today(2025, 3, 1);
    makeFolderWithExe("C:\\Program Files\\App", { { "App.exe", 10 } });
    InstalledApp a;
    a.name = name;
    a.uninstallString = uninstall;
    a.installLocation = "C:\\Program Files\\App";
    a.installDate = daysInstalled >= 0 ? today.addDays(-daysInstalled).toString("yyyy-MM-dd") : dateText;
    QHash<QString, QDate> usage;
    usage.insert("other.exe", today);
    if (daysUnused >= 0)
        usage.insert("app.exe", today.addDays(-daysUnused));
    QTEST(UninstallManager::classify(a, usage, today), "expected");
}

void tst_UninstallManager::mainExecutablePicksSmallest()
{
    makeFolderWithExe("C:\\Apps\\Editor", { { "editor.exe", 5000 }, { "updater.exe", 300 }, { "readme.txt", 1 } });
    QVERIFY(QDir().mkpath(UninstallManager::localPath("C:\\Apps\\Editor\\plugins.exe")));
    QCOMPARE(QFileInfo(UninstallManager::mainExecutable("C:\\Apps\\Editor")).fileName(), "updater.exe");
    QCOMPARE(UninstallManager::mainExecutable("C:\\Apps\\Missing"), QString());
    QCOMPARE(UninstallManager::mainExecutable(""), QString());
    QCOMPARE(UninstallManager::mainExecutable("Apps\\Editor"), QString()); // relative: not looked up
}

void tst_UninstallManager::sortOrder()
{
    QList<InstalledApp> apps = { app("small ok", "ok", 10), app("huge none", "nouninstaller", 1 << 30),
        app("big ok", "ok", 500), app("small old", "old", 1), app("tie first", "ok", 100), app("system", "system", 200),
        app("tie second", "ok", 100), app("big old", "old", 900), app("small none", "nouninstaller", 5) };
    UninstallManager::sortForDisplay(apps);
    QStringList names;
    for (const InstalledApp& a : apps)
        names << a.name;
    QCOMPARE(names,
        QStringList({ "big old", "small old", "big ok", "system", "tie first", "tie second", "small ok", "huge none",
            "small none" }));
}

void tst_UninstallManager::refreshSortsAndClassifies()
{
    const QDate today = QDate::currentDate();
    const auto old = today.addDays(-400).toString("yyyyMMdd");
    addEntry("A", "Recent Tool", "a.exe", "", today.addDays(-10).toString("yyyyMMdd"), 10);
    addEntry("B", "Forgotten Game", "b.exe", "C:\\Games\\Forgotten", old, 5);
    addEntry("C", "Daily Editor", "c.exe", "C:\\Apps\\Daily", old, 50);
    addEntry("D", "Portable Thing", "", "", old, 999999);
    makeFolderWithExe("C:\\Games\\Forgotten", { { "game.exe", 10 } });
    makeFolderWithExe("C:\\Apps\\Daily", { { "Daily.exe", 10 } });
    // Explorer saw the editor yesterday; the game's record is far too old.
    const QString daily = UninstallManager::rot13("C:\\Apps\\Daily\\Daily.exe");
    const QString game = UninstallManager::rot13("C:\\Games\\Forgotten\\game.exe");
    reg().setBinary(Hive::CurrentUser, UserAssistKey, w(daily), userAssistData(64, today.addDays(-1)));
    reg().setBinary(Hive::CurrentUser, UserAssistKey, w(game), userAssistData(24, today.addDays(-200)));

    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    QCOMPARE(done.size(), 1);
    QStringList order;
    QStringList statuses;
    for (const InstalledApp& a : manager.apps()) {
        order << a.name;
        statuses << a.status;
    }
    QCOMPARE(order, QStringList({ "Forgotten Game", "Daily Editor", "Recent Tool", "Portable Thing" }));
    QCOMPARE(statuses, QStringList({ "old", "ok", "ok", "nouninstaller" }));
    QCOMPARE(manager.usageMap().size(), 2);
}

void tst_UninstallManager::refreshFromTheFinishedSignal()
{
    addEntry("A", "Recent Tool");
    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    int calls = 0;
    // A receiver that refreshes again at once, on the worker's own thread, must not be ignored.
    connect(
        &manager, &UninstallManager::refreshFinished, this,
        [&] {
            if (++calls == 1)
                manager.refresh();
        },
        Qt::DirectConnection);
    manager.refresh();
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 2, 10000);
    QVERIFY(!manager.isRefreshing());
}

void tst_UninstallManager::formatSize_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << qint64(0) << "\u2014";
    QTest::newRow("below a KiB") << qint64(1023) << "0 KB";
    QTest::newRow("one KiB") << qint64(1024) << "1 KB";
    QTest::newRow("KiB truncated") << qint64(1048575) << "1023 KB";
    QTest::newRow("one MiB") << qint64(1048576) << "1 MB";
    QTest::newRow("MiB rounded") << qint64(1572864) << "2 MB";
    QTest::newRow("just below a GiB") << qint64(1073741823) << "1024 MB";
    QTest::newRow("one GiB") << qint64(1073741824) << "1.0 GB";
    QTest::newRow("GiB one decimal") << qint64(1610612736) << "1.5 GB";
}

void tst_UninstallManager::formatSize()
{
    QFETCH(qint64, bytes);
    QTEST(UninstallManager::formatSize(bytes), "text");
}

void tst_UninstallManager::rot13_data()
{
    QTest::addColumn<QString>("encoded");
    QTest::addColumn<QString>("decoded");
    QTest::newRow("letters both halves") << "NOPZnmaz"
                                         << "ABCMaznm";
    QTest::newRow("digits, braces and backslashes kept") << "{1NP14R77-02R7-4R5Q-O744-2RO1NR5198O7}\\abgrcnq.rkr"
                                                         << "{1AC14E77-02E7-4E5D-B744-2EB1AE5198B7}\\notepad.exe";
    QTest::newRow("non-ASCII kept") << "Ünpx"
                                    << "Üack";
}

void tst_UninstallManager::rot13()
{
    QFETCH(QString, encoded);
    QFETCH(QString, decoded);
    QCOMPARE(UninstallManager::rot13(encoded), decoded);
    QCOMPARE(UninstallManager::rot13(decoded), encoded);
}

void tst_UninstallManager::userAssistName_data()
{
    QTest::addColumn<QString>("decoded");
    QTest::addColumn<QString>("exe");
    QTest::newRow("known folder path") << "{6D809377-6AF0-444B-8957-A3773F02200E}\\Notepad++\\notepad++.exe"
                                       << "notepad++.exe";
    QTest::newRow("arguments after a space") << "C:\\Tools\\App.EXE --profile work"
                                             << "app.exe";
    QTest::newRow("space inside the file name") << "C:\\Program Files\\My App.exe"
                                                << "";
    QTest::newRow("no folder") << "chrome.exe"
                               << "chrome.exe";
    QTest::newRow("leading space is not a cut") << "C:\\x\\ lead.exe"
                                                << " lead.exe";
    QTest::newRow("shortcut") << "{0139D44E-6AFE-49F2-8690-3DAFCAE6FFB8}\\Accessories\\Paint.lnk"
                              << "";
    QTest::newRow("app id") << "Microsoft.Windows.Explorer"
                            << "";
    QTest::newRow("session counter") << "UEME_CTLSESSION"
                                     << "";
}

void tst_UninstallManager::userAssistName()
{
    QFETCH(QString, decoded);
    QTEST(UninstallManager::userAssistExecutable(decoded), "exe");
}

void tst_UninstallManager::userAssistBounds()
{
    const QDate early(2024, 3, 1);
    const QDate late(2024, 9, 15);
    auto put = [&](const std::wstring& key, const QString& path, std::vector<std::uint8_t> data) {
        reg().setBinary(Hive::CurrentUser, key, w(UninstallManager::rot13(path)), data);
    };
    put(UserAssistKey, "C:\\A\\min.exe", userAssistData(24, early));
    put(UserAssistKey, "C:\\A\\max.exe", userAssistData(64, early));
    put(UserAssistKey, "C:\\A\\modern.exe", userAssistData(72, early)); // current Windows' size: skipped
    put(UserAssistKey, "C:\\A\\short.exe", userAssistData(23, early));
    put(UserAssistKey, "C:\\A\\zero.exe", userAssistData(64, QDate()));
    put(UserAssistKey, "C:\\A\\twice.exe", userAssistData(64, late));
    put(UserAssistKey2, "D:\\B\\TWICE.exe", userAssistData(64, early)); // earlier date loses
    put(UserAssistKey2, "C:\\A\\second.exe --x", userAssistData(40, late));
    reg().setString(Hive::CurrentUser, UserAssistKey, w(UninstallManager::rot13("C:\\A\\text.exe")), L"not binary");
    // The name buffer holds 2,048 characters with the terminator.
    const QString longFolder = "C:\\" + QString(2035, 'x') + "\\";
    put(UserAssistKey, longFolder + "fits.exe", userAssistData(64, early)); // 2,047 characters
    put(UserAssistKey, longFolder + "long1.exe", userAssistData(64, early)); // 2,048 characters

    UninstallManager manager;
    manager.loadUsageData();
    const QHash<QString, QDate> usage = manager.usageMap();
    QCOMPARE(usage.value("min.exe"), early);
    QCOMPARE(usage.value("max.exe"), early);
    QCOMPARE(usage.value("twice.exe"), late);
    QCOMPARE(usage.value("second.exe"), late);
    QVERIFY(!usage.contains("modern.exe"));
    QVERIFY(!usage.contains("short.exe"));
    QVERIFY(!usage.contains("zero.exe"));
    QVERIFY(!usage.contains("text.exe"));
    QCOMPARE(usage.value("fits.exe"), early);
    QVERIFY(!usage.contains("long1.exe"));
    QCOMPARE(usage.size(), 5);

    QVERIFY(!UninstallManager::fileTimeToDate(0).isValid());
    QVERIFY(!UninstallManager::fileTimeToDate(116444735999999999ULL).isValid());
}

void tst_UninstallManager::historyRoundTrip()
{
    {
        UninstallManager manager;
        QVERIFY(manager.history().isEmpty());
        InstalledApp a;
        a.name = "Tool Box";
        a.publisher = "Brightwork";
        a.installLocation = "C:\\Tools";
        a.displayIcon = "C:\\Tools\\tool.exe,0";
        manager.recordUninstall(a);
        a.name = "Tool Box"; // the same program again: no de-duplication
        manager.recordUninstall(a);
    }
    UninstallManager reloaded;
    const QList<UninstalledApp> history = reloaded.history();
    QCOMPARE(history.size(), 2);
    QCOMPARE(history[0].name, "Tool Box");
    QCOMPARE(history[0].publisher, "Brightwork");
    QCOMPARE(history[0].installLocation, "C:\\Tools");
    QCOMPARE(history[0].displayIcon, "C:\\Tools\\tool.exe,0");
    QVERIFY(history[0].uninstalledAt.isValid());
    QVERIFY(qAbs(history[1].uninstalledAt.secsTo(QDateTime::currentDateTime())) < 60);
    {
        // Local time to the second, without an offset or milliseconds.
        QFile written(UninstallManager::historyFilePath());
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QString at = QJsonDocument::fromJson(written.readAll()).array()[0].toObject()["uninstalledAt"].toString();
        QVERIFY2(
            QRegularExpression("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d$").match(at).hasMatch(), qPrintable(at));
        QCOMPARE(QDateTime::fromString(at, Qt::ISODate).timeSpec(), Qt::LocalTime);
    }

    // An unparsable time survives a load and goes back out as an empty text.
    QFile file(UninstallManager::historyFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(R"([{"name":"Old","uninstalledAt":"yesterday-ish"},{"publisher":"P"}])");
    file.close();
    UninstallManager manager;
    QCOMPARE(manager.history().size(), 2);
    QVERIFY(!manager.history()[0].uninstalledAt.isValid());
    QCOMPARE(manager.history()[1].name, QString());
    QVERIFY(manager.saveHistory());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray saved = QJsonDocument::fromJson(file.readAll()).array();
    QCOMPARE(saved.size(), 2);
    QCOMPARE(saved[0].toObject().value("uninstalledAt").toString(), QString());
    QCOMPARE(saved[0].toObject().keys().size(), 5);
}

void tst_UninstallManager::brokenHistory_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not JSON") << QByteArray("uninstall history v1\n");
    QTest::newRow("object") << QByteArray(R"({"name":"Tool Box"})");
    QTest::newRow("truncated array") << QByteArray(R"([{"name":"Tool)");
    QTest::newRow("huge") << QByteArray(33 * 1024 * 1024, ' ') + "[]";
}

void tst_UninstallManager::brokenHistory()
{
    QFETCH(QByteArray, content);
    const QString path = UninstallManager::historyFilePath();
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();

    UninstallManager manager;
    QVERIFY(manager.history().isEmpty());
    QCOMPARE(QFileInfo(path).size(), content.size()); // loading leaves the file alone

    InstalledApp a;
    a.name = "Tool Box";
    manager.recordUninstall(a);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll());
    QVERIFY(doc.isArray());
    QCOMPARE(doc.array().size(), 1);
    QCOMPARE(doc.array()[0].toObject().value("name").toString(), "Tool Box");
}

void tst_UninstallManager::historySaveFailureKeepsList()
{
    // A folder where the file should be: the save cannot replace it.
    QVERIFY(QDir().mkpath(UninstallManager::historyFilePath()));
    UninstallManager manager;
    InstalledApp a;
    a.name = "Tool Box";
    manager.recordUninstall(a);
    QCOMPARE(manager.history().size(), 1);
    QVERIFY(!manager.saveHistory());
    QVERIFY(QDir().rmdir(UninstallManager::historyFilePath()));
}

void tst_UninstallManager::uninstall_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("script"); // written next to the uninstaller; empty: none
    QTest::addColumn<QString>("location");
    QTest::addColumn<bool>("ok");

    const QString folder = "C:\\Program Files\\Tool";
    const QString removeFolder = "delete=" + folder + "\n";
    QTest::newRow("exit 0") << "\"C:\\Program Files\\Tool\\unins000.exe\" /S"
                            << "exit=0\n"
                            << folder << true;
    QTest::newRow("exit 1, folder removed") << "C:\\Program Files\\Tool\\unins000.exe"
                                            << "exit=1\n" + removeFolder << folder << true;
    QTest::newRow("exit 1, folder stays") << "C:\\Program Files\\Tool\\unins000.exe"
                                          << "exit=1\n"
                                          << folder << false;
    QTest::newRow("exit 1, no location") << "C:\\Program Files\\Tool\\unins000.exe"
                                         << "exit=1\n" + removeFolder << "" << false;
    QTest::newRow("reboot requested, folder stays") << "C:\\Program Files\\Tool\\unins000.exe"
                                                    << "exit=3010\n"
                                                    << folder << false;
    QTest::newRow("time-out, folder already gone") << "C:\\Program Files\\Tool\\unins000.exe"
                                                   << "running=1\n" + removeFolder << folder << true;
    QTest::newRow("time-out, folder stays") << "C:\\Program Files\\Tool\\unins000.exe"
                                            << "running=1\n"
                                            << folder << false;
    QTest::newRow("refused start, folder stays") << "C:\\Program Files\\Tool\\unins000.exe"
                                                 << "" << folder << false;
    QTest::newRow("missing program, folder gone") << "C:\\Program Files\\Gone\\unins000.exe"
                                                  << ""
                                                  << "C:\\Gone" << true;
    QTest::newRow("unparsable command, folder gone") << "   "
                                                     << ""
                                                     << "C:\\Gone" << false;
    QTest::newRow("exit 1, location names a file") << "C:\\Program Files\\Tool\\unins000.exe"
                                                   << "exit=1\n"
                                                   << folder + "\\tool.exe" << true;
}

void tst_UninstallManager::uninstall()
{
    QFETCH(QString, command);
    QFETCH(QString, script);
    QFETCH(QString, location);
    QFETCH(bool, ok);

    makeFolderWithExe("C:\\Program Files\\Tool", { { "unins000.exe", 10 }, { "tool.exe", 20 } });
    if (!script.isEmpty()) {
        QFile f(UninstallManager::localPath("C:\\Program Files\\Tool\\unins000.exe.demo-uninstall"));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(script.toUtf8());
    }
    InstalledApp a;
    a.name = "Tool";
    a.uninstallString = command;
    a.installLocation = location;

    UninstallManager manager;
    QSignalSpy started(&manager, &UninstallManager::uninstallStarted);
    QSignalSpy finished(&manager, &UninstallManager::uninstallFinished);
    g_log.clear();
    g_watchedFolder = UninstallManager::localPath("C:\\Program Files\\Tool");
    const QtMessageHandler previous = qInstallMessageHandler(captureLog);
    const bool result = manager.uninstall(a);
    qInstallMessageHandler(previous);
    QCOMPARE(result, ok);
    // The sandbox plays an uninstaller only when it has a script for it.
    const int waiting = g_log.indexOf(QRegularExpression("\\[UninstallManager\\] Waiting for uninstaller.*"));
    if (script.isEmpty()) {
        QCOMPARE(waiting, -1);
    } else {
        QCOMPARE(g_log.value(waiting), "[UninstallManager] Waiting for uninstaller... (folder present)");
        QVERIFY(waiting < g_log.indexOf(QRegularExpression("\\[UninstallManager\\] Exit code:.*")));
    }
    QCOMPARE(started.size(), 1);
    QCOMPARE(started[0][0].toString(), "Tool");
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toString(), "Tool");
    QCOMPARE(finished[0][1].toBool(), ok);
    QCOMPARE(manager.history().size(), ok ? 1 : 0);
    QCOMPARE(UninstallManager().history().size(), ok ? 1 : 0); // saved as well
}

void tst_UninstallManager::msiUninstallRemovesEntry()
{
    const QString code = "{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}";
    addEntry(code, "Sample Viewer", "MsiExec.exe /X" + code, "C:\\Program Files\\Sample Viewer");
    makeFolderWithExe("C:\\Program Files\\Sample Viewer", { { "viewer.exe", 10 } });
    makeFolderWithExe("C:\\Windows\\Installer", {});
    QFile f(UninstallManager::localPath("C:\\Windows\\Installer\\" + code + ".demo-uninstall"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(QString("exit=0\ndelete=C:\\Program Files\\Sample Viewer\nunregister=HKLM\\"
                    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%1\n")
                .arg(code)
                .toUtf8());
    f.close();

    UninstallManager manager;
    QSignalSpy done(&manager, &UninstallManager::refreshFinished);
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    QCOMPARE(manager.apps().size(), 1);
    QVERIFY(manager.uninstall(manager.apps().first()));
    done.clear();
    manager.refresh();
    QVERIFY(!done.isEmpty() || done.wait());
    QVERIFY(manager.apps().isEmpty());
    QVERIFY(!QFileInfo::exists(UninstallManager::localPath("C:\\Program Files\\Sample Viewer")));
}

void tst_UninstallManager::batchRunsInOrder()
{
    makeFolderWithExe("C:\\Program Files\\Tool", { { "unins000.exe", 10 } });
    QFile f(UninstallManager::localPath("C:\\Program Files\\Tool\\unins000.exe.demo-uninstall"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("exit=0\n");
    f.close();
    QList<InstalledApp> apps;
    for (const QString name : { "First", "Broken", "Third" }) {
        InstalledApp a;
        a.name = name;
        a.uninstallString = name == "Broken" ? "" : "C:\\Program Files\\Tool\\unins000.exe";
        apps << a;
    }
    UninstallManager manager;
    QSignalSpy started(&manager, &UninstallManager::uninstallStarted);
    QSignalSpy finished(&manager, &UninstallManager::uninstallFinished);
    QSignalSpy batch(&manager, &UninstallManager::batchFinished);
    manager.uninstallBatch(apps);
    QVERIFY(!batch.isEmpty() || batch.wait());
    QCOMPARE(started.size(), 3);
    QCOMPARE(started[1][0].toString(), "Broken");
    QCOMPARE(finished[1][1].toBool(), false);
    QCOMPARE(finished[2][0].toString(), "Third");
    QCOMPARE(finished[2][1].toBool(), true);
    QCOMPARE(manager.history().size(), 2);
}

QTEST_GUILESS_MAIN(tst_UninstallManager)
#include "tst_uninstallmanager.moc"
