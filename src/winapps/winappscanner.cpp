#include "winappscanner.h"

#include "appxmanifest.h"
#include "platform/packagecatalogue.h"
#include "platform/platform.h"

#include <QDateTime>
#include <QDebug>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;
constexpr int ProgressEvery = 5;

const QLatin1String ResourcePrefix("ms-resource");
const QLatin1String ResourceScheme("ms-resource:");
const QLatin1String EdgePrefix("Microsoft.MicrosoftEdge");

const QStringList& hiddenPrefixes()
{
    // System shells, runtimes, overlays and language parts. "Microsoft.Windows.SecHealthUI" is
    // listed twice on purpose: the list is kept exactly as it is maintained upstream of this code.
    static const QStringList prefixes = {
        QStringLiteral("MicrosoftWindows.Client."),
        QStringLiteral("MicrosoftWindows.60"),
        QStringLiteral("Microsoft.Windows.ShellExperienceHost"),
        QStringLiteral("Microsoft.Windows.StartMenuExperienceHost"),
        QStringLiteral("Microsoft.Windows.Search"),
        QStringLiteral("Microsoft.Windows.OOBE"),
        QStringLiteral("Microsoft.Windows.OOBENetwork"),
        QStringLiteral("Microsoft.Windows.PeopleExperienceHost"),
        QStringLiteral("Microsoft.Windows.XGpuEjectDialog"),
        QStringLiteral("Microsoft.Windows.PrintQueueActionCenter"),
        QStringLiteral("Microsoft.Windows.Cortana"),
        QStringLiteral("Microsoft.Windows.SecureAssessmentBrowser"),
        QStringLiteral("Microsoft.Windows.NarratorQuickStart"),
        QStringLiteral("Microsoft.Windows.ParentalControls"),
        QStringLiteral("Microsoft.Windows.CloudExperienceHost"),
        QStringLiteral("Microsoft.Windows.ContentDeliveryManager"),
        QStringLiteral("Microsoft.Windows.SecHealthUI"),
        QStringLiteral("Microsoft.Windows.SecHealthUI"),
        QStringLiteral("Microsoft.Windows.Wifi"),
        QStringLiteral("Microsoft.Windows.DevHome"),
        QStringLiteral("Microsoft.SecHealthUI"),
        QStringLiteral("Microsoft.StartExperiencesApp"),
        QStringLiteral("Microsoft.StorePurchaseApp"),
        QStringLiteral("Microsoft.DesktopAppInstaller"),
        QStringLiteral("Microsoft.WindowsPackageManagerSource"),
        QStringLiteral("Microsoft.WindowsAppRuntime"),
        QStringLiteral("WinAppRuntime."),
        QStringLiteral("Microsoft.UI.Xaml"),
        QStringLiteral("Microsoft.VCLibs"),
        QStringLiteral("Microsoft.NET.Native"),
        QStringLiteral("Microsoft.DirectX"),
        QStringLiteral("Microsoft.AAD."),
        QStringLiteral("Microsoft.AccountsControl"),
        QStringLiteral("Microsoft.BioEnrollment"),
        QStringLiteral("Microsoft.CredDialogHost"),
        QStringLiteral("Microsoft.LockApp"),
        QStringLiteral("Microsoft.Win32WebViewHost"),
        QStringLiteral("Microsoft.LanguageExperiencePack"),
        QStringLiteral("Microsoft.OneDriveSync"),
        QStringLiteral("Microsoft.XboxGameOverlay"),
        QStringLiteral("Microsoft.XboxSpeechToTextOverlay"),
        QStringLiteral("Microsoft.Xbox.TCUI"),
        QStringLiteral("NcsiUwpApp"),
        QStringLiteral("LanguageExperiencePack"),
        QStringLiteral("MicrosoftWindows.Speech"),
        QStringLiteral("Microsoft.Windows.SpeechPack"),
        QStringLiteral("MicrosoftWindows.Client.WebExperience"),
        QStringLiteral("Microsoft.Winget.Source"),
    };
    return prefixes;
}

const QStringList& hiddenParts()
{
    static const QStringList parts = {
        QStringLiteral("LanguageExperiencePack"),
        QStringLiteral("SpeechPack"),
        QStringLiteral("Speech Pack"),
        QStringLiteral("Local Experience Pack"),
        QStringLiteral("InputApp"),
        QStringLiteral("VideoExtension"),
        QStringLiteral("ImageExtension"),
        QStringLiteral("WebMediaExtension"),
        QStringLiteral("MPEG2Video"),
        QStringLiteral("MPEG-2"),
    };
    return parts;
}

// A text fit to show: plain text as it is, a resource reference only once the loader resolved it.
QString usableText(const QString& text, const platform::PackageRecord& package, platform::PackageCatalogue& catalogue)
{
    if (text.isEmpty())
        return QString();
    if (!text.startsWith(ResourcePrefix))
        return text;
    if (!text.startsWith(ResourceScheme))
        return QString();
    const QString reference = WinAppScanner::expandReference(text, QString::fromStdWString(package.name));
    const QString source = QStringLiteral("@{%1?%2}").arg(QString::fromStdWString(package.fullName), reference);
    const auto resolved = catalogue.loadIndirectString(source.toStdWString());
    if (!resolved)
        return QString();
    const QString value = QString::fromStdWString(*resolved);
    return value.isEmpty() || value.startsWith(ResourcePrefix) ? QString() : value;
}

} // namespace

