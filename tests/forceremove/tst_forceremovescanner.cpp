#include "forceremovefixture.h"

#include <forceremove/forceremovescanner.h>

#include <platform/forwardingplatform.h>
#include <platform/registry.h>
#include <support/forwardingfilesystem.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QTest>

using platform::Hive;

namespace {

const QString Install = QStringLiteral("C:\\Program Files\\Foo App");
const QString Roaming = QStringLiteral("C:\\Users\\User\\AppData\\Roaming");
const QString Local = QStringLiteral("C:\\Users\\User\\AppData\\Local");
const QString StartupFolder = QStringLiteral("\\Microsoft\\Windows\\Start Menu\\Programs\\Startup\\");
const std::wstring Uninstall = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const std::wstring Uninstall32 = L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const std::wstring Run = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
const QString TrayCommand = QStringLiteral("\"C:\\Program Files\\Foo App\\bin\\foo.exe\" /tray /minimized /no-splash");

QString qs(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

ToolResult output(const QByteArray& bytes, bool finished = true)
{
    return ToolResult { finished, 0, bytes };
}

// A program that left a trace of every kind, and a neighbour that must not be taken for it.
void installFooApp(SandboxMachine& m, RecordedTools& tools)
{
    m.writeFile(Install + QStringLiteral("\\bin\\foo.exe"), 1000);
    m.writeFile(Install + QStringLiteral("\\bin\\helper.exe"), 500);
    m.writeFile(Install + QStringLiteral("\\data\\x.dat"), 3000);
    m.setProcesses({ QStringLiteral("10\tC:\\Program Files\\Foo App\\bin\\foo.exe"),
        QStringLiteral("11\tC:\\Windows\\explorer.exe"), QStringLiteral("12\tC:\\Other\\foo.exe") });
    m.writeFile(Roaming + QStringLiteral("\\Foo App\\s.ini"), 200);
    m.writeFile(Local + QStringLiteral("\\Acme\\c.bin"), 300);
    m.makeFolder(Local + QStringLiteral("\\FooApp\\empty\\below")); // nothing in it: not listed
    m.writeFile(QStringLiteral("C:\\ProgramData\\FooApp\\d.bin"), 400);

    auto& reg = m.registry();
    reg.setString(Hive::LocalMachine, Uninstall + L"\\FooApp", L"DisplayName", L" Foo App ");
    reg.setString(Hive::LocalMachine, Uninstall32 + L"\\{F00}", L"DisplayName", L"Foo App");
    reg.setString(Hive::CurrentUser, Uninstall + L"\\FooHelper", L"DisplayName", L"Foo App Helper");
    reg.setString(Hive::CurrentUser, Uninstall + L"\\Lower", L"DisplayName", L"foo app");
    reg.setString(Hive::LocalMachine, Run, L"FooTray", TrayCommand.toStdWString());
    reg.setString(Hive::CurrentUser, Run, L"Updater", L"C:\\Users\\User\\foo app updater.exe");
    reg.setString(Hive::CurrentUser, Run, L"Other", L"C:\\Other\\x.exe");

    m.writeFile(Roaming + StartupFolder + QStringLiteral("Foo App.lnk"), 40);
    m.writeFile(QStringLiteral("C:\\ProgramData") + StartupFolder + QStringLiteral("Acme Agent.lnk"), 30);
    m.writeFile(Roaming + StartupFolder + QStringLiteral("Other.lnk"), 20);

    tools.answer(QStringLiteral("schtasks"),
        output("\"\\Foo App Update\",\"11/24/2026 3:00:00 AM\",\"Ready\"\r\n\"\\Other\",\"N/A\",\"Ready\"\r\n"));
    m.addService(QStringLiteral("FooSvc"), QStringLiteral("\"C:\\Program Files\\Foo App\\bin\\svc.exe\" -k"),
        QStringLiteral("Foo Service"));
    m.addService(QStringLiteral("OtherSvc"), QStringLiteral("C:\\Other\\svc.exe"), QStringLiteral("Other"));
}

struct Rig {
    SandboxMachine m;
    std::shared_ptr<RecordedTools> tools = std::make_shared<RecordedTools>();
    ForceRemoveScanner scanner;
    Rig() { scanner.setToolRunner(tools); }
};

struct ScanRun {
    QList<ForceRemoveItem> items;
    qint64 total = -1;
    QList<QPair<int, QString>> progress;
};

ScanRun scan(ForceRemoveScanner& scanner, const InstalledApp& app)
{
    QSignalSpy progress(&scanner, &ForceRemoveScanner::scanProgress);
    QSignalSpy finished(&scanner, &ForceRemoveScanner::scanFinished);
    scanner.scan(app);
    ScanRun run;
    if (!arrived(finished))
        return run;
    for (const QList<QVariant>& signal : std::as_const(progress))
        run.progress.append({ signal.at(0).toInt(), signal.at(1).toString() });
    run.items = scanner.items();
    run.total = finished.at(0).at(0).toLongLong();
    return run;
}

QStringList describe(const QList<ForceRemoveItem>& items)
{
    QStringList lines;
    for (const ForceRemoveItem& i : items)
        lines.append(QStringLiteral("%1|%2|%3|%4|%5|%6")
                         .arg(int(i.kind))
                         .arg(i.path, i.label)
                         .arg(i.sizeBytes)
                         .arg(i.highRisk)
                         .arg(i.checked));
    return lines;
}

// The sandbox as a user without elevation sees it, with one folder held by a file in use: keys
// and values under HKLM cannot be opened for writing, and `lockedFolder` never goes whole.
class StubbornMachine final : public platform::ForwardingPlatform,
                              public platform::Registry,
                              public ForwardingFileSystem {
public:
    StubbornMachine(SandboxMachine& inner, QString lockedFolder)
        : ForwardingPlatform(inner.platform())
        , ForwardingFileSystem(inner.platform())
        , m_reg(inner.registry())
        , m_locked(std::move(lockedFolder))
    {
        platform::setCurrent(this);
    }
    ~StubbornMachine() override { platform::setCurrent(&inner()); }

    platform::Registry& registry() override { return *this; }
    platform::FileSystem& fileSystem() override { return *this; }

    bool keyExists(Hive hive, const std::wstring& path) const override { return m_reg.keyExists(hive, path); }
    std::optional<std::vector<std::wstring>> subKeys(
        Hive hive, const std::wstring& path, std::size_t max) const override
    {
        return m_reg.subKeys(hive, path, max);
    }
    std::optional<std::uint32_t> subKeyCount(Hive hive, const std::wstring& path) const override
    {
        return m_reg.subKeyCount(hive, path);
    }
    std::optional<std::vector<platform::EnumeratedValue>> enumValues(
        Hive hive, const std::wstring& path, std::size_t maxName, std::size_t maxData) const override
    {
        return m_reg.enumValues(hive, path, maxName, maxData);
    }
    platform::Status queryValue(Hive hive, const std::wstring& path, const std::wstring& name, std::size_t max,
        platform::RawValue& out) const override
    {
        return m_reg.queryValue(hive, path, name, max, out);
    }
    platform::Status createKey(Hive hive, const std::wstring& path) override { return m_reg.createKey(hive, path); }
    platform::Status setValue(Hive hive, const std::wstring& path, const platform::RawValue& value) override
    {
        return m_reg.setValue(hive, path, value);
    }
    platform::Status deleteTree(Hive hive, const std::wstring& path) override
    {
        return hive == Hive::LocalMachine ? platform::Status::AccessDenied : m_reg.deleteTree(hive, path);
    }
    platform::Status deleteValue(Hive hive, const std::wstring& path, const std::wstring& name) override
    {
        return hive == Hive::LocalMachine ? platform::Status::AccessDenied : m_reg.deleteValue(hive, path, name);
    }

    platform::EmptyFolderResult removeFolder(const std::wstring& folder) override
    {
        if (QString::fromStdWString(folder) != m_locked)
            return ForwardingFileSystem::removeFolder(folder);
        return { true, 1, 1, 0 }; // one entry went, one stayed
    }

private:
    platform::Registry& m_reg;
    const QString m_locked;
};

// The "[ForceRemove]" lines logged while it lives, from any thread.
class ForceRemoveLog {
public:
    ForceRemoveLog() { s_previous = qInstallMessageHandler(&ForceRemoveLog::handle); }
    ~ForceRemoveLog() { qInstallMessageHandler(s_previous); }

    QStringList lines() const
    {
        QMutexLocker locker(&s_lock);
        return s_lines;
    }
    // A line as the scanner writes it: the words, then the value as the debug stream quotes it.
    static QString line(const char* words, const QString& value)
    {
        QString text;
        QDebug(&text) << words << value;
        return text.trimmed();
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext&, const QString& message)
    {
        if (!message.startsWith(QLatin1String("[ForceRemove] ")))
            return;
        QMutexLocker locker(&s_lock);
        s_lines.append((type == QtWarningMsg ? QStringLiteral("warning ") : QString()) + message.trimmed());
    }

    static inline QMutex s_lock;
    static inline QStringList s_lines;
    static inline QtMessageHandler s_previous = nullptr;
};

} // namespace

class tst_ForceRemoveScanner : public QObject {
    Q_OBJECT

private slots:
    void findsEveryTraceInDiscoveryOrderAndEndsTheProgram()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        Rig r;
        auto& m = r.m;
        installFooApp(m, *r.tools);
        const ScanRun run = scan(r.scanner, fooApp());

