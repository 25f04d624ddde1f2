// Times the global residue scan and GNU du over the same three roots of one generated profile,
// alternating the two so that both see the same warm cache.
//
//   bench_residue_scan <profile-folder> [runs]
//
// The profile is a sandbox machine: 320 program folders in Roaming, Local and ProgramData with
// 200,000 files between them (eight large folders of 12,500 files, the rest of about 320), a
// third of them belonging to installed programs. It is generated on first use and kept; files are
// sized with ftruncate, since the scan reads only metadata.

#include <residue/residuescanner.h>

#include <platform/platform.h>
#include <platform/sandbox/sandboxplatform.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <unistd.h>

namespace {

constexpr int FoldersPerRoot[] = { 120, 120, 80 };
constexpr int LargeFolderEvery = 40; // eight large folders in all
constexpr int LargeFolderFiles = 12500;
constexpr int SmallFolderFiles = 321;
constexpr const char* DoneMarker = "/.generated";

QStringList roots(const QString& profile)
{
    const QString user = profile + "/C/Users/User/AppData";
    return { user + "/Roaming", user + "/Local", profile + "/C/ProgramData" };
}

QString programName(int root, int i)
{
    return QString("Program%1%2").arg(root).arg(i, 3, 10, QChar('0'));
}

bool installed(int i)
{
    return i % 3 == 0;
}

long long generate(const QString& profile)
{
    long long files = 0;
    if (QFile::exists(profile + DoneMarker)) {
        QFile marker(profile + DoneMarker);
        marker.open(QIODevice::ReadOnly);
        return marker.readAll().toLongLong();
    }
    QDir(profile).removeRecursively();
    std::mt19937 random(7);
    std::uniform_int_distribution<int> size(0, 64 * 1024);
    const QStringList rootList = roots(profile);
    for (int r = 0; r < rootList.size(); ++r) {
        for (int i = 0; i < FoldersPerRoot[r]; ++i) {
            const QString folder = rootList.at(r) + "/" + programName(r, i);
            const int count = i % LargeFolderEvery == 1 ? LargeFolderFiles : SmallFolderFiles;
            for (int f = 0; f < count; ++f) {
                // A third in a cache folder, a few logs, the rest in nested data folders.
                const QString sub = f % 3 == 0 ? QString("Cache")
                    : f % 50 == 1              ? QString("logs")
                                               : QString("data/part%1/set%2").arg(f % 7).arg(f / 500);
                const QString dir = folder + "/" + sub;
                QDir().mkpath(dir);
                const QByteArray path = (dir + QString("/f%1.bin").arg(f)).toLocal8Bit();
                const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
                if (fd < 0 || ::ftruncate(fd, size(random)) != 0) {
                    std::perror(path.constData());
                    std::exit(1);
                }
                ::close(fd);
                ++files;
            }
        }
    }
    QFile marker(profile + DoneMarker);
    marker.open(QIODevice::WriteOnly);
    marker.write(QByteArray::number(files));
    return files;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

struct ScanRun {
    double ms = 0;
    qint64 bytes = 0;
    int items = 0;
};

ScanRun runScan(ResidueScanner& scanner)
{
    ScanRun run;
    QEventLoop loop;
    const auto connection = QObject::connect(&scanner, &ResidueScanner::scanFinished, &loop, [&](qint64 total) {
        run.bytes = total;
        loop.quit();
    });
    QElapsedTimer timer;
    timer.start();
    scanner.scan();
    loop.exec();
    run.ms = timer.nsecsElapsed() / 1e6;
    run.items = int(scanner.results().size());
    QObject::disconnect(connection);
    return run;
}

double runDu(const QStringList& rootList, qint64& bytes)
{
    QProcess du;
    QElapsedTimer timer;
    timer.start();
    du.start("du", QStringList { "-s", "-c", "--apparent-size", "--block-size=1" } + rootList);
    du.waitForFinished(-1);
    const double ms = timer.nsecsElapsed() / 1e6;
    const QList<QByteArray> lines = du.readAllStandardOutput().trimmed().split('\n');
    bytes = lines.isEmpty() ? -1 : lines.last().split('\t').first().toLongLong();
    return ms;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <profile-folder> [runs]\n", argv[0]);
        return 2;
    }
    const QString profile = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 9;
    const long long files = generate(profile);

    platform::SandboxPlatform sandbox(profile.toStdWString());
    platform::setCurrent(&sandbox);

    QStringList installedNames;
    for (int r = 0; r < 3; ++r) {
        for (int i = 0; i < FoldersPerRoot[r]; ++i) {
            if (installed(i))
                installedNames << programName(r, i) + " Studio";
        }
    }
    ResidueScanner scanner;
    scanner.setInstalledApps(installedNames, {});

    qint64 duBytes = 0;
    runScan(scanner); // warm the cache for both
    runDu(roots(profile), duBytes);
    QList<double> scanMs, duMs;
    ScanRun last;
    for (int i = 0; i < runs; ++i) {
        last = runScan(scanner);
        scanMs << last.ms;
        duMs << runDu(roots(profile), duBytes);
    }
    const double scan = median(scanMs);
    const double du = median(duMs);
    std::printf("profile         %s (320 program folders, %lld files)\n", qPrintable(profile), files);
    std::printf("runs            %d, warm cache\n", runs);
    std::printf("global scan     median %.1f ms, %d items, %lld bytes (capped walks: lower bounds)\n", scan, last.items,
        static_cast<long long>(last.bytes));
    std::printf("du (3 roots)    median %.1f ms, %lld bytes\n", du, static_cast<long long>(duBytes));
    std::printf("ratio           %.2f (scan / du)\n", scan / du);
    platform::setCurrent(nullptr);
    return 0;
}
