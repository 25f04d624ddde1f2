#include "browserextscanner.h"

#include "browserextpaths.h"

#include "platform/environment.h"
#include "platform/platform.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

const QString MessagePrefix = QStringLiteral("__MSG_");

QList<qlonglong> versionParts(const QString& name)
{
    static const QRegularExpression separators(QStringLiteral("[._]"));
    QList<qlonglong> parts;
    for (const QString& part : name.split(separators))
        parts.append(part.toLongLong()); // not a number: 0
    return parts;
}

QStringList subFolders(const QString& folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Unsorted);
}

// A locale name read from a manifest becomes one folder name below "_locales", so only the
// characters of real locale names ("en", "zh_CN", "es-419") may pass.
bool isLocaleName(const QString& locale)
{
    static const QRegularExpression pattern(QStringLiteral("^[A-Za-z0-9_-]{1,32}$"));
    return pattern.match(locale).hasMatch();
}

// `relative` below `base`, or empty when it climbs out of it or names no file.
QString fileInside(const QString& base, const QString& relative)
{
    if (relative.isEmpty())
        return QString();
    // Both sides cleaned alike: a base taken from the environment may hold "\\" or "//".
    const QString root = QDir::cleanPath(base);
    const QString path = QDir::cleanPath(root + QLatin1Char('/') + relative);
    if (!path.startsWith(root + QLatin1Char('/')) || !QFileInfo(path).isFile())
        return QString();
    return path;
}

QString messageFor(const QString& versionFolder, const QJsonObject& manifest, const QString& key)
{
    const QString locales = versionFolder + QLatin1String("/_locales/");
    std::optional<QByteArray> bytes = browserext::readSmallFile(
        locales + BrowserExtScanner::manifestLocale(manifest) + QLatin1String("/messages.json"));
    if (!bytes)
        bytes = browserext::readSmallFile(locales + QLatin1String("en/messages.json"));
    return bytes ? BrowserExtScanner::messageIn(*bytes, key) : QString();
}

QString firefoxIcon(const QJsonObject& addon, const QString& profile, const QString& id)
{
    const QJsonObject icons = addon.value(QLatin1String("icons")).toObject();
    qlonglong best = 0;
    QString value;
    for (auto it = icons.begin(); it != icons.end(); ++it) {
        bool ok = false;
        const qlonglong size = it.key().toLongLong(&ok);
        if (ok && size > best) {
            best = size;
            value = it.value().toString();
        }
    }
    if (value.isEmpty() || value.startsWith(QLatin1String("jar:")))
        return QString();
    if (value.startsWith(QLatin1String("file:")))
        return QUrl(value).toLocalFile();
    if (QDir::isAbsolutePath(value))
        return value;
    // Relative to the add-on's own files, which only an unpacked add-on has on disk.
    if (!browserext::isSafeId(id))
        return QString();
    return fileInside(profile + QLatin1String("/extensions/") + id, value);
}

} // namespace

BrowserExtScanner::BrowserExtScanner(QObject* parent)
    : QThread(parent)
{
    qRegisterMetaType<BrowserExt>();
    qRegisterMetaType<QList<BrowserExt>>();
}

QStringList BrowserExtScanner::chromiumUserDataFolders(const QString& browser, const QString& localAppData)
{
    static const char* const chrome[] = { "/Google/Chrome/User Data", "/Google/Chrome Beta/User Data",
        "/Google/Chrome Dev/User Data", "/Google/Chrome SxS/User Data" };
    static const char* const edge[] = { "/Microsoft/Edge/User Data", "/Microsoft/Edge Beta/User Data",
        "/Microsoft/Edge Dev/User Data", "/Microsoft/Edge SxS/User Data" };
    const QString base = browserext::localDataFolder(localAppData);
    QStringList folders;
    for (const char* suffix : browser == browserext::Chrome ? chrome : edge) {
        const QString folder = QDir::cleanPath(base + QLatin1String(suffix));
        if (!folders.contains(folder))
            folders.append(folder);
    }
    return folders;
}