        const QString roamingLocal = m.local(Roaming);
        const QString localLocal = m.local(Local);
        const QString programData = m.local(QStringLiteral("C:\\ProgramData"));
        const QString runKey = qs(Run);
        const QStringList expected = {
            QStringLiteral("0|C:\\Program Files\\Foo App|Install folder: C:\\Program Files\\Foo App|4500|0|1"),
            QStringLiteral("1|%1/Foo App|App data: .../Roaming/Foo App|200|0|1").arg(roamingLocal),
            QStringLiteral("1|%1/Acme|App data: .../Local/Acme|300|0|1").arg(localLocal),
            QStringLiteral("1|%1/FooApp|App data: .../ProgramData/FooApp|400|0|1").arg(programData),
            QStringLiteral("2|HKLM\\%1\\FooApp|Registry uninstall entry: FooApp|0|0|1").arg(qs(Uninstall)),
            QStringLiteral("2|HKLM\\%1\\{F00}|Registry uninstall entry: {F00}|0|0|1").arg(qs(Uninstall32)),
            // A machine-wide start-up value is high-risk and still checked; the user's is not high-risk.
            QStringLiteral("3|HKLM\\%1\\FooTray|Startup registry: FooTray → %2|0|1|1")
                .arg(runKey, TrayCommand.left(60)),
            QStringLiteral("3|HKCU\\%1\\Updater|Startup registry: Updater → C:\\Users\\User\\foo app updater.exe|0|0|1")
                .arg(runKey),
            QStringLiteral(
                "4|%1/Microsoft/Windows/Start Menu/Programs/Startup/Foo App.lnk|Startup shortcut: Foo App.lnk|40|0|1")
                .arg(roamingLocal),
            QStringLiteral("4|%1/Microsoft/Windows/Start Menu/Programs/Startup/Acme Agent.lnk|Startup shortcut: Acme "
                           "Agent.lnk|30|0|1")
                .arg(programData),
            QStringLiteral("5|\\Foo App Update|Scheduled task: \\Foo App Update|0|1|0"),
            QStringLiteral("6|FooSvc|Windows service: Foo Service (FooSvc)|0|1|0"),
        };
        QCOMPARE(describe(run.items), expected);
        QCOMPARE(run.total, 4500 + 200 + 300 + 400 + 40 + 30);

