// A packaged app's manifest: the texts the list shows, their resource references, and the logo
// file it points at.

#include "fuzztarget.h"

#include "winapps/appxmanifest.h"
#include "winapps/winappscanner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

// A package folder with a logo inside and an image beside it that no manifest may reach.
QString packageFolder()
{
    static QTemporaryDir root;
    static const QString folder = [] {
        const QString pkg = root.path() + QStringLiteral("/Contoso.Notes_1.2.3.0_x64__8wekyb3d8bbwe");
        QDir().mkpath(pkg + QStringLiteral("/Assets"));
        for (const QString& file : { pkg + QStringLiteral("/Assets/Square44x44Logo.scale-200.png"),
                 root.path() + QStringLiteral("/outside.png") }) {
            QFile f(file);
            f.open(QIODevice::WriteOnly);
        }
        return pkg;
    }();
    return folder;
}

} // namespace

NORVALE_FUZZ_TARGET(appx_manifest)
{
    const AppxManifest manifest(fuzz::bytes(data, size));
    for (const char* tag : { "DisplayName", "PublisherDisplayName", "Description" }) {
        const QString text = manifest.element(tag);
        const QString reference = WinAppScanner::expandReference(text, QStringLiteral("Contoso.Notes"));
        FUZZ_CHECK(
            text.startsWith(QLatin1String("ms-resource:")) == reference.startsWith(QLatin1String("ms-resource:")));
    }
    const QString folder = packageFolder();
    const QString logo = manifest.logoPath(folder);
    FUZZ_CHECK(logo.isEmpty() || logo.startsWith(folder + QLatin1Char('/')));
    return 0;
}
