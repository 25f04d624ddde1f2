#include "browserextremover.h"

#include "browserextpaths.h"
#include "browserextscanner.h"
#include "jsontext.h"

#include "platform/environment.h"
#include "platform/filesystem.h"
#include "platform/platform.h"
#include "platform/processes.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThread>

namespace {

// Lets a killed browser release its profile files before they are deleted or rewritten.
constexpr int KillSettleMs = 800;
constexpr std::uint32_t KillExitCode = 1;
// How far up from the application's data folder a roaming folder holding "Mozilla" is looked for.
constexpr int RoamingSearchLevels = 5;

const QString InvalidIdError = QStringLiteral("Invalid extension ID");

QStringList profilesOf(const QString& userData)
{
    QStringList profiles;
    const QStringList names
        = QDir(userData).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Unsorted);
    for (const QString& name : names) {
        const QString profile = userData + QLatin1Char('/') + name;
        if (QFileInfo(profile + QLatin1String("/Extensions")).isDir())
            profiles.append(profile);
    }
    return profiles;
}

// Something is at `path`, a dangling link included.
bool exists(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

platform::FileSystem& fileSystem()
{
    return platform::current().fileSystem();
}

// The new text is checked before it replaces the old: a browser must never find a broken file.
bool writeChecked(const QString& path, const QByteArray& text)
{
    if (!JsonText(text).isObjectDocument())
        return false;
    // A link in the file's place is refused as a linked folder is: QSaveFile would write through
    // it to whatever file it names, wherever that is.
    if (QFileInfo(path).isSymLink())
        return false;
    QSaveFile file(path);
    // Unbuffered: a write that fails for space must fail here, and not in the flush inside
    // commit(), which would then put an empty file in place of the browser's.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    if (file.write(text) != text.size())
        return false;
    return file.commit();
}

QByteArray joinedArray(const JsonText& json, const QList<JsonText::Span>& kept)
{
    QByteArray out = "[";
    for (qsizetype i = 0; i < kept.size(); ++i) {
        if (i > 0)
            out += ',';
        out += json.bytes(kept.at(i));
    }
    return out + ']';
}

QString roamingFolder()
{
    const QString roaming = QString::fromStdWString(platform::current().environment().roamingAppData());
    if (!roaming.isEmpty())
        return roaming;
    QDir dir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    for (int level = 0; level <= RoamingSearchLevels; ++level) {
        if (dir.exists(QStringLiteral("Mozilla")))
            return dir.absolutePath();
        if (!dir.cdUp())
            break;
    }
    return QString();
}

} // namespace

BrowserExtRemover::Result BrowserExtRemover::remove(const BrowserExt& ext)
{
    // An ID from a file that any add-on can shape must never become "..", a separator or a drive.
    if (!browserext::isSafeId(ext.id))
        return { false, InvalidIdError };
    return ext.browser == browserext::Firefox ? removeFirefox(ext) : removeChromium(ext);
}

BrowserExtRemover::Result BrowserExtRemover::removeChromium(const BrowserExt& ext)
{
    const QString localAppData = QString::fromStdWString(platform::current().environment().localAppData());
    const QStringList candidates = BrowserExtScanner::chromiumUserDataFolders(
        ext.browser == browserext::Chrome ? browserext::Chrome : browserext::Edge, localAppData);
    // One removal acts on one installation: the first channel with a profile.
    QStringList profiles;
    for (const QString& userData : candidates) {
        profiles = profilesOf(userData);
        if (!profiles.isEmpty())
            break;
    }
    if (profiles.isEmpty()) {
        return { false,
            QStringLiteral("%1 profile directory not found (tried: %2)")
                .arg(ext.browser, candidates.join(QLatin1String(", "))) };
    }

    QStringList errors;
    bool found = false;
    bool patched = false;
    for (const QString& profile : std::as_const(profiles)) {
        const QString folder = profile + QLatin1String("/Extensions/") + ext.id;
        if (exists(folder)) {
            // A link in the folder's place is refused, never followed: it counts as not deleted.
            const platform::EmptyFolderResult removed = fileSystem().removeFolder(folder.toStdWString());
            if (removed.opened && removed.failed == 0 && !exists(folder)) {
                found = true;
                qDebug().noquote() << "[Remover] Deleted extension dir:" << folder;
            } else {
                errors.append(QStringLiteral("Cannot delete ") + folder);
            }
        }
        for (const char* name : { "/Preferences", "/Secure Preferences" }) {
            const QString file = profile + QLatin1String(name);
            if (!QFileInfo::exists(file))
                continue;
            if (patchPreferences(file, ext.id))
                patched = true;
            else
                errors.append(QStringLiteral("Cannot patch ") + file);
        }
    }
    if (found || patched)
        return { true, QString() };
    return { false,
        errors.isEmpty() ? QStringLiteral("Extension not found in any profile") : errors.join(QLatin1Char('\n')) };
}

bool BrowserExtRemover::patchPreferences(const QString& path, const QString& id)
{
    const std::optional<QByteArray> bytes = browserext::readSmallFile(path);
    if (!bytes)
        return false;
    const std::optional<QByteArray> patched = patchedPreferences(*bytes, id);
    if (!patched)
        return false;
    // Nothing to change is nothing to write: the browser's file is not even touched.
    return *patched == *bytes || writeChecked(path, *patched);
}

