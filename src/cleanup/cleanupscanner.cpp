#include "cleanupscanner.h"

#include "platform/environment.h"
#include "platform/filesystem.h"
#include "platform/platform.h"

#include <QDir>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

namespace {

QString fromPlatform(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

// A Windows location written with its drive letter, as the machine (or the sandbox) has it.
QString machinePath(const wchar_t* windowsPath)
{
    return fromPlatform(platform::current().environment().mapPath(windowsPath));
}

QString variable(const wchar_t* name)
{
    return fromPlatform(platform::current().environment().variable(name).value_or(std::wstring()));
}

platform::FileSystem& fileSystem()
{
    return platform::current().fileSystem();
}

bool folderExists(const QString& path)
{
    return fileSystem().isFolder(path.toStdWString());
}

// Every sub-folder counts as a profile whatever its name, in the order the folder lists them.
QStringList profileFolders(const QString& folder)
{
    QStringList names;
    if (const auto listed = fileSystem().subFolders(folder.toStdWString())) {
        for (const std::wstring& name : *listed)
            names.append(fromPlatform(name));
    }
    return names;
}

const QStringList& chromiumCacheNames()
{
    static const QStringList names = {
        QStringLiteral("Cache"),
        QStringLiteral("Cache2"),
        QStringLiteral("Code Cache"),
        QStringLiteral("GPUCache"),
        QStringLiteral("ShaderCache"),
        QStringLiteral("Service Worker/CacheStorage"),
        QStringLiteral("Service Worker/ScriptCache"),
    };
    return names;
}

const QStringList& firefoxCacheNames()
{
    static const QStringList names
        = { QStringLiteral("cache2"), QStringLiteral("startupCache"), QStringLiteral("shader-cache") };
    return names;
}

const QStringList ChromeChannels = {
    QStringLiteral("Google/Chrome"),
    QStringLiteral("Google/Chrome Beta"),
    QStringLiteral("Google/Chrome Dev"),
    QStringLiteral("Google/Chrome SxS"),
};

const QStringList EdgeChannels = {
    QStringLiteral("Microsoft/Edge"),
    QStringLiteral("Microsoft/Edge Beta"),
    QStringLiteral("Microsoft/Edge Dev"),
    QStringLiteral("Microsoft/Edge SxS"),
};

int percentOf(int step, int total)
{
    return 100 * step / total;
}

} // namespace

CleanupScanner::CleanupScanner(QObject* parent)
    : QObject(parent)
{
    buildTable();
}

CleanupScanner::~CleanupScanner()
{
    m_stopping = true;
    for (QFuture<void>& task : m_tasks)
        task.waitForFinished();
}

QStringList CleanupScanner::chromiumCacheFolders(const QString& localAppData, const QStringList& channels)
{
    QStringList found;
    for (const QString& channel : channels) {
        const QString userData = localAppData + QLatin1Char('/') + channel + QStringLiteral("/User Data");
        if (!folderExists(userData))
            continue;
        for (const QString& profile : profileFolders(userData)) {
            for (const QString& cache : chromiumCacheNames()) {
                const QString folder = userData + QLatin1Char('/') + profile + QLatin1Char('/') + cache;
                if (folderExists(folder))
                    found.append(folder);
            }
        }
    }
    return found;
}

QStringList CleanupScanner::firefoxCacheFolders(const QString& roamingAppData, const QString& localAppData)
{
    QStringList found;
    if (roamingAppData.isEmpty())
        return found;
    const QString roaming = roamingAppData + QStringLiteral("/Mozilla/Firefox/Profiles");
    if (!folderExists(roaming))
        return found;
    const QStringList profiles = profileFolders(roaming);
    for (const QString& profile : profiles) {
        for (const QString& cache : firefoxCacheNames()) {
            const QString folder = roaming + QLatin1Char('/') + profile + QLatin1Char('/') + cache;
            if (folderExists(folder))
                found.append(folder);
        }
    }
    // Firefox keeps most of its cache beside the local copy of each roaming profile.
    if (localAppData.isEmpty())
        return found;
    for (const QString& profile : profiles) {
        const QString local = localAppData + QStringLiteral("/Mozilla/Firefox/Profiles/") + profile;
        for (const QString& cache : firefoxCacheNames()) {
            const QString folder = local + QLatin1Char('/') + cache;
            if (folderExists(folder))
                found.append(folder);
        }
    }
    return found;
}

void CleanupScanner::buildTable()
{
    const QString localAppData = variable(L"LOCALAPPDATA");
    const QString roamingAppData = variable(L"APPDATA");
    QString userTemp = QDir::fromNativeSeparators(fromPlatform(platform::current().environment().temp()));
    if (userTemp.isEmpty())
        userTemp = QDir::tempPath();

    QStringList chrome = chromiumCacheFolders(localAppData, ChromeChannels);
    if (chrome.isEmpty())
        chrome = { localAppData + QStringLiteral("/Google/Chrome/User Data/Default/Cache") };
    QStringList edge = chromiumCacheFolders(localAppData, EdgeChannels);
    if (edge.isEmpty())
        edge = { localAppData + QStringLiteral("/Microsoft/Edge/User Data/Default/Cache") };
    QStringList firefox = firefoxCacheFolders(roamingAppData, localAppData);
    if (firefox.isEmpty()) {
        m_firefoxProfiles = roamingAppData + QStringLiteral("/Mozilla/Firefox/Profiles");
        firefox = { m_firefoxProfiles };
    }

    m_categories = {
        { QStringLiteral("win_temp"), tr("Windows 临时文件"), QStringLiteral("🗂️"),
            { machinePath(L"C:/Windows/Temp"), userTemp }, 0, true },
        { QStringLiteral("wu_cache"), tr("Windows Update 缓存"), QStringLiteral("🔄"),
            { machinePath(L"C:/Windows/SoftwareDistribution/Download") }, 0, true },
        { QStringLiteral("chrome_cache"), tr("Google Chrome 缓存"), QStringLiteral("🟡"), chrome, 0, true },
        { QStringLiteral("edge_cache"), tr("Microsoft Edge 缓存"), QStringLiteral("🔵"), edge, 0, true },
        { QStringLiteral("firefox_cache"), tr("Mozilla Firefox 缓存"), QStringLiteral("🦊"), firefox, 0, true },
        // The log file beside the folder is listed but never measured or deleted: both work on
        // folders only.
        { QStringLiteral("logs"), tr("系统日志文件"), QStringLiteral("📋"),
            { machinePath(L"C:/Windows/Logs"), machinePath(L"C:/Windows/Temp/MRT.log") }, 0, true },
        { QStringLiteral("prefetch"), tr("Prefetch 预读缓存"), QStringLiteral("⚡"),
            { machinePath(L"C:/Windows/Prefetch") }, 0, true },
        { QStringLiteral("thumbcache"), tr("缩略图缓存"), QStringLiteral("🖼️"),
            { localAppData + QStringLiteral("/Microsoft/Windows/Explorer") }, 0, true },
        { QStringLiteral("dumps"), tr("崩溃转储文件"), QStringLiteral("💥"),
            { localAppData + QStringLiteral("/CrashDumps"),
                machinePath(L"C:/ProgramData/Microsoft/Windows/WER/ReportArchive"),
                machinePath(L"C:/ProgramData/Microsoft/Windows/WER/ReportQueue"), machinePath(L"C:/Windows/Minidump") },
            0, false },
        // Each user's bin is a sub-folder; it is emptied like any other tree.
        { QStringLiteral("recycle"), tr("回收站"), QStringLiteral("🗑️"), { machinePath(L"C:/$Recycle.Bin") }, 0,
            false },
        // Listed whether or not it exists: a missing folder simply measures 0.
        { QStringLiteral("windows_old"), tr("Windows 旧系统备份"), QStringLiteral("💾"),
            { machinePath(L"C:/Windows.old") }, 0, false },
    };
}

QList<JunkCategory> CleanupScanner::categories() const
{
    QMutexLocker lock(&m_mutex);
    return m_categories;
}

QStringList CleanupScanner::pathsAt(int position) const
{
    QMutexLocker lock(&m_mutex);
    return m_categories.at(position).paths;
}

void CleanupScanner::track(const QFuture<void>& future)
{
    m_tasks.removeIf([](const QFuture<void>& task) { return task.isFinished(); });
    m_tasks.append(future);
}

QStringList CleanupScanner::workFolders(const QStringList& paths) const
{
    if (m_firefoxProfiles.isEmpty() || !paths.contains(m_firefoxProfiles))
        return paths;
    // The profiles folder stands in the list for the caches below it, but the profiles hold the
    // user's bookmarks, passwords and keys: only their cache folders are ever measured or emptied.
    QStringList folders;
    for (const QString& path : paths) {
        if (path != m_firefoxProfiles) {
            folders.append(path);
            continue;
        }
        for (const QString& profile : profileFolders(path)) {
            for (const QString& cache : firefoxCacheNames()) {
                const QString folder = path + QLatin1Char('/') + profile + QLatin1Char('/') + cache;
                if (folderExists(folder))
                    folders.append(folder);
            }
        }
    }
    return folders;
}

qint64 CleanupScanner::measure(const QStringList& paths) const
{
    platform::FileSystem& fs = fileSystem();
    qint64 total = 0;
    for (const QString& path : paths)
        total += fs.folderSize(path.toStdWString());
    return total;
}

void CleanupScanner::scan()
{
    track(QtConcurrent::run(QThreadPool::globalInstance(), [this] { runScan(); }));
}

void CleanupScanner::runScan()
{
    const int n = int(m_categories.size());
    if (n < 1) {
        emit scanFinished();
        return;
    }
    for (int i = 0; i < n; ++i) {
        if (m_stopping)
            return;
        const qint64 size = measure(workFolders(pathsAt(i)));
        {
            QMutexLocker lock(&m_mutex);
            m_categories[i].size = size;
        }
        emit scanProgress(percentOf(i + 1, n));
    }
    emit scanFinished();
}

void CleanupScanner::clean(const QList<int>& positions)
{
    track(QtConcurrent::run(QThreadPool::globalInstance(), [this, positions] { runClean(positions); }));
}

void CleanupScanner::runClean(const QList<int>& positions)
{
    const int m = int(positions.size());
    if (m < 1) {
        emit cleanFinished(0);
        return;
    }
    platform::FileSystem& fs = fileSystem();
    qint64 freed = 0;
    for (int k = 1; k <= m; ++k) {
        if (m_stopping)
            return;
        const int i = positions.at(k - 1);
        if (i < 0 || i >= m_categories.size())
            continue;
        const QStringList paths = workFolders(pathsAt(i));
        const qint64 before = measure(paths);
        for (const QString& path : paths)
            fs.emptyFolder(path.toStdWString()); // what stays is simply not counted as freed
        const qint64 after = measure(paths);
        // The measured drop, not the sum of what was deleted: locked files and files written
        // meanwhile by other programs lower it, and it may even be negative.
        freed += before - after;
        emit cleanProgress(percentOf(k, m));
    }
    emit cleanFinished(freed);
}
