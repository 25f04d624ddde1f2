#include "residuescanner.h"

#include <platform/environment.h>
#include <platform/filesystem.h>
#include <platform/platform.h>

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMutexLocker>
#include <QSet>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>
#include <functional>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;

// Below these a folder is not worth the user's attention.
constexpr qint64 OrphanMinBytes = 512 * KiB;
constexpr qint64 CacheMinBytes = 1 * MiB;
constexpr qint64 TempMinBytes = 10 * MiB;
// Above these the result is ticked for the user.
constexpr qint64 OrphanCheckedAbove = 5 * MiB;
constexpr qint64 CacheCheckedAbove = 10 * MiB;

const QStringList CacheNames = { QStringLiteral("cache"), QStringLiteral("cacheddata"), QStringLiteral("cachedfiles"),
    QStringLiteral("webcache"), QStringLiteral("gpucache"), QStringLiteral("code cache"),
    QStringLiteral("shader cache") };
const QStringList CrashNames = { QStringLiteral("crashreports"), QStringLiteral("crashpad"), QStringLiteral("crash"),
    QStringLiteral("minidumps"), QStringLiteral("crashdumps"), QStringLiteral("breakpad") };
const QStringList LogNames = { QStringLiteral("logs"), QStringLiteral("log"), QStringLiteral("logging") };
const QStringList ProgramDataSkipNames = { QStringLiteral("package cache"), QStringLiteral("microsoft"),
    QStringLiteral("windows"), QStringLiteral("packages"), QStringLiteral("ssh"), QStringLiteral("docker"),
    QStringLiteral("ssl"), QStringLiteral("chocolatey") };
const QStringList ProtectedNames = { QStringLiteral("microsoft"), QStringLiteral("windows"), QStringLiteral("system32"),
    QStringLiteral("syswow64"), QStringLiteral("windowsapps"), QStringLiteral("windowspowershell"),
    QStringLiteral("windowsnt"), QStringLiteral("internet explorer"), QStringLiteral("common files"),
    QStringLiteral("mozilla"), QStringLiteral("google"), QStringLiteral("chrome"), QStringLiteral("apple"),
    QStringLiteral("dotnet"), QStringLiteral(".net"), QStringLiteral("nuget"), QStringLiteral("nvidia"),
    QStringLiteral("amd"), QStringLiteral("intel"), QStringLiteral("package cache") };
const QStringList GenericNames
    = { QStringLiteral("cache"), QStringLiteral("temp"), QStringLiteral("tmp"), QStringLiteral("packages"),
          QStringLiteral("package cache"), QStringLiteral("package caches"), QStringLiteral("containers"),
          QStringLiteral("sandbox"), QStringLiteral("assemblyregistration"), QStringLiteral("assembly") };

bool matchesAny(const QString& lowerName, const QStringList& list)
{
    return std::any_of(list.cbegin(), list.cend(), [&](const QString& entry) { return lowerName.contains(entry); });
}

bool hasControlCharacter(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

// `folder` is `other` or one of the folders above it. Case is ignored, as Windows does.
bool isSameOrAncestor(const QString& folder, const QString& other)
{
    if (folder.isEmpty() || other.isEmpty())
        return false;
    const QString a = folder.toLower();
    const QString b = other.toLower();
    if (a == b)
        return true;
    return b.startsWith(a.endsWith(QLatin1Char('/')) ? a : a + QLatin1Char('/'));
}

QString pathFrom(const std::wstring& text)
{
    return ResidueScanner::normalisedPath(QString::fromStdWString(text));
}

platform::FileSystem& fileSystem()
{
    return platform::current().fileSystem();
}

QStringList subFolderNames(const QString& folder)
{
    QStringList names;
    if (folder.isEmpty())
        return names;
    if (const auto list = fileSystem().subFolders(folder.toStdWString())) {
        for (const std::wstring& name : *list)
            names << QString::fromStdWString(name);
    }
    return names;
}

} // namespace

