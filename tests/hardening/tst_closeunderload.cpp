// Closing a page or dialog while its worker runs on a large tree, and quitting the program then.
//
// Each row runs this program again as a child ("--child <case> <close|quit>") against a sandbox
// in a temporary folder: the child builds the tree, starts the work, says whether the work was
// still under way and then closes the window (or quits). The parent measures from that moment to
// the child's exit, so the process's real shutdown is timed, pool threads and all. A crash, an
// abort ("destroyed while thread is still running") or a sanitizer report fails the row through
// the child's exit status.

#include "browserext/browserextpage.h"
#include "browserext/browserextrow.h"
#include "browserext/browserextscanner.h"
#include "browserext/browsergroupwidget.h"
#include "cleanup/cleanuppage.h"
#include "cleanup/cleanupscanner.h"
#include "forceremove/forceremovedialog.h"
#include "forceremove/forceremovescanner.h"
#include "platform/environment.h"
#include "platform/platform.h"
#include "residue/residuedialog.h"
#include "residue/residuescanner.h"
#include "uninstall/uninstallmanager.h"
#include "uninstall/uninstallpage.h"
#include "winapps/processrunner.h"
#include "winapps/winappscanner.h"
#include "winapps/winappspage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFutureWatcherBase>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <cstdio>
#include <functional>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 ExitBoundMs = 2000; // how long a user waits for a closed program to be gone
constexpr int ChildTimeoutMs = 240000; // building the trees under a sanitizer is slow
constexpr int CloseAfterMs = 5; // the work has begun; a large tree keeps it busy for far longer
constexpr int ExtraDrainMs = 300; // queued signals to the closed window get their chance to land

// ---- the child -----------------------------------------------------------------------------

QString machine(const wchar_t* windowsPath)
{
    return QString::fromStdWString(platform::current().environment().mapPath(windowsPath));
}

QString variable(const wchar_t* name)
{
    return QString::fromStdWString(platform::current().environment().variable(name).value_or(std::wstring()));
}

// `folders` folders of `files` files each, sparse, so sizes count without the disk being written;
// plain system calls, as this is most of the child's time.
void fill(const QString& root, int folders, int files, off_t bytes = 8192)
{
    for (int f = 0; f < folders; ++f) {
        const QString folder = QStringLiteral("%1/part%2").arg(root).arg(f);
        QDir().mkpath(folder);
        const QByteArray base = QFile::encodeName(folder);
        for (int i = 0; i < files; ++i) {
            const QByteArray path = base + "/file" + QByteArray::number(i) + ".tmp";
            const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (fd >= 0) {
                (void)!::ftruncate(fd, bytes);
                ::close(fd);
            }
        }
    }
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

// PowerShell and winget take their time on a real machine; here each call takes a little.
class SlowRunner final : public ProcessRunner {
public:
    ProcessOutcome run(const QString&, const QStringList&, int) override
    {
        QThread::msleep(20);
        return { 1, {}, QByteArrayLiteral("not removed") };
    }
};

// Says yes to every question, so a confirmation never stops the run.
void answerEveryBox(QObject* parent)
{
    auto* timer = new QTimer(parent);
    QObject::connect(timer, &QTimer::timeout, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        if (QAbstractButton* yes = box->button(QMessageBox::Yes))
            yes->click();
        else
            box->accept();
    });
    timer->start(10);
}

// One window, its work started, and whether that work is still going.
struct Run {
    // Guarded: the force-remove dialog deletes itself when it closes, and quitting closes it.
    QPointer<QWidget> window;

    ~Run() { delete window.data(); }
    std::function<bool()> busy;
};

// The closing is armed by calling `begin` once the work to interrupt has been started.
using Start = std::function<void(Run& run, const std::function<void()>& begin)>;

// A flag a worker raises from its own thread as it finishes.
std::shared_ptr<std::atomic_bool> finishedFlag()
{
    return std::make_shared<std::atomic_bool>(false);
}