void BrowserExtScanner::sortVersionFolders(QStringList& names)
{
    std::stable_sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        const QList<qlonglong> x = versionParts(a), y = versionParts(b);
        return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end());
    });
}

QJsonObject BrowserExtScanner::readJsonObject(const QString& path)
{
    const std::optional<QByteArray> bytes = browserext::readSmallFile(path);
    return bytes ? browserext::parseObject(*bytes) : QJsonObject();
}

QString BrowserExtScanner::manifestLocale(const QJsonObject& manifest)
{
    const QString locale = manifest.value(QLatin1String("default_locale")).toString();
    return isLocaleName(locale) ? locale : QStringLiteral("en");
}

QString BrowserExtScanner::messageIn(const QByteArray& messages, QString key)
{
    if (key.endsWith(QLatin1String("__")))
        key.chop(2);
    const QJsonObject all = browserext::parseObject(messages);
    for (auto it = all.begin(); it != all.end(); ++it) {
        if (it.key().compare(key, Qt::CaseInsensitive) == 0)
            return it.value().toObject().value(QLatin1String("message")).toString();
    }
    return QString();
}

void BrowserExtScanner::run()
{
    QList<BrowserExt> all = scanChromium(browserext::Chrome, "[scanChrome]", true);
    all += scanChromium(browserext::Edge, "[scanEdge]", false);
    all += scanFirefox();
    // The page that asked is going away: a partial list would only be wrong.
    if (isInterruptionRequested())
        return;

    QList<BrowserExt> unique;
    QSet<QString> seen;
    for (const BrowserExt& ext : std::as_const(all)) {
        const QString key = ext.browser + QLatin1Char('|') + ext.id;
        if (seen.contains(key))
            continue;
        seen.insert(key);
        unique.append(ext);
    }
    emit scanDone(unique);
}

QList<BrowserExt> BrowserExtScanner::scanChromium(const QString& browser, const char* logPrefix, bool verbose) const
{
    const QString localAppData = QString::fromStdWString(platform::current().environment().localAppData());
    QList<BrowserExt> found;
    for (const QString& userData : chromiumUserDataFolders(browser, localAppData)) {
        if (!QFileInfo(userData).isDir()) {
            if (verbose)
                qDebug().noquote() << logPrefix << "not found:" << userData;
            continue;
        }
        qDebug().noquote() << logPrefix << "scanning:" << userData;
        for (const QString& name : subFolders(userData)) {
            if (isInterruptionRequested())
                return found;
            const QString profile = userData + QLatin1Char('/') + name;
            if (!QFileInfo(profile + QLatin1String("/Extensions")).isDir())
                continue;
            if (verbose)
                qDebug().noquote() << logPrefix << "profile:" << profile;
            found += scanChromiumProfile(profile, browser);
        }
    }
    return found;
}