        const QList<QPair<int, QString>> steps = {
            { 5, QStringLiteral("Killing processes...") },
            { 15, QStringLiteral("Scanning install directory...") },
            { 35, QStringLiteral("Scanning app data...") },
            { 55, QStringLiteral("Scanning registry...") },
            { 70, QStringLiteral("Scanning startup items...") },
            { 82, QStringLiteral("Scanning scheduled tasks...") },
            { 92, QStringLiteral("Scanning services...") },
            { 100, QStringLiteral("Done") },
        };
        QCOMPARE(run.progress, steps);

        // The process running from the folder ended; every image name in it went to taskkill.
        QCOMPARE(m.processes(),
            QStringList({ QStringLiteral("11\tC:\\Windows\\explorer.exe"), QStringLiteral("12\tC:\\Other\\foo.exe") }));
        QStringList killed;
        for (const QStringList& call : r.tools->calls())
            killed.append(call.join(QLatin1Char(' ')));
        killed.sort();
        QCOMPARE(killed.filter(QStringLiteral("taskkill")),
            QStringList({ QStringLiteral("taskkill /F /IM foo.exe"), QStringLiteral("taskkill /F /IM helper.exe") }));
        QVERIFY(r.tools->calls().contains(QStringList({ QStringLiteral("schtasks"), QStringLiteral("/query"),
            QStringLiteral("/fo"), QStringLiteral("CSV"), QStringLiteral("/nh") })));
    }