void startCleanup(Run& run, const std::function<void()>& begin, bool clean)
{
    fill(machine(L"C:/Windows/Temp"), 40, 250);
    fill(machine(L"C:/Windows.old"), 60, 250);
    auto* page = new CleanupPage;
    run.window = page;
    CleanupScanner* scanner = page->scanner();
    auto done = finishedFlag();
    run.busy = [done] { return !done->load(); };
    if (!clean) {
        QObject::connect(
            scanner, &CleanupScanner::scanFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
        QObject::connect(scanner, &CleanupScanner::scanProgress, page, begin);
        return; // the page scans by itself
    }
    QObject::connect(
        scanner, &CleanupScanner::cleanFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
    auto started = std::make_shared<bool>(false);
    QObject::connect(scanner, &CleanupScanner::scanFinished, page, [scanner, begin, started] {
        if (std::exchange(*started, true))
            return;
        scanner->clean({ 0, 10 }); // the temp folders, then the old system
        begin();
    });
}

void startUninstall(Run& run, const std::function<void()>& begin)
{
    QByteArray reg = "Windows Registry Editor Version 5.00\r\n\r\n";
    for (int i = 0; i < 6000; ++i) {
        const QByteArray n = QByteArray::number(i);
        reg += "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Bulk" + n + "]\r\n"
            + "\"DisplayName\"=\"Bulk Program " + n + "\"\r\n\"Publisher\"=\"Bulk Inc.\"\r\n"
            + "\"InstallLocation\"=\"C:\\\\Program Files\\\\Bulk" + n + "\"\r\n"
            + "\"UninstallString\"=\"C:\\\\Program Files\\\\Bulk" + n + "\\\\uninstall.exe\"\r\n"
            + "\"EstimatedSize\"=dword:00001000\r\n\r\n";
    }
    // Written before the platform is first used: the sandbox reads its registry once, at the start.
    writeFile(qEnvironmentVariable("NORVALE_SANDBOX") + QStringLiteral("/registry.reg"), reg);
    auto* page = new UninstallPage;
    run.window = page;
    UninstallManager* manager = page->manager();
    auto done = finishedFlag();
    QObject::connect(
        manager, &UninstallManager::refreshFinished, manager, [done] { *done = true; }, Qt::DirectConnection);
    run.busy = [done] { return !done->load(); };
    page->startFirstLoad();
    begin();
}

void startResidue(Run& run, const std::function<void()>& begin, bool clean)
{
    for (int i = 0; i < 50; ++i) {
        fill(variable(L"APPDATA") + QStringLiteral("/Gone Vendor %1").arg(i), 2, 100);
        fill(machine(L"C:/ProgramData") + QStringLiteral("/Left Behind %1").arg(i), 2, 100);
    }
    auto* dialog = new ResidueDialog(QList<InstalledApp>());
    run.window = dialog;
    ResidueScanner* scanner = dialog->scanner();
    auto done = finishedFlag();
    run.busy = [done] { return !done->load(); };
    if (!clean) {
        QObject::connect(
            scanner, &ResidueScanner::scanFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
        QObject::connect(scanner, &ResidueScanner::scanProgress, dialog, begin);
    } else {
        QObject::connect(
            scanner, &ResidueScanner::cleanFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
        QObject::connect(scanner, &ResidueScanner::scanFinished, dialog, [scanner, begin] {
            QList<int> all;
            for (int i = 0; i < scanner->results().size(); ++i)
                all.append(i);
            scanner->clean(all);
            begin();
        });
    }
    dialog->show();
}

void startForceRemove(Run& run, const std::function<void()>& begin, bool removal)
{
    // Spread over three targets: the one being deleted at the close is finished, not cut short.
    fill(machine(L"C:/Program Files/Bulk App"), 60, 150);
    fill(variable(L"APPDATA") + QStringLiteral("/Bulk App"), 40, 150);
    fill(variable(L"LOCALAPPDATA") + QStringLiteral("/Bulk App"), 40, 150);
    InstalledApp app;
    app.name = QStringLiteral("Bulk App");
    app.publisher = QStringLiteral("Bulk Inc.");
    app.installLocation = QStringLiteral("C:\\Program Files\\Bulk App");
    auto* dialog = new ForceRemoveDialog(app);
    run.window = dialog;
    ForceRemoveScanner* scanner = dialog->scanner();
    auto done = finishedFlag();
    run.busy = [done] { return !done->load(); };
    if (!removal) {
        QObject::connect(
            scanner, &ForceRemoveScanner::scanFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
        QObject::connect(scanner, &ForceRemoveScanner::scanProgress, dialog, begin);
    } else {
        QObject::connect(
            scanner, &ForceRemoveScanner::executeFinished, scanner, [done] { *done = true; }, Qt::DirectConnection);
        QObject::connect(scanner, &ForceRemoveScanner::scanFinished, dialog, [dialog, begin] {
            dialog->onExecuteClicked();
            begin();
        });
    }
    dialog->show();
}

void startWinApps(Run& run, const std::function<void()>& begin, bool removal)
{
    QByteArray catalogue;
    for (int i = 0; i < 150; ++i) {
        const QByteArray name = "Bulk.App" + QByteArray::number(i);
        const QByteArray full = name + "_1.0.0.0_x64__bulk";
        catalogue += "[package]\nname=" + name + "\nfullName=" + full + "\nfamilyName=" + name
            + "_bulk\npublisherId=bulk\nversion=1.0.0.0\nlocation=C:\\Program Files\\WindowsApps\\" + full
            + "\ndisplayName=Bulk App " + QByteArray::number(i)
            + "\npublisherDisplayName=Bulk Inc.\nsignature=store\n\n";
        fill(machine(L"C:/Program Files/WindowsApps/") + QString::fromLatin1(full), 2, 60);
    }
    writeFile(qEnvironmentVariable("NORVALE_SANDBOX") + QStringLiteral("/packages.txt"), catalogue);
    auto* page = new WinAppsPage;
    run.window = page;
    if (!removal) {
        page->startScan();
        auto* scanner = page->findChild<WinAppScanner*>();
        const QPointer<WinAppScanner> guard(scanner);
        run.busy = [guard] { return guard && guard->isRunning(); };
        begin();
        return;
    }
    auto* watcher = page->findChild<QFutureWatcherBase*>();
    run.busy = [watcher] { return !watcher->isFinished(); };
    page->setProcessRunner(std::make_shared<SlowRunner>());
    page->startScan();
    QObject::connect(
        page->findChild<WinAppScanner*>(), &WinAppScanner::scanDone, page, [page, begin](const QList<WinApp>& apps) {
            page->removeApps(apps);
            begin();
        });
}

void startBrowserExt(Run& run, const std::function<void()>& begin, bool removal)
{
    const QString extensions
        = variable(L"LOCALAPPDATA") + QStringLiteral("/Google/Chrome/User Data/Default/Extensions");
    const int count = removal ? 20 : 1500;
    for (int i = 0; i < count; ++i) {
        // Extension ids are 32 letters a to p.
        QString id(32, QLatin1Char('a'));
        for (int k = 0, v = i; k < 4; ++k, v /= 16)
            id[31 - k] = QLatin1Char(char('a' + v % 16));
        const QString version = extensions + QLatin1Char('/') + id + QStringLiteral("/1.0_0");
        writeFile(version + QStringLiteral("/manifest.json"),
            QByteArrayLiteral("{\"name\":\"Bulk Extension ") + QByteArray::number(i) + "\",\"version\":\"1.0\"}");
        if (removal)
            fill(version + QStringLiteral("/assets"), 10, 100);
    }
    auto* page = new BrowserExtPage;
    run.window = page;
    page->setProgramStarter([](const QString&, const QStringList&) { return false; });
    page->setUrlOpener([](const QUrl&) { return false; });
    page->show();
    page->startScan();
    if (!removal) {
        const QPointer<QThread> scanner(page->findChild<QThread*>());
        run.busy = [scanner] { return scanner && scanner->isRunning(); };
        begin();
        return;
    }
    run.busy = [page] {
        const auto watchers = page->findChildren<QFutureWatcherBase*>();
        return std::any_of(watchers.begin(), watchers.end(), [](QFutureWatcherBase* w) { return !w->isFinished(); });
    };
    answerEveryBox(page);
    auto* scanner = page->findChild<QThread*>();
    auto started = std::make_shared<bool>(false);
    QObject::connect(
        qobject_cast<BrowserExtScanner*>(scanner), &BrowserExtScanner::scanDone, page, [page, begin, started] {
            if (std::exchange(*started, true))
                return;
            for (BrowserGroupWidget* group : page->groups()) {
                for (BrowserExtRow* row : group->rows())
                    row->setSelected(true);
            }
            // Returns once the confirmation is answered and the batch runs; a page cannot go
            // while its own question is open.
            page->onRemoveSelected();
            begin();
        });
}

Start startFor(const QString& name)
{
    using namespace std::placeholders;
    if (name == QLatin1String("cleanup-scan"))
        return std::bind(startCleanup, _1, _2, false);
    if (name == QLatin1String("cleanup-clean"))
        return std::bind(startCleanup, _1, _2, true);
    if (name == QLatin1String("uninstall-inventory"))
        return startUninstall;
    if (name == QLatin1String("residue-scan"))
        return std::bind(startResidue, _1, _2, false);
    if (name == QLatin1String("residue-clean"))
        return std::bind(startResidue, _1, _2, true);
    if (name == QLatin1String("forceremove-scan"))
        return std::bind(startForceRemove, _1, _2, false);
    if (name == QLatin1String("forceremove-removal"))
        return std::bind(startForceRemove, _1, _2, true);
    if (name == QLatin1String("winapps-scan"))
        return std::bind(startWinApps, _1, _2, false);
    if (name == QLatin1String("winapps-removal"))
        return std::bind(startWinApps, _1, _2, true);
    if (name == QLatin1String("browserext-scan"))
        return std::bind(startBrowserExt, _1, _2, false);
    if (name == QLatin1String("browserext-removal"))
        return std::bind(startBrowserExt, _1, _2, true);
    return {};
}

// Qt's complaints about objects used across threads or after their end; any of them fails the row.
std::atomic_int threadComplaints { 0 };
QtMessageHandler defaultHandler = nullptr;

void watchForComplaints(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static const char* const complaints[] = { "QObject::", "QThread", "QBasicTimer", "QSocketNotifier", "QTimer" };
    if (type != QtDebugMsg && type != QtInfoMsg) {
        for (const char* complaint : complaints) {
            if (message.startsWith(QLatin1String(complaint)))
                ++threadComplaints;
        }
    }
    if (defaultHandler)
        defaultHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void say(const char* line)
{
    std::fputs(line, stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

int runChild(QApplication& app, const QString& name, bool quit)
{
    const Start start = startFor(name);
    if (!start)
        return 2;
    // The drain after a close must run even when the closed window was the only one shown.
    app.setQuitOnLastWindowClosed(false);
    // Before any worker thread exists: the handler is read from every thread that logs.
    defaultHandler = qInstallMessageHandler(watchForComplaints);
    Run run;
    bool armed = false;
    const auto close = [&run, &app, quit] {
        say(run.busy() ? "@@busy" : "@@idle");
        say("@@closing");
        if (quit) {
            app.quit();
            return; // the window goes as main() unwinds, after the loop, as in the program
        }
        run.window->close();
        delete run.window.data();
        QTimer::singleShot(ExtraDrainMs, &app, &QApplication::quit);
    };
    start(run, [&armed, close] {
        if (!std::exchange(armed, true))
            QTimer::singleShot(CloseAfterMs, close);
    });
    say("@@started");
    const int status = app.exec();
    delete run.window.data();
    return status == 0 && threadComplaints == 0 ? 0 : 3;
}

} // namespace

// ---- the parent ----------------------------------------------------------------------------

class tst_CloseUnderLoad : public QObject {
    Q_OBJECT

private slots:
    void closeWhileWorking_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("quit");
        for (const char* name : { "cleanup-scan", "cleanup-clean", "uninstall-inventory", "residue-scan",
                 "residue-clean", "forceremove-scan", "forceremove-removal", "winapps-scan", "winapps-removal",
                 "browserext-scan", "browserext-removal" })
            QTest::newRow(name) << QString::fromLatin1(name) << false;
        // The program quits instead: whatever the pool still runs delays the exit.
        for (const char* name : { "cleanup-clean", "forceremove-removal", "winapps-removal", "browserext-removal" })
            QTest::addRow("%s, program quits", name) << QString::fromLatin1(name) << true;
    }

    void closeWhileWorking()
    {
        QFETCH(QString, name);
        QFETCH(bool, quit);
        // Memory-backed where there is one: tens of thousands of files per row are made and removed.
        const QString shm = QStringLiteral("/dev/shm");
        QTemporaryDir dir(
            (QFileInfo(shm).isWritable() ? shm : QDir::tempPath()) + QStringLiteral("/norvale-load-XXXXXX"));
        QVERIFY(dir.isValid());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("NORVALE_SANDBOX"), dir.filePath(QStringLiteral("machine")));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_DATA_HOME"), dir.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess child;
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(),
            { QStringLiteral("--child"), name, quit ? QStringLiteral("quit") : QStringLiteral("close") });
        QVERIFY2(child.waitForStarted(), qPrintable(child.errorString()));

        // The clock starts when the child announces the close; its output is line-buffered.
        QByteArray output;
        QElapsedTimer sinceClose;
        QElapsedTimer overall;
        overall.start();
        while (!sinceClose.isValid() && child.state() == QProcess::Running && overall.elapsed() < ChildTimeoutMs) {
            child.waitForReadyRead(100);
            output += child.readAllStandardOutput();
            if (output.contains("@@closing"))
                sinceClose.start();
        }
        // waitForFinished() answers false for a child that already ended while its output was read.
        const bool ended = child.state() == QProcess::NotRunning || child.waitForFinished(ChildTimeoutMs);
        const qint64 exitMs = sinceClose.isValid() ? sinceClose.elapsed() : -1;
        output += child.readAllStandardOutput();
        const QByteArray errors = child.readAllStandardError();
        if (!ended)
            child.kill();
        const QByteArray report = "child output:\n" + output + "\nchild errors (last part):\n" + errors.right(4000);

        QVERIFY2(ended, report.constData());
        QVERIFY2(output.contains("@@closing"), report.constData());
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, report.constData());
        // A worker done before the close tested nothing: the tree is too small for this machine.
        QVERIFY2(output.contains("@@busy"), report.constData());
        qInfo("%s: the process was gone %lld ms after the close", qPrintable(name), exitMs);
        QVERIFY2(exitMs <= ExitBoundMs, qPrintable(QStringLiteral("%1 ms after the close").arg(exitMs)));
    }
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--child") == 0)
        return runChild(app, QString::fromLocal8Bit(argv[2]), qstrcmp(argv[3], "quit") == 0);
    tst_CloseUnderLoad test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_closeunderload.moc"
