#include "uninstallmanager.h"

#include <platform/environment.h>
#include <platform/filesystem.h>
#include <platform/launcher.h>
#include <platform/platform.h>
#include <platform/uninstallcommandline.h>
#include <platform/uninstallentries.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutexLocker>
#include <QSaveFile>
#include <QStandardPaths>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>

namespace {

const QStringList& exclusionTexts()
{
    static const QStringList texts = {
        QStringLiteral("^KB\\d+"),
        QStringLiteral("(?i)^vs_"),
        QStringLiteral("(?i)^icecap"),
        QStringLiteral("(?i)Microsoft\\s*Visual\\s*C\\+\\+"),
        QStringLiteral("(?i)Visual\\s*C\\+\\+"),
        QStringLiteral("(?i)\\bRuntime\\b"),
        QStringLiteral("(?i)\\bRedistributable\\b"),
        QStringLiteral("(?i)\\b(Universal\\s*)?CRT\\b"),
        QStringLiteral("(?i)UCRT"),
        QStringLiteral("(?i)Microsoft\\s*\\.?NET"),
        QStringLiteral("(?i)^\\.NET"),
        QStringLiteral("(?i)ASP\\.?NET"),
        QStringLiteral("(?i)Desktop\\s*Runtime"),
        QStringLiteral("(?i)WebView"),
        QStringLiteral("(?i)Edge\\s*WebView"),
        QStringLiteral("(?i)Windows\\s*SDK"),
        QStringLiteral("(?i)Windows\\s*App\\s*SDK"),
        QStringLiteral("(?i)\\bSDK\\b"),
        QStringLiteral("(?i)WinRT"),
        QStringLiteral("(?i)Intellisense"),
        QStringLiteral("(?i)Extension\\s*SDK"),
        QStringLiteral("(?i)Click[\\s\\-]?to[\\s\\-]?Run"),
        QStringLiteral("(?i)\\bDriver\\b"),
        QStringLiteral("(?i)\\bFramework\\b"),
        QStringLiteral("(?i)Language\\s*Pack"),
        QStringLiteral("(?i)Targeting\\s*Pack"),
        QStringLiteral("(?i)(?:Security\\s*)?Update\\s*for"),
        QStringLiteral("(?i)Hotfix"),
        QStringLiteral("(?i)Service\\s*Pack"),
        QStringLiteral("(?i)Windows\\s*Driver\\s*Kit"),
        QStringLiteral("(?i)\\bWDK\\b"),
        QStringLiteral("(?i)DiagnosticsHub"),
        QStringLiteral("(?i)MSI\\s*Development"),
        QStringLiteral("(?i)Kits\\s*Configuration"),
        QStringLiteral("(?i)App\\s*Certification\\s*Kit"),
        QStringLiteral("(?i)Application\\s*Verifier"),
        QStringLiteral("(?i)Signing\\s*Tools"),
        QStringLiteral("(?i)\\bContracts\\b"),
        QStringLiteral("(?i)\\bFacade\\b"),
        QStringLiteral("(?i)FileTracker"),
        QStringLiteral("(?i)Script\\s*Debugging"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Add\\s+to\\s+Path"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Test\\s+Suite"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Core\\s+Interpreter"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+pip\\s+Bootstrap"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Executables"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Tcl/Tk"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Documentation"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Standard\\s+Library"),
        QStringLiteral("(?i)Python\\s+[\\d\\.]+\\s+Development\\s+Libraries"),
        // Misspelt since the first release; correcting it would start hiding the Python
        // launcher, which users do uninstall.
        QStringLiteral("(?i)Python\\s+Launlcher"),
    };
    return texts;
}

const QList<QRegularExpression>& exclusionPatterns()
{
    static const QList<QRegularExpression> patterns = [] {
        QList<QRegularExpression> list;
        for (const QString& text : exclusionTexts())
            list << QRegularExpression(text);
        return list;
    }();
    return patterns;
}

const QStringList& systemPackageNames()
{
    static const QStringList names = {
        QStringLiteral("Microsoft.WindowsStore"),
        QStringLiteral("Microsoft.DesktopAppInstaller"),
        QStringLiteral("Microsoft.Windows.ShellExperienceHost"),
        QStringLiteral("Microsoft.Windows.Cortana"),
        QStringLiteral("Microsoft.AAD.BrokerPlugin"),
        QStringLiteral("Microsoft.AccountsControl"),
        QStringLiteral("Microsoft.BioEnrollment"),
        QStringLiteral("Microsoft.CredDialogHost"),
        QStringLiteral("Microsoft.LockApp"),
        QStringLiteral("Microsoft.MicrosoftEdge"),
        QStringLiteral("Microsoft.WindowsAppRuntime"),
        QStringLiteral("Microsoft.UI.Xaml"),
        QStringLiteral("Microsoft.VCLibs"),
        QStringLiteral("Microsoft.NET.Native.Framework"),
        QStringLiteral("Microsoft.NET.Native.Runtime"),
        QStringLiteral("Microsoft.DirectX"),
    };
    return names;
}

QString fromWide(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

// Status rules: an install younger than this never counts as unused.
constexpr qint64 MinDaysInstalled = 181;
// ... and a start within this many days keeps it in use.
constexpr qint64 MinDaysUnused = 91;
// Without usage records only a much older install is taken as unused.
constexpr qint64 DaysInstalledWithoutUsage = 270;

constexpr quint64 FileTimeOf1970 = 116444736000000000ULL;
constexpr qint64 FileTimeTicksPerSecond = 10000000;
constexpr qint64 SecondsFrom1601To1970 = 11644473600LL;

// A history larger than this is not a history this program wrote; it is treated as unreadable.
constexpr qint64 MaxHistoryBytes = 32LL * 1024 * 1024;

} // namespace

UninstallManager::UninstallManager(QObject* parent)
    : QObject(parent)
{
    loadHistory();
}

UninstallManager::~UninstallManager()
{
    m_stopping = true;
    m_refresh.waitForFinished();
    m_previousRefresh.waitForFinished();
    m_batch.waitForFinished();
    // The future's own hand-off happens inside Qt, where the thread checker cannot see it; the
    // lock the task last wrote under makes that write visibly come before the memory goes.
    QMutexLocker lock(&m_mutex);
}

void UninstallManager::refresh()
{
    if (m_refreshing.exchange(true))
        return;
    // The previous task may still be returning from its signal; the destructor waits for both.
    m_previousRefresh = m_refresh;
    m_refresh = QtConcurrent::run([this] {
        rebuild();
        // Cleared before the signal, so a receiver may start the next refresh at once.
        bool stopping = false;
        {
            QMutexLocker lock(&m_mutex);
            m_refreshing = false;
            stopping = m_stopping;
        }
        if (!stopping)
            emit refreshFinished();
    });
}

bool UninstallManager::isRefreshing() const
{
    return m_refreshing;
}

QList<InstalledApp> UninstallManager::apps() const
{
    QMutexLocker lock(&m_mutex);
    return m_apps;
}

QHash<QString, QDate> UninstallManager::usageMap() const
{
    QMutexLocker lock(&m_mutex);
    return m_usage;
}

QList<UninstalledApp> UninstallManager::history() const
{
    QMutexLocker lock(&m_mutex);
    return m_history;
}

QDate UninstallManager::today() const
{
    return m_referenceDate.isValid() ? m_referenceDate : QDate::currentDate();
}

void UninstallManager::rebuild()
{
    {
        QMutexLocker lock(&m_mutex);
        m_apps.clear();
    }
    loadUsageData();
    const QHash<QString, QDate> usage = usageMap();
    const QDate day = today();

    QList<InstalledApp> list;
    for (const platform::UninstallEntry& entry :
        platform::readUninstallEntries(platform::current().registry(), &m_stopping)) {
        if (m_stopping)
            return; // the manager is going away; nobody will read a partial list
        const QString name = fromWide(entry.displayName).trimmed();
        if (name.isEmpty())
            continue;
        if (entry.systemComponent.value_or(0) == 1)
            continue;
        if (!fromWide(entry.parentKeyName).trimmed().isEmpty())
            continue; // an update or a component of another product
        if (entry.noRemove.value_or(0) == 1)
            continue;
        if (matchesExclusion(name) || containsSystemPackage(name))
            continue;

        InstalledApp app;
        app.name = name;
        app.publisher = fromWide(entry.publisher).trimmed();
        app.version = fromWide(entry.displayVersion).trimmed();
        app.installDate = normaliseInstallDate(fromWide(entry.installDate));
        app.uninstallString = fromWide(entry.uninstallString).trimmed();
        app.displayIcon = fromWide(entry.displayIcon).trimmed();
        app.installLocation = fromWide(entry.installLocation).trimmed();
        app.estimatedSize = static_cast<qint64>(entry.estimatedSize.value_or(0)) << 10;
        app.status = classify(app, usage, day);
        list << app;
    }
    sortForDisplay(list);

    const auto unused = std::count_if(
        list.cbegin(), list.cend(), [](const InstalledApp& a) { return a.status == QLatin1String("old"); });
    const auto noUninstaller = std::count_if(
        list.cbegin(), list.cend(), [](const InstalledApp& a) { return a.status == QLatin1String("nouninstaller"); });
    qDebug() << "[UninstallManager] Total:" << list.size() << "Unused:" << unused << "NoUninstaller:" << noUninstaller;

    QMutexLocker lock(&m_mutex);
    m_apps = list;
}

bool UninstallManager::matchesExclusion(const QString& displayName)
{
    const auto& patterns = exclusionPatterns();
    return std::any_of(patterns.cbegin(), patterns.cend(),
        [&](const QRegularExpression& re) { return re.match(displayName).hasMatch(); });
}

bool UninstallManager::containsSystemPackage(const QString& displayName)
{
    const auto& names = systemPackageNames();
    return std::any_of(
        names.cbegin(), names.cend(), [&](const QString& n) { return displayName.contains(n, Qt::CaseInsensitive); });
}

QString UninstallManager::normaliseInstallDate(const QString& raw)
{
    static const QRegularExpression eightDigits(QStringLiteral("^\\d{8}$"));
    const QString text = raw.trimmed();
    if (text.size() == 8 && eightDigits.match(text).hasMatch())
        return QStringLiteral("%1-%2-%3").arg(text.left(4), text.mid(4, 2), text.right(2));
    return text;
}

QString UninstallManager::localPath(const QString& windowsPath)
{
    return fromWide(platform::current().environment().mapPath(windowsPath.toStdWString()));
}

QString UninstallManager::mainExecutable(const QString& installLocation)
{
    // Listing a share would make the inventory contact another machine.
    if (installLocation.isEmpty() || platform::isNetworkPath(installLocation.toStdWString()))
        return QString();
    const QString folder = localPath(installLocation);
    // A relative location would be looked up in whatever folder this process runs in.
    if (!QDir::isAbsolutePath(folder) || !QFileInfo(folder).isDir())
        return QString();
    // Smallest first, as the lookup has always worked; finer choices are left for later.
    const QFileInfoList exes
        = QDir(folder).entryInfoList({ QStringLiteral("*.exe") }, QDir::Files, QDir::Size | QDir::Reversed);
    return exes.isEmpty() ? QString() : exes.first().absoluteFilePath();
}

QString UninstallManager::classify(const InstalledApp& app, const QHash<QString, QDate>& usage, const QDate& today)
{
    if (app.uninstallString.isEmpty())
        return QStringLiteral("nouninstaller");
    if (matchesExclusion(app.name))
        return QStringLiteral("system");

    const QDate installed = QDate::fromString(app.installDate, QStringLiteral("yyyy-MM-dd"));
    const QString exe = QFileInfo(mainExecutable(app.installLocation)).fileName().toLower();
    if (!exe.isEmpty() && usage.contains(exe)) {
        const QDate lastUse = usage.value(exe);
        const qint64 daysUnused = lastUse.daysTo(today);
        const qint64 daysInstalled = installed.isValid() ? installed.daysTo(today) : 0;
        if (installed.isValid() && daysInstalled >= MinDaysInstalled && daysUnused >= MinDaysUnused) {
            qDebug() << "[UninstallManager] Unused (UserAssist):" << app.name << "last used:" << lastUse;
            return QStringLiteral("old");
        }
        return QStringLiteral("ok");
    }
    if (installed.isValid() && installed.daysTo(today) > DaysInstalledWithoutUsage)
        return QStringLiteral("old");
    return QStringLiteral("ok");
}

void UninstallManager::sortForDisplay(QList<InstalledApp>& apps)
{
    const auto rank = [](const InstalledApp& a) {
        if (a.status == QLatin1String("nouninstaller"))
            return 2;
        return a.status == QLatin1String("old") ? 0 : 1;
    };
    std::stable_sort(apps.begin(), apps.end(), [&](const InstalledApp& a, const InstalledApp& b) {
        const int ra = rank(a);
        const int rb = rank(b);
        if (ra != rb)
            return ra < rb;
        return a.estimatedSize > b.estimatedSize;
    });
}

QString UninstallManager::formatSize(qint64 bytes)
{
    constexpr qint64 KiB = 1024;
    constexpr qint64 MiB = 1024 * KiB;
    constexpr qint64 GiB = 1024 * MiB;
    if (bytes == 0)
        return QStringLiteral("\u2014");
    if (bytes >= GiB)
        return QStringLiteral("%1 GB").arg(double(bytes) / GiB, 0, 'f', 1);
    if (bytes < MiB)
        return QStringLiteral("%1 KB").arg(bytes / KiB);
    return QStringLiteral("%1 MB").arg(double(bytes) / MiB, 0, 'f', 0);
}

QString UninstallManager::rot13(const QString& text)
{
    QString out = text;
    for (QChar& c : out) {
        const char16_t u = c.unicode();
        if ((u >= 'A' && u <= 'M') || (u >= 'a' && u <= 'm'))
            c = QChar(char16_t(u + 13));
        else if ((u >= 'N' && u <= 'Z') || (u >= 'n' && u <= 'z'))
            c = QChar(char16_t(u - 13));
    }
    return out;
}

QString UninstallManager::userAssistExecutable(const QString& decodedName)
{
    QString name = decodedName.mid(decodedName.lastIndexOf(QLatin1Char('\\')) + 1).toLower();
    if (const int space = name.indexOf(QLatin1Char(' ')); space > 0)
        name.truncate(space);
    return name.endsWith(QLatin1String(".exe")) ? name : QString();
}

QDate UninstallManager::fileTimeToDate(quint64 fileTime)
{
    if (fileTime < FileTimeOf1970)
        return QDate();
    const qint64 secs = qint64(fileTime / FileTimeTicksPerSecond) - SecondsFrom1601To1970;
    return QDateTime::fromSecsSinceEpoch(secs).date();
}

std::optional<QPair<QString, QDate>> UninstallManager::usageMark(const platform::UserAssistValue& value)
{
    const QString exe = userAssistExecutable(rot13(fromWide(value.encodedName)));
    const QDate day = fileTimeToDate(value.lastRun);
    if (exe.isEmpty() || !day.isValid())
        return std::nullopt;
    return qMakePair(exe, day);
}

void UninstallManager::loadUsageData()
{
    QHash<QString, QDate> usage;
    for (const platform::UserAssistValue& value : platform::readUserAssistValues(platform::current().registry())) {
        const std::optional<QPair<QString, QDate>> mark = usageMark(value);
        if (!mark)
            continue;
        const auto& [exe, day] = *mark;
        auto it = usage.find(exe);
        if (it == usage.end())
            usage.insert(exe, day);
        else if (day > *it)
            *it = day;
    }
    qDebug() << "[UninstallManager] UserAssist loaded:" << usage.size() << "entries";
    QMutexLocker lock(&m_mutex);
    m_usage = usage;
}

QString UninstallManager::historyFilePath()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    // The sandbox's history belongs to the machine it stands for, in the Roaming folder where
    // Windows keeps it, so a demo machine carries its own.
    if (platform::Platform& p = platform::current(); p.isSandbox()) {
        folder = fromWide(p.environment().roamingAppData());
        for (const QString& part : { QCoreApplication::organizationName(), QCoreApplication::applicationName() }) {
            if (!part.isEmpty())
                folder += QLatin1Char('/') + part;
        }
    }
    QDir().mkpath(folder);
    return folder + QStringLiteral("/uninstall-history.json");
}