    void removesWhatIsChosenAndCountsWhatIsFreed()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        Rig r;
        auto& m = r.m;
        auto& scanner = r.scanner;
        installFooApp(m, *r.tools);
        // A link inside the install folder goes as a link; what it points to stays.
        QTemporaryDir outside;
        for (const char* name : { "/keep.doc", "/other.exe" }) {
            QFile file(outside.path() + QLatin1String(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("precious") == 8);
        }
        QVERIFY(QFile::link(outside.path(), m.local(Install + QStringLiteral("\\bin\\outside"))));
        m.setProcesses({});

        QCOMPARE(scan(scanner, fooApp()).items.size(), 12);
        for (const QStringList& call : r.tools->calls())
            QVERIFY2(!call.contains(QStringLiteral("other.exe")), "taskkill followed the link");

        QSignalSpy progress(&scanner, &ForceRemoveScanner::executeProgress);
        QSignalSpy finished(&scanner, &ForceRemoveScanner::executeFinished);
        scanner.execute({ 0, 99, 1, -1, 4, 6, 7, 8, 10, 11 });
        QVERIFY(arrived(finished));
        QCOMPARE(finished.at(0).at(0).toLongLong(), 4500 + 200 + 40);

        // Positions out of range are skipped without a signal, and the percentages keep counting them.
        QList<int> percents;
        for (const QList<QVariant>& signal : std::as_const(progress))
            percents.append(signal.at(0).toInt());
        QCOMPARE(percents, QList<int>({ 0, 10, 20, 30, 40, 50, 50, 60, 60, 70, 70, 80, 80, 90, 90, 100 }));
        QCOMPARE(
            progress.at(0).at(1).toString(), QStringLiteral("Removing: Install folder: C:\\Program Files\\Foo App"));
        QCOMPARE(progress.at(1).at(1).toString(), QStringLiteral("Done: Install folder: C:\\Program Files\\Foo App"));

        QVERIFY(!QFileInfo::exists(m.local(Install)));
        QVERIFY(QFile::exists(outside.path() + QStringLiteral("/keep.doc")));
        QVERIFY(!QFileInfo::exists(m.local(Roaming + QStringLiteral("\\Foo App"))));
        QVERIFY(QFileInfo::exists(m.local(Local + QStringLiteral("\\Acme\\c.bin")))); // not chosen
        auto& reg = m.registry();
        QVERIFY(!reg.keyExists(Hive::LocalMachine, Uninstall + L"\\FooApp"));
        QVERIFY(reg.keyExists(Hive::LocalMachine, Uninstall32 + L"\\{F00}"));
        QVERIFY(!reg.readString(Hive::LocalMachine, Run, L"FooTray"));
        QVERIFY(!reg.readString(Hive::CurrentUser, Run, L"Updater"));
        QVERIFY(reg.readString(Hive::CurrentUser, Run, L"Other"));
        QVERIFY(reg.keyExists(Hive::LocalMachine, Run));
        QVERIFY(!QFileInfo::exists(m.local(Roaming + StartupFolder + QStringLiteral("Foo App.lnk"))));
        QVERIFY(QFileInfo::exists(m.local(Roaming + StartupFolder + QStringLiteral("Other.lnk"))));

        const QList<QStringList> calls = r.tools->calls();
        const QList<QStringList> removals(calls.end() - 3, calls.end());
        QCOMPARE(removals,
            QList<QStringList>({ { QStringLiteral("schtasks"), QStringLiteral("/delete"), QStringLiteral("/tn"),
                                     QStringLiteral("\\Foo App Update"), QStringLiteral("/f") },
                { QStringLiteral("sc"), QStringLiteral("stop"), QStringLiteral("FooSvc") },
                { QStringLiteral("sc"), QStringLiteral("delete"), QStringLiteral("FooSvc") } }));
    }

