#include "forceremovescanner.h"

#include "toolrunner.h"

#include "platform/environment.h"
#include "platform/filesystem.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/services.h"
#include "platform/tracerules.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QPointer>
#include <QSet>
#include <QThread>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <atomic>

// What the jobs share with the scanner. The lock is held while a job emits and while the scanner
// is being destroyed, so a job never emits through a scanner that is going away.
struct ForceRemoveScanner::Shared {
    std::atomic_int cancel { 0 };
    QMutex lock;
    bool alive = true;
    QList<ForceRemoveItem> items;
};

namespace {

using platform::Hive;
namespace traces = platform::traces;

constexpr int KillSettleMs = 300; // lets ended processes release their files before the walk
constexpr int TaskQueryTimeoutMs = 5000;
constexpr int ToolTimeoutMs = 30000; // taskkill or sc that hangs is given up, not waited on forever
constexpr int ServiceStopSettleMs = 1000; // a stopping service holds its key until it has stopped
constexpr std::size_t SubkeyNameChars = 256;
constexpr std::size_t DisplayNameBytes = 2048;
constexpr std::size_t RunValueNameChars = 512;
constexpr std::size_t RunValueDataBytes = 4096;
constexpr int StartupLabelDataChars = 60;
constexpr int MaxImageDepth = 64; // deeper trees are not an install folder's own
constexpr qint64 MiB = 1024 * 1024;

const wchar_t* const UninstallPaths[] = {
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
    L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
};
const wchar_t* const RunPaths[] = {
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run",
};
const std::pair<Hive, const char*> Roots[] = { { Hive::LocalMachine, "HKLM" }, { Hive::CurrentUser, "HKCU" } };

QString qs(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

std::wstring ws(const QString& text)
{
    return text.toStdWString();
}

platform::Platform& machine()
{
    return platform::current();
}

// A folder as this machine reaches it: the sandbox maps "C:\..." into its own tree.
QString localPath(const QString& windowsPath)
{
    return QDir::fromNativeSeparators(qs(machine().environment().mapPath(ws(windowsPath))));
}

qint64 folderSize(const QString& folder)
{
    return machine().fileSystem().folderSize(ws(folder));
}

class Job {
public:
    Job(QPointer<ForceRemoveScanner> self, std::shared_ptr<ForceRemoveScanner::Shared> shared,
        std::shared_ptr<ToolRunner> runner)
        : m_self(std::move(self))
        , m_shared(std::move(shared))
        , m_runner(std::move(runner))
    {
    }

protected:
    // The flag first: the scanner's destructor raises it before anything else goes away.
    bool live() const { return m_shared->cancel.load() == 0 && m_self; }

    // Emits through the scanner while it is live; with `evenCancelled`, also after a cancel as
    // long as the scanner itself still exists.
    template <typename Emit> bool emitIfLive(Emit emitSignal, bool evenCancelled = false)
    {
        QMutexLocker locker(&m_shared->lock);
        if (!m_shared->alive || !m_self || (!evenCancelled && m_shared->cancel.load() != 0))
            return false;
        emitSignal(m_self.data());
        return true;
    }

    void runTool(const QString& program, const QStringList& arguments)
    {
        m_runner->run(program, arguments, ToolTimeoutMs); // the outcome is not acted on
    }

    QPointer<ForceRemoveScanner> m_self;
    std::shared_ptr<ForceRemoveScanner::Shared> m_shared;
    std::shared_ptr<ToolRunner> m_runner;
};

class ScanJob final : public Job {
public:
    ScanJob(QPointer<ForceRemoveScanner> self, std::shared_ptr<ForceRemoveScanner::Shared> shared,
        std::shared_ptr<ToolRunner> runner, const InstalledApp& app, bool locationRefused)
        : Job(std::move(self), std::move(shared), std::move(runner))
        , m_name(app.name)
        , m_publisher(app.publisher)
        , m_location(locationRefused ? QString() : app.installLocation)
    {
    }

    void run()
    {
        using Step = void (ScanJob::*)();
        const std::tuple<int, const char*, Step> steps[] = {
            { 5, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Killing processes..."), &ScanJob::killProcesses },
            { 15, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning install directory..."), &ScanJob::installDir },
            { 35, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning app data..."), &ScanJob::appData },
            { 55, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning registry..."), &ScanJob::registry },
            { 70, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning startup items..."), &ScanJob::startup },
            { 82, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning scheduled tasks..."), &ScanJob::tasks },
            { 92, QT_TRANSLATE_NOOP("ForceRemoveScanner", "Scanning services..."), &ScanJob::services },
        };
        for (const auto& [percent, text, step] : steps) {
            if (!progress(percent, ForceRemoveScanner::tr(text)))
                return;
            (this->*step)();
        }
        if (!live())
            return;
        qint64 total = 0;
        for (const ForceRemoveItem& item : m_items)
            total += item.sizeBytes;
        qDebug() << "[ForceRemove] Scan done:" << m_items.size() << "items, total:" << total / MiB << "MB";
        if (!progress(100, ForceRemoveScanner::tr("Done")))
            return;
        emitIfLive([&](ForceRemoveScanner* scanner) {
            m_shared->items = m_items;
            emit scanner->scanFinished(total);
        });
    }

private:
    bool progress(int percent, const QString& text)
    {
        return emitIfLive([&](ForceRemoveScanner* scanner) { emit scanner->scanProgress(percent, text); });
    }

    void add(ForceRemoveKind kind, const QString& path, const QString& label, qint64 size = 0, bool highRisk = false,
        bool checked = true)
    {
        m_items.append(ForceRemoveItem { kind, path, label, size, highRisk, checked });
    }

    // Step A. Processes running from the install folder end first, then every process named like
    // an executable in it, wherever that one runs from.
    void killProcesses()
    {
        if (m_location.isEmpty())
            return;
        const QString folder = localPath(m_location);
        platform::Processes& processes = machine().processes();
        for (const platform::ProcessInfo& process : processes.snapshot()) {
            if (!live())
                return;
            if (traces::startsWithPathNoCase(process.imagePath, ws(folder))) {
                qDebug() << "[ForceRemove] Killing:" << qs(process.imagePath) << "PID:" << process.pid;
                processes.terminate(process.pid, 0);
            }
        }
        QStringList images;
        QSet<QString> seen;
        if (machine().fileSystem().isFolder(ws(folder)))
            collectImages(folder, 0, images, seen);
        for (const QString& image : std::as_const(images)) {
            if (!live())
                return;
            runTool(QStringLiteral("taskkill"), { QStringLiteral("/F"), QStringLiteral("/IM"), image });
        }
        QThread::msleep(KillSettleMs);
    }

    // Executable names anywhere below `folder`, descending only into real sub-folders: a link or
    // junction inside the install folder must not lead taskkill to another program's images.
    void collectImages(const QString& folder, int depth, QStringList& images, QSet<QString>& seen) const
    {
        if (depth > MaxImageDepth || !live())
            return;
        const QStringList names = QDir(folder).entryList(
            { QStringLiteral("*.exe") }, QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks);
        for (const QString& name : names) {
            if (!seen.contains(name.toLower())) {
                seen.insert(name.toLower());
                images.append(name);
            }
        }
        if (const auto subFolders = machine().fileSystem().subFolders(ws(folder))) {
            for (const std::wstring& sub : *subFolders)
                collectImages(folder + QLatin1Char('/') + qs(sub), depth + 1, images, seen);
        }
    }

    // Step B.
    void installDir()
    {
        if (m_location.isEmpty())
            return;
        const QString folder = localPath(m_location);
        if (!machine().fileSystem().isFolder(ws(folder)))
            return;
        const qint64 size = folderSize(folder);
        add(ForceRemoveKind::InstallDir, m_location,
            ForceRemoveScanner::tr("Install folder: %1").arg(QDir::toNativeSeparators(m_location)), size);
        qDebug() << "[ForceRemove] InstallDir:" << m_location << size / MiB << "MB";
    }

    // Step C.
    void appData()
    {
        const platform::Environment& env = machine().environment();
        const QStringList bases = {
            QDir::fromNativeSeparators(qs(env.roamingAppData())),
            QDir::fromNativeSeparators(qs(env.localAppData())),
            QDir::fromNativeSeparators(qs(env.programData())),
        };
        const std::vector<std::wstring> candidates = traces::appDataCandidates(ws(m_name), ws(m_publisher));
        for (const QString& base : bases) {
            if (base.isEmpty())
                continue;
            for (const std::wstring& candidate : candidates) {
                if (!live())
                    return;
                const QString folder = base + QLatin1Char('/') + qs(candidate);
                if (!machine().fileSystem().isFolder(ws(folder)))
                    continue;
                const qint64 size = folderSize(folder);
                if (size == 0 || listed(folder))
                    continue;
                add(ForceRemoveKind::AppData, folder,
                    ForceRemoveScanner::tr("App data: .../%1/%2").arg(QFileInfo(base).fileName(), qs(candidate)), size);
                qDebug() << "[ForceRemove] AppData:" << folder << size / MiB << "MB";
            }
        }
    }

    // The same folder reached twice (two candidates, or the install folder again) is listed once,
    // however its path is spelled.
    bool listed(const QString& folder) const
    {
        const std::wstring key = traces::normalizePath(ws(localPath(folder)));
        return std::any_of(m_items.begin(), m_items.end(), [&](const ForceRemoveItem& item) {
            return (item.kind == ForceRemoveKind::InstallDir || item.kind == ForceRemoveKind::AppData)
                && traces::normalizePath(ws(localPath(item.path))) == key;
        });
    }

    // Step D.
    void registry()
    {
        const QString name = m_name.trimmed();
        if (name.isEmpty())
            return; // would match every entry that has no name
        const platform::Registry& reg = machine().registry();
        for (const auto& [hive, tag] : Roots) {
            for (const wchar_t* path : UninstallPaths) {
                const auto subkeys = reg.subKeys(hive, path, SubkeyNameChars);
                if (!subkeys)
                    continue;
                for (const std::wstring& subkey : *subkeys) {
                    if (!live())
                        return;
                    const std::wstring key = std::wstring(path) + L"\\" + subkey;
                    const QString displayName
                        = qs(reg.readString(hive, key, L"DisplayName", DisplayNameBytes).value_or(L"")).trimmed();
                    if (displayName != name)
                        continue;
                    const QString itemPath = QLatin1String(tag) + QLatin1Char('\\') + qs(key);
                    add(ForceRemoveKind::RegistryKey, itemPath,
                        ForceRemoveScanner::tr("Registry uninstall entry: %1").arg(qs(subkey)));
                    qDebug() << "[ForceRemove] RegKey:" << itemPath;
                }
            }
        }
    }

    // Step E.
    void startup()
    {
        if (m_location.isEmpty() && m_name.isEmpty())
            return;
        const platform::Registry& reg = machine().registry();
        for (const auto& [hive, tag] : Roots) {
            for (const wchar_t* path : RunPaths) {
                const auto values = reg.enumValues(hive, path, RunValueNameChars, RunValueDataBytes);
                if (!values)
                    continue;
                for (const platform::EnumeratedValue& value : *values) {
                    if (!live())
                        return;
                    if (value.status != platform::Status::Ok)
                        break; // the enumeration ends at the first value that cannot be read
                    const std::wstring data
                        = platform::decodeRegistryString(value.value.data.data(), value.value.data.size());
                    if (!traces::startupValueMatches(data, ws(m_location), ws(m_name)))
                        continue;
                    const QString itemPath
                        = QLatin1String(tag) + QLatin1Char('\\') + qs(path) + QLatin1Char('\\') + qs(value.value.name);
                    add(ForceRemoveKind::StartupRegistry, itemPath,
                        ForceRemoveScanner::tr("Startup registry: %1 → %2")
                            .arg(qs(value.value.name), qs(data).left(StartupLabelDataChars)),
                        0, hive == Hive::LocalMachine);
                    qDebug() << "[ForceRemove] StartupReg:" << itemPath;
                }
            }
        }

        const platform::Environment& env = machine().environment();
        const QString startupPath = QStringLiteral("/Microsoft/Windows/Start Menu/Programs/Startup");
        const QStringList folders = {
            QDir::fromNativeSeparators(qs(env.roamingAppData())) + startupPath,
            QDir::fromNativeSeparators(qs(env.programData())) + startupPath,
        };
        // Qt counts Windows shortcuts as links, so links are not filtered out here; removing one
        // removes the link file itself.
        for (const QString& folder : folders) {
            if (!machine().fileSystem().isFolder(ws(folder)))
                continue;
            const QFileInfoList shortcuts = QDir(folder).entryInfoList(
                { QStringLiteral("*.lnk") }, QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
            for (const QFileInfo& shortcut : shortcuts) {
                if (!live())
                    return;
                if (!traces::shortcutMatches(ws(shortcut.baseName()), ws(m_name), ws(m_publisher)))
                    continue;
                add(ForceRemoveKind::StartupShortcut, shortcut.absoluteFilePath(),
                    ForceRemoveScanner::tr("Startup shortcut: %1").arg(shortcut.fileName()), shortcut.size());
                qDebug() << "[ForceRemove] StartupLnk:" << shortcut.absoluteFilePath();
            }
        }
    }

    // Step F.
    void tasks()
    {
        const ToolResult listing = m_runner->run(QStringLiteral("schtasks"),
            { QStringLiteral("/query"), QStringLiteral("/fo"), QStringLiteral("CSV"), QStringLiteral("/nh") },
            TaskQueryTimeoutMs);
        if (!listing.finished)
            return;
        const QStringList lines = QString::fromLocal8Bit(listing.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            if (!live())
                return;
            if (!traces::taskLineMatches(ws(line), ws(m_name), ws(m_location)))
                continue;
            const QString task = qs(traces::taskName(ws(line)));
            if (task.isEmpty())
                continue;
            add(ForceRemoveKind::ScheduledTask, task, ForceRemoveScanner::tr("Scheduled task: %1").arg(task), 0, true,
                false);
            qDebug() << "[ForceRemove] Task:" << task;
        }
    }

    // Step G.
    void services()
    {
        if (m_location.isEmpty())
            return;
        const auto services = machine().services().list();
        if (!services)
            return;
        for (const platform::ServiceInfo& service : *services) {
            if (!live())
                return;
            if (!traces::serviceMatches(service.binaryPath, ws(m_location)))
                continue;
            // A service without a display name is shown by its key name.
            const QString shown = qs(service.displayName.empty() ? service.name : service.displayName);
            add(ForceRemoveKind::Service, qs(service.name),
                ForceRemoveScanner::tr("Windows service: %1 (%2)").arg(shown, qs(service.name)), 0, true, false);
            qDebug() << "[ForceRemove] Service:" << qs(service.name);
        }
    }

    const QString m_name;
    const QString m_publisher;
    const QString m_location; // empty when the program has none or it was refused
    QList<ForceRemoveItem> m_items;
};

class ExecuteJob final : public Job {
public:
    ExecuteJob(QPointer<ForceRemoveScanner> self, std::shared_ptr<ForceRemoveScanner::Shared> shared,
        std::shared_ptr<ToolRunner> runner, QList<ForceRemoveItem> items, QList<int> indices)
        : Job(std::move(self), std::move(shared), std::move(runner))
        , m_items(std::move(items))
        , m_indices(std::move(indices))
    {
    }

    void run()
    {
        qint64 freed = 0;
        const int n = m_indices.size();
        for (int i = 0; i < n; ++i) {
            if (!live())
                break;
            const int index = m_indices.at(i);
            if (index < 0 || index >= m_items.size())
                continue;
            const ForceRemoveItem& item = m_items.at(index);
            if (!progress(i * 100 / n, ForceRemoveScanner::tr("Removing: %1").arg(item.label)))
                break;
            freed += remove(item);
            if (!progress((i + 1) * 100 / n, ForceRemoveScanner::tr("Done: %1").arg(item.label)))
                break;
        }
        if (emitIfLive([&](ForceRemoveScanner* scanner) { emit scanner->executeFinished(freed); }, true))
            qDebug() << "[ForceRemove] Execute done, freed:" << freed / MiB << "MB";
    }

private:
    bool progress(int percent, const QString& text)
    {
        return emitIfLive([&](ForceRemoveScanner* scanner) { emit scanner->executeProgress(percent, text); });
    }

    // The bytes the deletion freed.
    qint64 remove(const ForceRemoveItem& item)
    {
        switch (item.kind) {
        case ForceRemoveKind::InstallDir:
        case ForceRemoveKind::AppData:
            return removeFolder(item.path);
        case ForceRemoveKind::RegistryKey:
        case ForceRemoveKind::StartupRegistry:
            removeRegistry(item);
            return 0;
        case ForceRemoveKind::StartupShortcut: {
            // The platform's delete, not QFile: a Startup folder swapped for a link since the scan
            // must not take a same-named file from wherever the link points.
            const qint64 size = QFileInfo(item.path).size();
            if (!machine().fileSystem().removeFile(ws(item.path))) {
                qWarning() << "[ForceRemove] Failed lnk:" << item.path;
                return 0;
            }
            qDebug() << "[ForceRemove] Deleted lnk:" << item.path;
            return size;
        }
        case ForceRemoveKind::ScheduledTask:
            runTool(QStringLiteral("schtasks"),
                { QStringLiteral("/delete"), QStringLiteral("/tn"), item.path, QStringLiteral("/f") });
            qDebug() << "[ForceRemove] Deleted task:" << item.path;
            return 0;
        case ForceRemoveKind::Service:
            runTool(QStringLiteral("sc"), { QStringLiteral("stop"), item.path });
            QThread::msleep(ServiceStopSettleMs);
            runTool(QStringLiteral("sc"), { QStringLiteral("delete"), item.path });
            qDebug() << "[ForceRemove] Deleted service:" << item.path;
            return 0;
        }
        return 0;
    }

    qint64 removeFolder(const QString& path)
    {
        const QString folder = localPath(path);
        platform::Platform& p = machine();
        // The scan never lists such a folder; this holds even for a list that was tampered with.
        if (traces::isProtectedLocation(ws(folder), p.environment())) {
            qWarning() << "[ForceRemove] Failed dir:" << path;
            return 0;
        }
        // A folder that is already gone (removed since the scan) has reached the state asked for.
        const QFileInfo info(folder);
        if (!info.exists() && !info.isSymLink()) {
            qDebug() << "[ForceRemove] Removed dir:" << path;
            return 0;
        }
        const qint64 size = p.fileSystem().folderSize(ws(folder));
        if (!platform::removedWhole(p.fileSystem().removeFolder(ws(folder)))) {
            qWarning() << "[ForceRemove] Failed dir:" << path;
            return 0;
        }
        qDebug() << "[ForceRemove] Removed dir:" << path;
        return size;
    }

    void removeRegistry(const ForceRemoveItem& item)
    {
        const traces::RegistryLocation location = traces::parseRegistryLocation(ws(item.path));
        platform::Registry& reg = machine().registry();
        if (!location.valid || !reg.keyExists(location.hive, location.parent))
            return;
        // Denied means the key could not be opened for writing (a machine-wide entry without
        // elevation): nothing was attempted, so nothing is logged as deleted. Any other outcome
        // is logged, a failed deletion included.
        if (item.kind == ForceRemoveKind::RegistryKey) {
            if (reg.deleteTree(location.hive, location.parent + L"\\" + location.leaf)
                != platform::Status::AccessDenied)
                qDebug() << "[ForceRemove] Deleted reg:" << item.path;
        } else {
            if (reg.deleteValue(location.hive, location.parent, location.leaf) != platform::Status::AccessDenied)
                qDebug() << "[ForceRemove] Deleted startup reg:" << qs(location.leaf);
        }
    }

    const QList<ForceRemoveItem> m_items;
    const QList<int> m_indices;
};

} // namespace

ForceRemoveScanner::ForceRemoveScanner(QObject* parent)
    : QObject(parent)
    , m_shared(std::make_shared<Shared>())
{
}

ForceRemoveScanner::~ForceRemoveScanner()
{
    QMutexLocker locker(&m_shared->lock);
    m_shared->cancel.exchange(1);
    m_shared->alive = false;
}

void ForceRemoveScanner::setToolRunner(std::shared_ptr<ToolRunner> runner)
{
    m_runner = std::move(runner);
}

void ForceRemoveScanner::scan(const InstalledApp& app)
{
    m_shared->cancel.exchange(0);
    m_app = app;
    {
        QMutexLocker locker(&m_shared->lock);
        m_shared->items.clear();
    }
    if (!m_runner)
        m_runner = ToolRunner::forCurrentPlatform();
    m_locationRefused = !app.installLocation.isEmpty()
        && traces::isProtectedLocation(ws(localPath(app.installLocation)), machine().environment());
    if (m_locationRefused)
        qWarning() << "[ForceRemove] Install location refused:" << app.installLocation;
    auto job = std::make_shared<ScanJob>(QPointer(this), m_shared, m_runner, m_app, m_locationRefused);
    (void)QtConcurrent::run(QThreadPool::globalInstance(), [job] { job->run(); });
}

void ForceRemoveScanner::execute(const QList<int>& indices)
{
    if (!m_runner)
        m_runner = ToolRunner::forCurrentPlatform();
    auto job = std::make_shared<ExecuteJob>(QPointer(this), m_shared, m_runner, items(), indices);
    (void)QtConcurrent::run(QThreadPool::globalInstance(), [job] { job->run(); });
}

void ForceRemoveScanner::cancel()
{
    m_shared->cancel.exchange(1);
}

QList<ForceRemoveItem> ForceRemoveScanner::items() const
{
    QMutexLocker locker(&m_shared->lock);
    return m_shared->items;
}