void UninstallManager::loadHistory()
{
    QList<UninstalledApp> list;
    bool readable = true;
    QFile file(historyFilePath());
    if (file.exists() && file.size() > MaxHistoryBytes) {
        qWarning() << "[UninstallManager] History file too large, ignored:" << file.size() << "bytes";
        readable = false;
    } else if (file.open(QIODevice::ReadOnly)) {
        if (std::optional<QList<UninstalledApp>> parsed = parseHistory(file.read(MaxHistoryBytes + 1))) {
            list = std::move(*parsed);
            qDebug() << "[UninstallManager] History loaded:" << list.size() << "entries";
        } else {
            readable = false;
        }
    } else if (file.exists()) {
        qWarning() << "[UninstallManager] Cannot read history:" << file.errorString();
        readable = false;
    }
    m_keepUnreadableHistory = !readable;
    QMutexLocker lock(&m_mutex);
    m_history = list;
}

std::optional<QList<UninstalledApp>> UninstallManager::parseHistory(const QByteArray& content)
{
    const QJsonDocument doc = QJsonDocument::fromJson(content);
    if (!doc.isArray()) {
        // An empty file holds nothing worth keeping.
        if (content.trimmed().isEmpty())
            return QList<UninstalledApp>();
        return std::nullopt;
    }
    QList<UninstalledApp> list;
    const QJsonArray array = doc.array();
    for (const QJsonValue& element : array) {
        const QJsonObject o = element.toObject();
        UninstalledApp app;
        app.name = o.value(QLatin1String("name")).toString();
        app.publisher = o.value(QLatin1String("publisher")).toString();
        app.installLocation = o.value(QLatin1String("installLocation")).toString();
        app.displayIcon = o.value(QLatin1String("displayIcon")).toString();
        app.uninstalledAt = QDateTime::fromString(o.value(QLatin1String("uninstalledAt")).toString(), Qt::ISODate);
        list << app;
    }
    return list;
}