QString ResidueScanner::normalisedPath(const QString& path)
{
    if (path.isEmpty())
        return QString();
    QString p = path;
    p.replace(QLatin1Char('\\'), QLatin1Char('/'));
    p = QDir::cleanPath(p);
    // "C:" alone means the drive root here, never the drive's current folder.
    if (p.size() == 2 && p.at(1) == QLatin1Char(':'))
        p += QLatin1Char('/');
    return p;
}

QStringList ResidueScanner::Roots::protectedFolders() const
{
    QStringList list = { driveRoot, home, roaming, local, programData };
    if (!home.isEmpty())
        list << home + QStringLiteral("/AppData") << home + QStringLiteral("/AppData/Roaming");
    list << systemFolders;
    list.removeAll(QString());
    return list;
}

ResidueScanner::Roots ResidueScanner::Roots::fromPlatform()
{
    const platform::Environment& env = platform::current().environment();
    Roots roots;
    roots.driveRoot = pathFrom(env.systemDriveRoot());
    roots.home = pathFrom(env.userProfile());
    roots.roaming = pathFrom(env.roamingAppData());
    roots.local = roots.home.isEmpty() ? QString() : roots.home + QStringLiteral("/AppData/Local");
    roots.programData = pathFrom(env.mapPath(L"C:/ProgramData"));
    roots.temp = pathFrom(env.temp());
    roots.windowsTemp = pathFrom(env.mapPath(L"C:/Windows/Temp"));
    for (const wchar_t* folder : { L"C:/Program Files", L"C:/Program Files (x86)" })
        roots.systemFolders << pathFrom(env.mapPath(folder));
    for (const wchar_t* variable : { L"ProgramFiles", L"ProgramFiles(x86)", L"ProgramW6432", L"LOCALAPPDATA" }) {
        if (const auto value = env.variable(variable); value && !value->empty())
            roots.systemFolders << pathFrom(*value);
    }
    roots.systemFolders.removeDuplicates();
    return roots;
}

ResidueScanner::ResidueScanner(QObject* parent)
    : QObject(parent)
    , m_roots(Roots::fromPlatform())
{
}

ResidueScanner::~ResidueScanner()
{
    m_stop = true;
    m_future.waitForFinished();
}

void ResidueScanner::setInstalledApps(const QStringList& names, const QStringList& publishers)
{
    m_installedNames = names;
    m_installedPublishers = publishers;
}

bool ResidueScanner::isRunning() const
{
    return m_running;
}

QList<ResidueItem> ResidueScanner::results() const
{
    QMutexLocker lock(&m_mutex);
    return m_results;
}

bool ResidueScanner::start(std::function<bool()> work)
{
    if (m_running.exchange(true))
        return false;
    // Set here rather than in the task, so a stop asked for before the task starts still counts.
    m_stop = false;
    // The previous task has cleared the running flag but may still be returning; wait it out so
    // only one task is ever alive and the destructor's wait covers it.
    m_future.waitForFinished();
    m_future = QtConcurrent::run([this, work = std::move(work)] {
        // A finished task has cleared the flag itself, right before its last signal.
        if (!work())
            m_running = false;
    });
    return true;
}

void ResidueScanner::scan()
{
    start([this] { return runGlobalScan() && finishScan(true); });
}

void ResidueScanner::scanForApps(const QList<UninstalledApp>& apps)
{
    start([this, apps] { return runScanForApps(apps) && finishScan(false); });
}

void ResidueScanner::clean(const QList<int>& indices)
{
    start([this, indices] { return runClean(indices); });
}

void ResidueScanner::stopScan()
{
    m_stop = true;
    qDebug() << "[ResidueScanner] stopScan called";
}

bool ResidueScanner::stopped() const
{
    return m_stop.load();
}

qint64 ResidueScanner::measure(const QString& folder, int fileBudget) const
{
    return fileSystem().measureFolder(folder.toStdWString(), std::uint64_t(fileBudget), &m_stop).bytes;
}