    // Each removal is logged as it came out: a folder already gone counts as removed, a folder
    // that stayed in part as failed (and frees nothing), and a key that could not be opened for
    // writing is not reported as deleted.
    void removalOutcomesAreLoggedAsTheyCameOut()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        Rig r;
        auto& m = r.m;
        auto& scanner = r.scanner;
        m.writeFile(Install + QStringLiteral("\\foo.dll"), 700);
        m.writeFile(Roaming + QStringLiteral("\\Foo App\\s.ini"), 200);
        m.writeFile(Local + QStringLiteral("\\Foo App\\c.bin"), 300);
        m.registry().setString(Hive::LocalMachine, Uninstall + L"\\FooApp", L"DisplayName", L"Foo App");
        m.registry().setString(Hive::CurrentUser, Uninstall + L"\\FooUser", L"DisplayName", L"Foo App");
        m.registry().setString(Hive::LocalMachine, Run, L"FooTray", TrayCommand.toStdWString());
        StubbornMachine stubborn(m, m.local(Install));
        const ScanRun run = scan(scanner, fooApp());
        QCOMPARE(run.items.size(), 6);
        const QString localFolder = m.local(Local) + QStringLiteral("/Foo App");
        QCOMPARE(run.items.at(2).path, localFolder);
        QVERIFY(QDir(localFolder).removeRecursively()); // removed by someone else after the scan