QList<BrowserExt> BrowserExtScanner::scanChromiumProfile(const QString& profile, const QString& browser) const
{
    const QString extensions = profile + QLatin1String("/Extensions");
    if (!QFileInfo(extensions).isDir())
        return {};
    const QJsonObject settings = readJsonObject(profile + QLatin1String("/Preferences"))
                                     .value(QLatin1String("extensions"))
                                     .toObject()
                                     .value(QLatin1String("settings"))
                                     .toObject();
    QList<BrowserExt> found;
    for (const QString& id : subFolders(extensions)) {
        if (isInterruptionRequested())
            break;
        if (settings.contains(id)) {
            const QJsonObject entry = settings.value(id).toObject();
            const int location = entry.value(QLatin1String("location")).toInt(1);
            if (location == browserext::LocationUnpacked || location == browserext::LocationExternalComponent)
                continue;
            if (entry.value(QLatin1String("was_installed_by_default")).toBool(false)
                && entry.value(QLatin1String("update_url")).toString().isEmpty())
                continue;
        }

        const QString extensionFolder = extensions + QLatin1Char('/') + id;
        QStringList versions = subFolders(extensionFolder);
        if (versions.isEmpty())
            continue;
        sortVersionFolders(versions);
        const QString versionFolder = extensionFolder + QLatin1Char('/') + versions.constLast();

        const std::optional<QByteArray> manifestBytes
            = browserext::readSmallFile(versionFolder + QLatin1String("/manifest.json"));
        if (!manifestBytes)
            continue;
        const QJsonObject manifest = browserext::parseObject(*manifestBytes);
        if (manifest.contains(QLatin1String("theme")))
            continue;

        BrowserExt ext;
        ext.browser = browser;
        ext.id = id;
        ext.name = manifest.value(QLatin1String("name")).toString();
        if (ext.name.startsWith(MessagePrefix)) {
            const QString message = messageFor(versionFolder, manifest, ext.name.mid(MessagePrefix.size()));
            if (!message.isEmpty())
                ext.name = message;
        }
        if (ext.name.isEmpty() || ext.name.startsWith(MessagePrefix))
            ext.name = id;
        ext.description = manifest.value(QLatin1String("description")).toString();
        if (ext.description.startsWith(MessagePrefix))
            ext.description.clear();
        ext.version = manifest.value(QLatin1String("version")).toString();
        if (ext.version.isEmpty())
            ext.version = versions.constLast();
        const QJsonObject icons = manifest.value(QLatin1String("icons")).toObject();
        for (const char* size : { "48", "128", "32", "16" }) {
            ext.iconPath = fileInside(versionFolder, icons.value(QLatin1String(size)).toString());
            if (!ext.iconPath.isEmpty())
                break;
        }
        ext.enabled = true;
        found.append(ext);
    }
    return found;
}

QList<BrowserExt> BrowserExtScanner::scanFirefox() const
{
    const QString roaming = QString::fromStdWString(platform::current().environment().roamingAppData());
    // Without a roaming folder the path would start at the file system's root: not this user's.
    if (roaming.isEmpty())
        return {};
    const QString profiles = roaming + QLatin1String("/Mozilla/Firefox/Profiles");
    QList<BrowserExt> found;
    for (const QString& name : subFolders(profiles)) {
        if (isInterruptionRequested())
            break;
        const QString profile = profiles + QLatin1Char('/') + name;
        if (const std::optional<QByteArray> bytes
            = browserext::readSmallFile(profile + QLatin1String("/extensions.json")))
            found += firefoxExtensions(*bytes, profile);
    }
    return found;
}

QList<BrowserExt> BrowserExtScanner::firefoxExtensions(const QByteArray& database, const QString& profile)
{
    QList<BrowserExt> found;
    const QJsonArray addons = browserext::parseObject(database).value(QLatin1String("addons")).toArray();
    for (const QJsonValue& value : addons) {
        const QJsonObject addon = value.toObject();
        const QString location = addon.value(QLatin1String("location")).toString();
        if (addon.value(QLatin1String("type")).toString() != QLatin1String("extension")
            || location == QLatin1String("app-system-defaults") || location == QLatin1String("app-builtin")
            || addon.value(QLatin1String("pendingUninstall")).toBool(false)
            || addon.value(QLatin1String("userDisabled")).toBool(false))
            continue;
        BrowserExt ext;
        ext.browser = browserext::Firefox;
        ext.id = addon.value(QLatin1String("id")).toString();
        if (ext.id.isEmpty())
            continue; // nothing to show it by and nothing the remover could find
        const QJsonObject locale = addon.value(QLatin1String("defaultLocale")).toObject();
        ext.name = locale.value(QLatin1String("name")).toString();
        if (ext.name.isEmpty())
            ext.name = ext.id;
        ext.description = locale.value(QLatin1String("description")).toString();
        ext.version = addon.value(QLatin1String("version")).toString();
        ext.enabled = addon.value(QLatin1String("active")).toBool(true);
        ext.iconPath = firefoxIcon(addon, profile, ext.id);
        found.append(ext);
    }
    return found;
}