bool ResidueScanner::isKnownProgram(const QString& folderName, const QStringList& installedNames)
{
    const QString n = folderName.toLower().trimmed();
    if (GenericNames.contains(n))
        return true;
    if (matchesAny(n, ProtectedNames))
        return true;
    for (const QString& installed : installedNames) {
        const QString e = installed.toLower().trimmed();
        if (e.isEmpty())
            continue;
        if (e == n)
            return true;
        const QString firstWord = e.split(QLatin1Char(' ')).constFirst();
        // Short first words ("the", "gnu") would claim half the disk.
        if (firstWord.size() > 3 && (n.contains(firstWord) || firstWord.contains(n)))
            return true;
        if (n.size() > 4 && e.contains(n))
            return true;
    }
    return false;
}

bool ResidueScanner::isUsableTerm(const QString& term)
{
    const QString t = term.trimmed();
    if (t.isEmpty() || t == QLatin1String(".") || t == QLatin1String(".."))
        return false;
    // A display name comes from whatever an installer wrote; it must only ever name one folder
    // directly inside a root.
    if (t.contains(QLatin1Char('/')) || t.contains(QLatin1Char('\\')) || t.contains(QLatin1Char(':')))
        return false;
    if (hasControlCharacter(term))
        return false;
    // Windows drops trailing dots and spaces from a path component, so "..." names the root.
    QString stripped = t;
    while (!stripped.isEmpty() && (stripped.back() == QLatin1Char('.') || stripped.back().isSpace()))
        stripped.chop(1);
    if (stripped.isEmpty())
        return false;
    // A publisher's first word such as "Microsoft" or "Google" names a folder shared by many
    // programs (and a browser profile); it is never one program's residue.
    const QString lower = t.toLower();
    return !ProtectedNames.contains(lower) && !GenericNames.contains(lower);
}

QStringList ResidueScanner::searchTerms(const UninstalledApp& app)
{
    QStringList terms;
    const auto take = [&terms](const QString& term) {
        if (!terms.contains(term) && isUsableTerm(term))
            terms << term;
    };
    take(app.name);
    const QString publisherWord = app.publisher.split(QLatin1Char(' ')).constFirst().trimmed();
    if (publisherWord.size() >= 3)
        take(publisherWord);
    const QString squeezed = QString(app.name).remove(QLatin1Char(' '));
    if (squeezed.size() >= 4)
        take(squeezed);
    return terms;
}

bool ResidueScanner::isAllowedTarget(const QString& path, int category, const Roots& roots)
{
    const QString p = normalisedPath(path);
    if (p.isEmpty() || !QDir::isAbsolutePath(p) || hasControlCharacter(p))
        return false;
    // A network share is never one program's leftover on this machine.
    const QString raw = QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (raw.startsWith(QLatin1String("//")))
        return false;
    const QStringList folders = roots.protectedFolders();
    if (std::any_of(folders.cbegin(), folders.cend(), [&](const QString& f) { return isSameOrAncestor(p, f); }))
        return false;
    for (const QString& temp : { roots.temp, roots.windowsTemp }) {
        if (temp.isEmpty() || !isSameOrAncestor(p, temp))
            continue;
        // The temp pass empties a temp folder and keeps it; nothing else may touch it whole.
        if (category != ResidueItem::Temp || p.compare(temp, Qt::CaseInsensitive) != 0)
            return false;
    }
    return true;
}

void ResidueScanner::addResult(const ResidueItem& item)
{
    if (!isAllowedTarget(item.path, item.category, m_roots)) {
        qDebug() << "[ResidueScanner] Skipped protected folder:" << item.path;
        return;
    }
    QMutexLocker lock(&m_mutex);
    m_results << item;
}

void ResidueScanner::orphanPass(const QString& root, bool isProgramData)
{
    for (const QString& name : subFolderNames(root)) {
        if (stopped())
            return;
        const QString lower = name.toLower().trimmed();
        if (isProgramData && matchesAny(lower, ProgramDataSkipNames))
            continue;
        if (isKnownProgram(name, m_installedNames))
            continue;
        const QString path = root + QLatin1Char('/') + name;
        const qint64 size = measure(path, GeneralFileBudget);
        if (size < OrphanMinBytes)
            continue;
        addResult({ ResidueItem::OrphanedAppData, path, name, size, true, size > OrphanCheckedAbove });
    }
}