WinAppScanner::WinAppScanner(QObject* parent)
    : QThread(parent)
{
    qRegisterMetaType<WinApp>();
    qRegisterMetaType<QList<WinApp>>();
}

bool WinAppScanner::isHidden(const platform::PackageRecord& package)
{
    const QString name = QString::fromStdWString(package.name);
    const bool edge = name.startsWith(EdgePrefix);
    if (package.isFramework || package.isResourcePackage)
        return true;
    if (package.signature == platform::PackageSignature::System && !edge)
        return true;
    if (package.isBundle && !edge)
        return true;
    for (const QString& prefix : hiddenPrefixes()) {
        if (name.startsWith(prefix, Qt::CaseInsensitive))
            return true;
    }
    for (const QString& part : hiddenParts()) {
        if (name.contains(part, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString WinAppScanner::expandReference(const QString& reference, const QString& packageName)
{
    const QLatin1String rooted("ms-resource:///");
    const QLatin1String authority("ms-resource://");
    if (reference.startsWith(rooted))
        return authority + packageName + QLatin1Char('/') + reference.mid(rooted.size());
    if (reference.startsWith(authority)) {
        const QString rest = reference.mid(authority.size());
        if (!rest.contains(QLatin1Char('/')))
            return authority + packageName + QLatin1String("/Resources/") + rest;
    }
    return reference;
}

QString WinAppScanner::formatSize(qint64 bytes)
{
    if (bytes <= 0)
        return QString();
    if (bytes >= GiB)
        return QStringLiteral("%1 GB").arg(double(bytes) / GiB, 0, 'f', 2);
    if (bytes >= MiB)
        return QStringLiteral("%1 MB").arg(qRound64(double(bytes) / MiB));
    if (bytes < KiB)
        return QStringLiteral("%1 B").arg(bytes);
    return QStringLiteral("%1 KB").arg(qRound64(double(bytes) / KiB));
}

qint64 WinAppScanner::folderSize(const QString& folder)
{
    qint64 total = 0;
    QDirIterator it(folder, QDir::Files | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDirIterator::Subdirectories);
    const QThread* thread = QThread::currentThread();
    while (it.hasNext() && !thread->isInterruptionRequested()) {
        it.next();
        total += it.fileInfo().size();
    }
    return total;
}

QString WinAppScanner::folderDate(const QString& folder)
{
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir())
        return QString();
    const QLatin1String format("yyyy/M/d");
    const QString born = info.birthTime().toString(format);
    return born.isEmpty() ? info.lastModified().toString(format) : born;
}

WinApp WinAppScanner::makeApp(const platform::PackageRecord& package, platform::PackageCatalogue& catalogue)
{
    WinApp app;
    app.name = QString::fromStdWString(package.name);
    app.fullName = QString::fromStdWString(package.fullName);
    app.displayName = app.name;
    app.version = QStringLiteral("%1.%2.%3.%4")
                      .arg(package.version.major)
                      .arg(package.version.minor)
                      .arg(package.version.build)
                      .arg(package.version.revision);
    app.publisherId = QString::fromStdWString(package.publisherId);
    app.wingetId = QString::fromStdWString(package.familyName);

    const QString folder = QString::fromStdWString(package.installLocation);
    app.installDate = folderDate(folder);
    if (!app.installDate.isEmpty())
        app.sizeText = formatSize(folderSize(folder));

    const AppxManifest manifest = AppxManifest::load(folder);
    QString displayName = usableText(manifest.element("DisplayName"), package, catalogue);
    if (displayName.isEmpty())
        displayName = usableText(QString::fromStdWString(package.displayName), package, catalogue);
    if (!displayName.isEmpty())
        app.displayName = displayName;
    app.publisher = usableText(manifest.element("PublisherDisplayName"), package, catalogue);
    if (app.publisher.isEmpty())
        app.publisher = usableText(QString::fromStdWString(package.publisherDisplayName), package, catalogue);
    app.logoPath = manifest.logoPath(folder);
    return app;
}

void WinAppScanner::run()
{
    QList<WinApp> apps;
    platform::PackageCatalogue& catalogue = platform::current().packages();
    const platform::CatalogueStatus status
        = catalogue.forEachPackage([](const platform::PackageRecord& package) { return !isHidden(package); },
            [&](const platform::PackageRecord& package) {
                if (isInterruptionRequested())
                    return;
                WinApp app = makeApp(package, catalogue);
                if (app.fullName.isEmpty())
                    return;
                apps.append(std::move(app));
                if (apps.size() % ProgressEvery == 0)
                    emit scanProgress(int(apps.size()));
            });
    if (!status.ok) {
        // What was collected before the failure is still worth showing.
        qWarning("WinAppScanner: WinRT init failed");
        qWarning("[WinApps] failing call: %s 0x%08x, %d apps kept", status.failedCall.c_str(), status.error,
            int(apps.size()));
    }
    // The page that asked is going away: a partial list would only be wrong.
    if (isInterruptionRequested())
        return;
    std::stable_sort(apps.begin(), apps.end(),
        [](const WinApp& a, const WinApp& b) { return a.displayName.toLower() < b.displayName.toLower(); });
    emit scanDone(apps);
}