bool UninstallManager::keepUnreadableHistory()
{
    if (!m_keepUnreadableHistory)
        return true;
    const QString path = historyFilePath();
    const QString backup = path + QStringLiteral(".bak");
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink()) {
        // Renamed, not copied: nothing of it has to be read, however large or unreadable it is.
        QFile::remove(backup);
        if (!QFile::rename(path, backup)) {
            qWarning() << "[UninstallManager] Cannot keep the unreadable history, not saving:" << backup;
            return false;
        }
        qWarning() << "[UninstallManager] Unreadable history kept as:" << backup;
    }
    m_keepUnreadableHistory = false;
    return true;
}

QByteArray UninstallManager::historyText(const QList<UninstalledApp>& history)
{
    QJsonArray array;
    for (const UninstalledApp& app : history) {
        QJsonObject o;
        o.insert(QLatin1String("name"), app.name);
        o.insert(QLatin1String("publisher"), app.publisher);
        o.insert(QLatin1String("installLocation"), app.installLocation);
        o.insert(QLatin1String("displayIcon"), app.displayIcon);
        o.insert(QLatin1String("uninstalledAt"), app.uninstalledAt.toString(Qt::ISODate));
        array.append(o);
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

bool UninstallManager::saveHistory()
{
    const QList<UninstalledApp> list = history();
    // A history this program could not read may still be the user's only record.
    if (!keepUnreadableHistory())
        return false;
    // Written beside the old file and swapped in, so a crash mid-write keeps the old history.
    QSaveFile file(historyFilePath());
    // Unbuffered: a write that fails for space must fail here, where QSaveFile notes it, and not
    // in the flush inside commit(), which would then put an empty file in place of the old one.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        qWarning() << "[UninstallManager] Cannot save history:" << file.errorString();
        return false;
    }
    file.write(historyText(list));
    if (!file.commit()) {
        qWarning() << "[UninstallManager] Cannot save history:" << file.errorString();
        return false;
    }
    qDebug() << "[UninstallManager] History saved:" << list.size() << "entries";
    return true;
}

void UninstallManager::recordUninstall(const InstalledApp& app)
{
    UninstalledApp entry;
    entry.name = app.name;
    entry.publisher = app.publisher;
    entry.installLocation = app.installLocation;
    entry.displayIcon = app.displayIcon;
    entry.uninstalledAt = QDateTime::currentDateTime();
    {
        QMutexLocker lock(&m_mutex);
        m_history << entry;
    }
    saveHistory();
    qDebug() << "[UninstallManager] Recorded uninstall:" << app.name;
}

QString UninstallManager::installFolder(const QString& installLocation)
{
    QString text = installLocation;
    text.remove(QLatin1Char('"'));
    text = text.trimmed();
    if (text.contains(QLatin1Char('%')))
        text = fromWide(platform::current().environment().expand(text.toStdWString()));
    if (text.isEmpty() || platform::isNetworkPath(text.toStdWString()))
        return QString();
    const QString folder = localPath(text);
    // A relative location would be looked up in whatever folder this process runs in.
    return QDir::isAbsolutePath(folder) ? folder : QString();
}

bool UninstallManager::uninstall(const InstalledApp& app)
{
    emit uninstallStarted(app.name);
    bool ok = false;
    const platform::PreparedUninstall prepared = platform::prepareUninstall(
        app.uninstallString.toStdWString(), app.publisher.toStdWString(), app.name.toStdWString());
    if (!prepared.command && !prepared.refusal.empty())
        qWarning() << "[UninstallManager] Not started:" << app.name << "-" << fromWide(prepared.refusal);
    if (const auto& command = prepared.command) {
        QStringList arguments;
        for (const std::wstring& argument : command->arguments)
            arguments << fromWide(argument);
        qDebug() << "[UninstallManager] Uninstalling:" << app.name;
        qDebug() << "[UninstallManager] Program:" << fromWide(command->program) << "Args:" << arguments;

        // Only a folder seen before the start can be seen to go: a location that never existed
        // says nothing about the uninstaller.
        const QString folder = installFolder(app.installLocation);
        platform::FileSystem& fs = platform::current().fileSystem();
        const bool folderBefore = !folder.isEmpty() && fs.isFolder(folder.toStdWString());

        platform::ShellExecuteRequest request;
        request.verb = L"open"; // elevation is left to the uninstaller's own manifest
        request.file = command->program;
        request.parameters = command->parameters();
        request.show = platform::ShowNormal;
        request.started = [] { qDebug() << "[UninstallManager] Waiting for uninstaller..."; };
        const platform::ShellExecuteResult result
            = platform::current().launcher().shellExecuteAndWait(request, UninstallTimeoutMs);
        if (!result.started) {
            qWarning() << "[UninstallManager] ShellExecuteEx failed:" << result.error;
            if (!result.message.empty())
                qWarning() << "[UninstallManager]" << fromWide(result.message);
        } else {
            qDebug() << "[UninstallManager] Exit code:" << result.exitCode << "waitResult:" << result.waitResult;
            ok = result.exitCode == 0;
        }
        // Many uninstallers hand over to a copy of themselves and report an odd code; a folder
        // that is gone says more than the code does.
        if (!ok && folderBefore && !fs.isFolder(folder.toStdWString())) {
            qDebug() << "[UninstallManager] Install dir gone,"
                     << "treating as success:" << app.name;
            ok = true;
        }
    }
    if (ok)
        recordUninstall(app);
    else
        qDebug() << "[UninstallManager] Failed:" << app.name;
    emit uninstallFinished(app.name, ok);
    return ok;
}

void UninstallManager::uninstallBatch(const QList<InstalledApp>& apps)
{
    m_batch = QtConcurrent::run([this, apps] {
        for (const InstalledApp& app : apps) {
            if (m_stopping)
                break;
            uninstall(app);
        }
        emit batchFinished();
    });
}