void ResidueScanner::cacheAndLogPass(const QString& root)
{
    for (const QString& program : subFolderNames(root)) {
        if (stopped())
            return;
        const QString programPath = root + QLatin1Char('/') + program;
        if (QFileInfo(programPath).isHidden() || matchesAny(program.toLower(), ProtectedNames))
            continue;
        for (const QString& sub : subFolderNames(programPath)) {
            if (stopped())
                return;
            const QString path = programPath + QLatin1Char('/') + sub;
            if (QFileInfo(path).isHidden())
                continue;
            const QString lower = sub.toLower();
            int category;
            if (matchesAny(lower, CacheNames))
                category = ResidueItem::Cache;
            else if (matchesAny(lower, LogNames))
                category = ResidueItem::Logs;
            else if (matchesAny(lower, CrashNames))
                category = ResidueItem::CrashReports;
            else
                continue;
            const qint64 size = measure(path, GeneralFileBudget);
            if (size < CacheMinBytes)
                continue;
            addResult({ category, path, program, size, true, size > CacheCheckedAbove });
        }
    }
}

void ResidueScanner::tempPass()
{
    for (const QString& folder : { m_roots.temp, m_roots.windowsTemp }) {
        if (stopped())
            return;
        if (folder.isEmpty())
            continue;
        const qint64 size = measure(folder, TempFileBudget);
        if (size >= TempMinBytes)
            addResult(
                { ResidueItem::Temp, folder, QStringLiteral("System Temp"), size, true, size > CacheCheckedAbove });
    }
}

bool ResidueScanner::runGlobalScan()
{
    {
        QMutexLocker lock(&m_mutex);
        m_results.clear();
    }
    const struct {
        int percent;
        const char* text;
        std::function<void()> pass;
    } steps[] = {
        { 5, "Scanning AppData/Roaming...", [this] { orphanPass(m_roots.roaming, false); } },
        { 20, "Scanning AppData/Local...", [this] { orphanPass(m_roots.local, false); } },
        { 40, "Scanning cache & logs (Local)...", [this] { cacheAndLogPass(m_roots.local); } },
        { 55, "Scanning cache & logs (Roaming)...", [this] { cacheAndLogPass(m_roots.roaming); } },
        { 70, "Scanning ProgramData...", [this] { orphanPass(m_roots.programData, true); } },
        { 88, "Scanning Temp...", [this] { tempPass(); } },
    };
    for (const auto& step : steps) {
        if (stopped())
            return false;
        emit scanProgress(step.percent, QString::fromLatin1(step.text));
        step.pass();
    }
    return !stopped();
}

void ResidueScanner::scanApp(const UninstalledApp& app)
{
    const QStringList terms = searchTerms(app);
    const QString roots[] = { m_roots.home.isEmpty() ? QString() : m_roots.home + QStringLiteral("/AppData/Roaming"),
        m_roots.local, m_roots.programData };
    for (const QString& root : roots) {
        if (root.isEmpty())
            continue;
        for (const QString& term : terms) {
            if (stopped())
                return;
            const QString candidate = root + QLatin1Char('/') + term;
            if (!fileSystem().isFolder(candidate.toStdWString()))
                continue;
            const qint64 size = measure(candidate, GeneralFileBudget);
            if (size <= 0)
                continue;
            const QList<ResidueItem> existing = results();
            if (std::any_of(existing.cbegin(), existing.cend(),
                    [&](const ResidueItem& i) { return i.path.compare(candidate, Qt::CaseInsensitive) == 0; }))
                continue;
            addResult({ ResidueItem::OrphanedAppData, candidate, app.name, size, true, true });
            qDebug() << "[ResidueScanner] Residue for" << app.name << ":" << size / MiB << "MB";
        }
    }
    if (app.installLocation.isEmpty() || hasControlCharacter(app.installLocation))
        return;
    const QString location = normalisedPath(
        QString::fromStdWString(platform::current().environment().mapPath(app.installLocation.toStdWString())));
    if (!fileSystem().isFolder(location.toStdWString()))
        return;
    const qint64 size = measure(location, GeneralFileBudget);
    if (size >= 1) {
        // The user must look at this one: an install folder can hold files the user put there.
        addResult({ ResidueItem::OrphanedAppData, location, app.name + QStringLiteral(" (Install Dir)"), size, false,
            false });
    }
}