std::optional<QByteArray> BrowserExtRemover::patchedPreferences(const QByteArray& text, const QString& id)
{
    JsonText json(text);
    if (!json.isObjectDocument())
        return std::nullopt;
    const JsonText::Span extensions = json.member(json.root(), QStringLiteral("extensions"));
    if (!extensions.isValid())
        return text;
    const JsonText::Span entry = json.member(json.member(extensions, QStringLiteral("settings")), id);
    if (!entry.isValid())
        return text; // a pinned entry alone is left as it is

    // State 0 with reason 1 is "disabled by the user": the entry stays, so the browser keeps
    // treating the extension as one the user chose to turn off rather than reinstalling it.
    if (json.isObject(entry)) {
        QList<QPair<QString, QByteArray>> missing;
        const QPair<QString, QByteArray> values[]
            = { { QStringLiteral("state"), "0" }, { QStringLiteral("disable_reasons"), "1" } };
        for (const auto& [key, value] : values) {
            const JsonText::Span current = json.member(entry, key);
            if (current.isValid())
                json.replace(current, value);
            else
                missing.append({ key, value });
        }
        json.insertMembers(entry, missing);
    } else {
        json.replace(entry, "{\"state\":0,\"disable_reasons\":1}");
    }

    const JsonText::Span pinned = json.member(extensions, QStringLiteral("pinned_extensions"));
    if (json.isArray(pinned)) {
        const QList<JsonText::Span> all = json.elements(pinned);
        QList<JsonText::Span> kept;
        for (const JsonText::Span& element : all) {
            if (!(json.isString(element) && json.string(element) == id))
                kept.append(element);
        }
        if (kept.size() != all.size())
            json.replace(pinned, joinedArray(json, kept));
    }
    return json.edited();
}

std::optional<QByteArray> BrowserExtRemover::withoutFirefoxAddon(const QByteArray& text, const QString& id)
{
    JsonText json(text);
    const JsonText::Span addons = json.member(json.root(), QStringLiteral("addons"));
    const QList<JsonText::Span> all = json.elements(addons);
    QList<JsonText::Span> kept;
    for (const JsonText::Span& addon : all) {
        if (!(json.isObject(addon) && json.string(json.member(addon, QStringLiteral("id"))) == id))
            kept.append(addon);
    }
    if (kept.size() == all.size())
        return std::nullopt;
    json.replace(addons, joinedArray(json, kept));
    return json.edited();
}

BrowserExtRemover::Result BrowserExtRemover::removeFirefox(const BrowserExt& ext)
{
    const QString profilesFolder = QDir::cleanPath(roamingFolder() + QLatin1String("/Mozilla/Firefox/Profiles"));
    if (!QFileInfo(profilesFolder).isDir())
        return { false, QStringLiteral("Firefox profiles directory not found") };

    QStringList errors;
    bool found = false;
    const QStringList names
        = QDir(profilesFolder)
              .entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Unsorted);
    for (const QString& name : names) {
        const QString profile = profilesFolder + QLatin1Char('/') + name;
        const QString database = profile + QLatin1String("/extensions.json");
        const std::optional<QByteArray> bytes = browserext::readSmallFile(database);
        if (const std::optional<QByteArray> edited = bytes ? withoutFirefoxAddon(*bytes, ext.id) : std::nullopt) {
            if (writeChecked(database, *edited)) {
                found = true;
                qDebug().noquote() << "[Remover] Removed entry from Firefox extensions.json in" << profile;
            } else {
                errors.append(QStringLiteral("Cannot write ") + database);
            }
        }
        const QString folder = profile + QLatin1String("/extensions/") + ext.id;
        if (exists(folder)) {
            fileSystem().removeFolder(folder.toStdWString());
            found = true;
        }
        const QString package = folder + QLatin1String(".xpi");
        if (exists(package)) {
            fileSystem().removeFile(package.toStdWString());
            found = true;
        }
    }
    if (found)
        return { true, QString() };
    return { false,
        errors.isEmpty() ? QStringLiteral("Extension not found in any Firefox profile")
                         : errors.join(QLatin1Char('\n')) };
}

bool BrowserExtRemover::isBrowserRunning(const QString& browser)
{
    return isBrowserRunning(browser, platform::current().processes());
}

int BrowserExtRemover::killBrowserProcesses(const QString& browser)
{
    return killBrowserProcesses(browser, platform::current().processes(), KillSettleMs);
}

bool BrowserExtRemover::isBrowserRunning(const QString& browser, platform::Processes& processes)
{
    const QString executable = browserext::executableFor(browser);
    if (executable.isEmpty())
        return false;
    for (const platform::ProcessInfo& process : processes.snapshot()) {
        if (QString::fromStdWString(process.imageName).compare(executable, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

int BrowserExtRemover::killBrowserProcesses(const QString& browser, platform::Processes& processes, int settleMs)
{
    const QString executable = browserext::executableFor(browser);
    if (executable.isEmpty())
        return 0;
    int killed = 0;
    for (const platform::ProcessInfo& process : processes.snapshot()) {
        // Counted when opened, as the browser is asked to end whether or not it obeys at once.
        if (QString::fromStdWString(process.imageName).compare(executable, Qt::CaseInsensitive) == 0
            && processes.terminate(process.pid, KillExitCode) != platform::Termination::NotOpened)
            ++killed;
    }
    if (killed > 0 && settleMs > 0)
        QThread::msleep(static_cast<unsigned long>(settleMs));
    return killed;
}