        const QStringList expected = {
            QStringLiteral("warning ") + ForceRemoveLog::line("[ForceRemove] Failed dir:", Install),
            ForceRemoveLog::line("[ForceRemove] Removed dir:", run.items.at(1).path),
            ForceRemoveLog::line("[ForceRemove] Removed dir:", localFolder),
            ForceRemoveLog::line("[ForceRemove] Deleted reg:", QStringLiteral("HKCU\\") + qs(Uninstall) + "\\FooUser"),
            QStringLiteral("[ForceRemove] Execute done, freed: 0 MB"),
        };
        QSignalSpy finished(&scanner, &ForceRemoveScanner::executeFinished);
        {
            ForceRemoveLog log;
            scanner.execute({ 0, 1, 2, 3, 4, 5 });
            QVERIFY(arrived(finished));
            QTRY_COMPARE(log.lines(), expected); // the last line follows the signal
        }
        QCOMPARE(finished.at(0).at(0).toLongLong(), 200);
        QVERIFY(m.registry().keyExists(Hive::LocalMachine, Uninstall + L"\\FooApp"));
        QVERIFY(!m.registry().keyExists(Hive::CurrentUser, Uninstall + L"\\FooUser"));
        QVERIFY(QFileInfo::exists(m.local(Install)));
    }

    void scheduledTasksFromRecordedListings_data()
    {
        QTest::addColumn<QByteArray>("listing");
        QTest::addColumn<bool>("finished");
        QTest::addColumn<QStringList>("tasks");
        QTest::newRow("the name in the task column") << QByteArray("\"\\Foo App Nightly\",\"N/A\",\"Ready\"\n") << true
                                                     << QStringList { QStringLiteral("\\Foo App Nightly") };
        QTest::newRow("the install folder in another column")
            << QByteArray("\"\\Vendor\\Sync\",\"N/A\",\"C:\\Program Files\\Foo App\\sync.exe\"\n") << true
            << QStringList { QStringLiteral("\\Vendor\\Sync") };
        QTest::newRow("quoted name with a comma, in any case")
            << QByteArray("\"\\Acme, Inc\\FOO APP Sync\",\"N/A\",\"Ready\"\r\n") << true
            << QStringList { QStringLiteral("\\Acme, Inc\\FOO APP Sync") };
        QTest::newRow("a task listed twice gives two targets") << QByteArray(
            "\"\\FooApp\",\"N/A\",\"Ready\"\n\n\"\\Foo App\",\"N/A\",\"Ready\"\n\"\\Foo App\",\"Later\",\"Ready\"\n")
                                                               << true
                                                               << QStringList { QStringLiteral("\\Foo App"),
                                                                      QStringLiteral("\\Foo App") };
        QTest::newRow("an empty name field is no task")
            << QByteArray("\"\",\"Foo App\",\"Ready\"\n") << true << QStringList {};
        QTest::newRow("schtasks that did not finish")
            << QByteArray("\"\\Foo App\",\"N/A\",\"Ready\"\n") << false << QStringList {};
    }
    void scheduledTasksFromRecordedListings()
    {
        QFETCH(QByteArray, listing);
        QFETCH(bool, finished);
        QFETCH(QStringList, tasks);
        Rig r;
        r.tools->answer(QStringLiteral("schtasks"), output(listing, finished));
        QStringList found;
        for (const ForceRemoveItem& item : scan(r.scanner, fooApp()).items) {
            QCOMPARE(item.kind, ForceRemoveKind::ScheduledTask);
            QVERIFY(item.highRisk && !item.checked);
            found.append(item.path);
        }
        QCOMPARE(found, tasks);
    }

    // The install location is refused in every spelling of a system or user folder, and then
    // nothing is done in its name: no process ends, no folder, no service, no start-up value.
    void protectedInstallLocations_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("refused");
        QTest::newRow("drive root") << QStringLiteral("C:\\") << true;
        QTest::newRow("Windows") << QStringLiteral("C:\\Windows") << true;
        QTest::newRow("inside Windows") << QStringLiteral("C:\\Windows\\System32") << true;
        QTest::newRow("Program Files, other spelling") << QStringLiteral("c:/program files//") << true;
        QTest::newRow("a program's parent by dots") << QStringLiteral("C:\\Program Files\\Foo App\\..") << true;
        QTest::newRow("ProgramData") << QStringLiteral("C:\\ProgramData\\.") << true;
        QTest::newRow("the profile") << QStringLiteral("C:\\Users\\User") << true;
        QTest::newRow("Roaming") << QStringLiteral("C:\\Users\\User\\AppData\\Roaming\\") << true;
        QTest::newRow("Documents") << QStringLiteral("C:\\Users\\User\\Documents") << true;
        QTest::newRow("relative") << QStringLiteral("Foo App") << true;
        QTest::newRow("no location at all") << QString() << false;
    }
    void protectedInstallLocations()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        QFETCH(QString, location);
        QFETCH(bool, refused);
        Rig r;
        auto& m = r.m;
        const QStringList processes = { QStringLiteral("20\tC:\\Windows\\explorer.exe"),
            QStringLiteral("21\tC:\\Program Files\\Other\\o.exe"),
            QStringLiteral("22\tC:\\Users\\User\\AppData\\Roaming\\r.exe"),
            QStringLiteral("23\tC:\\ProgramData\\p.exe"), QStringLiteral("24\tC:\\Users\\User\\Documents\\d.exe") };
        m.setProcesses(processes);
        for (const QString& exe :
            { QStringLiteral("C:\\Windows\\System32\\svchost.exe"), QStringLiteral("C:\\Program Files\\Other\\o.exe"),
                QStringLiteral("C:\\Users\\User\\Documents\\d.exe") })
            m.writeFile(exe, 10);
        m.addService(QStringLiteral("WinSvc"), QStringLiteral("C:\\Windows\\System32\\svchost.exe -k netsvcs"));
        m.registry().setString(Hive::CurrentUser, Run, L"Shell", L"C:\\Windows\\explorer.exe");
        m.registry().setString(Hive::CurrentUser, Uninstall + L"\\Zed", L"DisplayName", L"Zed Tool");

        InstalledApp app;
        app.name = QStringLiteral("Zed Tool");
        app.installLocation = location;
        const ScanRun run = scan(r.scanner, app);

        QCOMPARE(r.scanner.installLocationRefused(), refused);
        QCOMPARE(m.processes(), processes);
        for (const QStringList& call : r.tools->calls())
            QCOMPARE(call.first(), QStringLiteral("schtasks"));
        // Only the entry found by the program's name.
        QCOMPARE(describe(run.items),
            QStringList { QStringLiteral("2|HKCU\\%1\\Zed|Registry uninstall entry: Zed|0|0|1").arg(qs(Uninstall)) });
    }

    void theSameFolderIsListedOnceHoweverItIsReached()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        Rig r;
        auto& m = r.m;
        // Two candidates that differ only in case, and the install folder among the app data.
        m.writeFile(Roaming + QStringLiteral("\\acme\\a.bin"), 10);
        m.writeFile(Roaming + QStringLiteral("\\Acme\\b.bin"), 20);
        m.writeFile(Local + QStringLiteral("\\Acme\\c.bin"), 30);
        InstalledApp app;
        app.name = QStringLiteral("acme");
        app.publisher = QStringLiteral("Acme Corp");
        app.installLocation = Roaming + QStringLiteral("\\acme\\");
        QStringList paths;
        for (const ForceRemoveItem& item : scan(r.scanner, app).items)
            paths.append(item.path);
        QCOMPARE(paths, QStringList({ app.installLocation, m.local(Local) + QStringLiteral("/Acme") }));
    }

    void cancelStopsAtTheNextCheckAndNothingFollows()
    {
        NORVALE_SANDBOX_ONLY("lays out and removes traces of a program on a machine of its own");
        SandboxMachine m;
        auto tools = std::make_shared<RecordedTools>();
        tools->blockMs = 400; // schtasks is slow to answer
        tools->answer(QStringLiteral("schtasks"), output("\"\\Foo App\",\"N/A\",\"Ready\"\n"));
        m.addService(QStringLiteral("FooSvc"), QStringLiteral("C:\\Program Files\\Foo App\\svc.exe"));
        auto* scanner = new ForceRemoveScanner;
        scanner->setToolRunner(tools);
        QSignalSpy progress(scanner, &ForceRemoveScanner::scanProgress);
        QSignalSpy finished(scanner, &ForceRemoveScanner::scanFinished);
        scanner->scan(fooApp());
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty() && progress.last().at(0).toInt() == 82, 5000);
        scanner->cancel();
        QTest::qWait(800);
        QCOMPARE(progress.last().at(0).toInt(), 82);
        QVERIFY(finished.isEmpty());

        // Destroyed while a step runs: the job finds it gone and emits nothing through it.
        progress.clear();
        scanner->scan(fooApp());
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty() && progress.last().at(0).toInt() == 82, 5000);
        delete scanner;
        QTest::qWait(800);
    }
};

QTEST_MAIN(tst_ForceRemoveScanner)
#include "tst_forceremovescanner.moc"