bool ResidueScanner::runScanForApps(const QList<UninstalledApp>& apps)
{
    {
        QMutexLocker lock(&m_mutex);
        m_results.clear();
    }
    const int n = int(apps.size());
    for (int i = 0; i < n; ++i) {
        if (stopped())
            return false;
        emit scanProgress(5 + (85 * i) / n, QStringLiteral("Scanning: ") + apps.at(i).name + QStringLiteral("..."));
        scanApp(apps.at(i));
    }
    return !stopped();
}

bool ResidueScanner::finishScan(bool global)
{
    qint64 total = 0;
    int count = 0;
    {
        QMutexLocker lock(&m_mutex);
        QSet<QString> seen;
        QList<ResidueItem> unique;
        for (const ResidueItem& item : std::as_const(m_results)) {
            const QString key = item.path.toLower();
            if (seen.contains(key))
                continue;
            seen.insert(key);
            unique << item;
        }
        std::stable_sort(
            unique.begin(), unique.end(), [](const ResidueItem& a, const ResidueItem& b) { return a.size > b.size; });
        for (const ResidueItem& item : std::as_const(unique))
            total += item.size;
        count = int(unique.size());
        m_results = unique;
    }
    emit scanProgress(100, QStringLiteral("Done"));
    if (global)
        qDebug() << "[ResidueScanner] Global scan found" << count << "items";
    else
        qDebug() << "[ResidueScanner] scanForApps done:" << count << "items" << total / MiB << "MB";
    m_running = false;
    emit scanFinished(total);
    return true;
}

qint64 ResidueScanner::emptyContents(const QString& folder) const
{
    platform::FileSystem& fs = fileSystem();
    if (!fs.isFolder(folder.toStdWString()))
        return 0;
    // One entry at a time, each counted by its own size: a capped measure of the whole folder
    // before and after would miss most of what a folder of many small files gave back.
    const QFileInfoList entries
        = QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    qint64 freed = 0;
    for (const QFileInfo& entry : entries) {
        if (stopped())
            break;
        const QString path = folder + QLatin1Char('/') + entry.fileName();
        const std::wstring native = path.toStdWString();
        if (fs.isFolder(native)) {
            const qint64 size = measure(path, GeneralFileBudget);
            if (platform::removedWhole(fs.removeFolder(native)))
                freed += size;
        } else {
            // A link goes as itself and gives back nothing: what it points at stays untouched.
            const qint64 size = entry.isSymLink() || entry.isJunction() ? 0 : entry.size();
            if (fs.removeFile(native))
                freed += size;
        }
    }
    return freed;
}

bool ResidueScanner::runClean(const QList<int>& indices)
{
    const QList<ResidueItem> items = results();
    const int n = int(indices.size());
    qint64 freed = 0;
    for (int k = 0; k < n; ++k) {
        if (stopped())
            return false;
        const int index = indices.at(k);
        if (index >= 0 && index < items.size()) {
            const ResidueItem& item = items.at(index);
            if (!isAllowedTarget(item.path, item.category, m_roots)) {
                qDebug() << "[ResidueScanner] Skipped protected folder:" << item.path;
            } else {
                const qint64 before = measure(item.path, GeneralFileBudget);
                if (item.category == ResidueItem::OrphanedAppData) {
                    if (platform::removedWhole(fileSystem().removeFolder(item.path.toStdWString())))
                        freed += before;
                    else
                        qDebug() << "[ResidueScanner] Failed to remove:" << item.path;
                } else {
                    // The folder is the program's; only what is in it is residue. Files in use stay.
                    freed += emptyContents(item.path);
                }
            }
        }
        emit cleanProgress(100 * (k + 1) / n);
    }
    if (stopped())
        return false;
    qDebug() << "[ResidueScanner] Cleaned:" << freed / MiB << "MB";
    m_running = false;
    emit cleanFinished(freed);
    return true;
}
