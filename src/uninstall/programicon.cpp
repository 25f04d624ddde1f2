#include "programicon.h"

#include "uninstallmanager.h"

#include <platform/environment.h>
#include <platform/iconextractor.h>
#include <platform/platform.h>
#include <platform/uninstallcommandline.h>

#include <QDir>
#include <QFileInfo>
#include <QtConcurrent/QtConcurrentRun>

#include <climits>

namespace {

// ExpandEnvironmentStringsW is given a buffer of this many characters, terminator included; a
// longer expansion does not fit and the icon is not looked for.
constexpr int ExpandBufferChars = 1024;

QImage toImage(const platform::IconImage& icon)
{
    QImage image;
    if (!icon.rgba.empty()) {
        const qsizetype expected = qsizetype(icon.width) * icon.height * 4;
        if (icon.width <= 0 || icon.height <= 0 || qsizetype(icon.rgba.size()) != expected)
            return QImage();
        image = QImage(icon.rgba.data(), icon.width, icon.height, icon.width * 4, QImage::Format_RGBA8888).copy();
    } else if (!icon.encoded.empty()) {
        image = QImage::fromData(icon.encoded.data(), int(icon.encoded.size()));
    }
    if (image.isNull())
        return image;
    return image.scaled(ProgramIcon::Side, ProgramIcon::Side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ProgramIcon::Location ProgramIcon::parseLocation(const QString& text)
{
    Location loc;
    QString path = text.trimmed();
    const int comma = path.lastIndexOf(QLatin1Char(','));
    if (comma > 0) {
        bool ok = false;
        const int index = path.mid(comma + 1).trimmed().toInt(&ok);
        // A negative number names a resource identifier to Windows; it is taken as a plain index
        // on purpose. The one negative int without a positive partner is not an index at all.
        if (ok && index != INT_MIN) {
            loc.index = index < 0 ? -index : index;
            path = path.left(comma).trimmed();
        }
    }
    loc.path = path.remove(QLatin1Char('"'));
    return loc;
}

QString ProgramIcon::uninstallerPath(const QString& uninstallString)
{
    QString text = uninstallString;
    text.remove(QLatin1Char('"'));
    const int exe = text.indexOf(QLatin1String(".exe"), 0, Qt::CaseInsensitive);
    return exe > 0 ? text.left(exe + 4) : QString();
}

QImage ProgramIcon::fromLocation(const QString& text)
{
    Location loc = parseLocation(text);
    if (loc.path.isEmpty())
        return QImage();
    if (loc.path.contains(QLatin1Char('%'))) {
        const QString expanded
            = QString::fromStdWString(platform::current().environment().expand(loc.path.toStdWString()));
        if (expanded.size() >= ExpandBufferChars)
            return QImage();
        loc.path = expanded;
    }
    // Reading an icon from a share would make the list contact another machine.
    if (platform::isNetworkPath(loc.path.toStdWString()))
        return QImage();
    // Expanded variables may bring forward slashes and the entry backslashes; one kind of
    // separator serves both the existence check and the extraction.
    const QString path = QDir::toNativeSeparators(loc.path.replace(QLatin1Char('\\'), QLatin1Char('/')));
    if (!QFileInfo::exists(UninstallManager::localPath(path)))
        return QImage();
    const platform::IconResult result = platform::current().icons().extract(path.toStdWString(), loc.index);
    return toImage(result.image);
}

QImage ProgramIcon::forApp(const InstalledApp& app)
{
    if (!app.displayIcon.isEmpty()) {
        if (QImage image = fromLocation(app.displayIcon); !image.isNull())
            return image;
    }
    if (!app.uninstallString.isEmpty()) {
        const QString uninstaller = uninstallerPath(app.uninstallString);
        if (!uninstaller.isEmpty()) {
            if (QImage image = fromLocation(uninstaller); !image.isNull())
                return image;
        }
    }
    const QString exe = UninstallManager::mainExecutable(app.installLocation);
    if (!exe.isEmpty())
        return fromLocation(exe);
    return QImage();
}

QFuture<QImage> ProgramIcon::loadAsync(const InstalledApp& app)
{
    return QtConcurrent::run([app] { return forApp(app); });
}
