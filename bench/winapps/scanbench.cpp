// Times a full packaged-app scan (catalogue, manifests, logos, size walks) over a generated
// sandbox, the size walks on their own, and GNU du on the same install folders, alternating them
// so that all see the same warm cache.
//
//   bench_winapps_scan <sandbox-folder> [runs]
//
// The sandbox (300 packages, 110 files each) is generated on first use and kept for later runs.
// Payload files are sized with ftruncate: the walk reads only metadata.

#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"
#include "winapps/winappscanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <unistd.h>

namespace {

constexpr int Packages = 300;
constexpr int FoldersPerPackage = 10;
constexpr int FilesPerFolder = 10; // plus a manifest, a logo and ten files at the top: 112 each
const QString DoneMarker = QStringLiteral(".generated");

QString appsFolder(const QString& root)
{
    return root + QStringLiteral("/C/Program Files/WindowsApps");
}

void generate(const QString& root)
{
    if (QFile::exists(root + '/' + DoneMarker))
        return;
    std::mt19937 random(7);
    std::uniform_int_distribution<int> size(0, 512 * 1024);
    QByteArray catalogue;
    for (int p = 0; p < Packages; ++p) {
        const QString name = QStringLiteral("Bench.App%1").arg(p, 3, 10, QLatin1Char('0'));
        const QString full = name + QStringLiteral("_1.0.%1.0_x64__benchpublisher").arg(p);
        const QString folder = appsFolder(root) + '/' + full;
        catalogue += "[package]\nname=" + name.toUtf8() + "\nfullName=" + full.toUtf8()
            + "\nfamilyName=" + name.toUtf8() + "_benchpublisher\nversion=1.0." + QByteArray::number(p)
            + ".0\nlocation=C:\\Program Files\\WindowsApps\\" + full.toUtf8() + "\nsignature=store\n\n";
        for (int d = 0; d <= FoldersPerPackage; ++d) {
            const QString sub = d == 0 ? folder : folder + QStringLiteral("/part%1").arg(d);
            QDir().mkpath(sub);
            for (int f = 0; f < FilesPerFolder; ++f) {
                const QByteArray file = QFile::encodeName(sub + QStringLiteral("/f%1.bin").arg(f));
                const int fd = ::open(file.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
                if (fd < 0 || ::ftruncate(fd, size(random)) != 0) {
                    std::perror(file.constData());
                    std::exit(1);
                }
                ::close(fd);
            }
        }
        QFile manifest(folder + QStringLiteral("/AppxManifest.xml"));
        if (manifest.open(QIODevice::WriteOnly))
            manifest.write("<Package><Properties><DisplayName>ms-resource:AppName</DisplayName>"
                           "<PublisherDisplayName>Bench</PublisherDisplayName></Properties>"
                           "<uap:VisualElements Square44x44Logo=\"Assets\\Logo.png\"/></Package>");
        QDir().mkpath(folder + QStringLiteral("/Assets"));
        QFile logo(folder + QStringLiteral("/Assets/Logo.scale-200.png"));
        if (logo.open(QIODevice::WriteOnly))
            logo.write("png");
    }
    QFile file(root + QStringLiteral("/packages.txt"));
    if (file.open(QIODevice::WriteOnly))
        file.write(catalogue);
    QFile(root + '/' + DoneMarker).open(QIODevice::WriteOnly);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_winapps_scan <sandbox-folder> [runs]\n");
        return 2;
    }
    const QString root = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 7;
    generate(root);
    platform::SandboxPlatform sandbox(root.toStdWString());
    platform::setCurrent(&sandbox);

    const QStringList folders = QDir(appsFolder(root)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::vector<double> scanMs, walkMs, duMs;
    qsizetype listed = 0;
    qint64 walkBytes = 0;
    long long duBytes = -1;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        WinAppScanner scanner;
        QObject::connect(
            &scanner, &WinAppScanner::scanDone, &scanner, [&](const QList<WinApp>& apps) { listed = apps.size(); },
            Qt::DirectConnection);
        timer.start();
        scanner.start();
        scanner.wait();
        scanMs.push_back(timer.nsecsElapsed() / 1e6);

        timer.restart();
        walkBytes = 0;
        for (const QString& f : folders)
            walkBytes += WinAppScanner::folderSize(appsFolder(root) + '/' + f);
        walkMs.push_back(timer.nsecsElapsed() / 1e6);

        QProcess du;
        timer.restart();
        du.start(QStringLiteral("du"),
            { QStringLiteral("-s"), QStringLiteral("--apparent-size"), QStringLiteral("--block-size=1"),
                appsFolder(root) });
        du.waitForFinished(-1);
        duMs.push_back(timer.nsecsElapsed() / 1e6);
        duBytes = du.readAllStandardOutput().split('\t').value(0).toLongLong();
    }
    platform::setCurrent(nullptr);

    const double scan = median(scanMs), walk = median(walkMs), duTime = median(duMs);
    std::printf("packages: %d listed of %d, %d files\n", int(listed), Packages,
        Packages * ((FoldersPerPackage + 1) * FilesPerFolder + 2));
    std::printf("scan (median of %d): %.1f ms\n", runs, scan);
    std::printf("size walks alone:    %.1f ms (%.0f%% of the scan)\n", walk, 100.0 * walk / scan);
    std::printf("du -s on the same:   %.1f ms\n", duTime);
    std::printf("walk / du: %.2f, scan / du: %.2f\n", walk / duTime, scan / duTime);
    // du counts folder entries too, the walk only files: compare file bytes with du's total.
    std::printf("walk bytes %lld, du bytes %lld (du adds the folders' own sizes)\n", (long long)walkBytes, duBytes);
    return 0;
}
