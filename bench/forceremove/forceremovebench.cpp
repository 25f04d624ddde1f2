// Times the force-remove scan and the removal of a large install folder in a sandbox, and GNU du
// and rm on an identical tree. The scan's fixed pause after ending processes is reported apart.

#include "forceremove/forceremovescanner.h"
#include "forceremove/toolrunner.h"

#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>

namespace {

constexpr int Folders = 1000;
constexpr int FilesPerFolder = 100;
constexpr int Executables = 200;
constexpr double SettleMs = 300; // the pause after ending processes, part of every scan

// No tool runs: the bench measures the walk and the registry, not taskkill.
class SilentTools final : public ToolRunner {
public:
    ToolResult run(const QString&, const QStringList&, int) override { return ToolResult { true, 0, {} }; }
};

void makeTree(const QString& root)
{
    for (int f = 0; f < Folders; ++f) {
        const QString folder = QStringLiteral("%1/part%2/sub%3").arg(root).arg(f / 50).arg(f);
        QDir().mkpath(folder);
        for (int i = 0; i < FilesPerFolder; ++i) {
            const bool exe = f * FilesPerFolder + i < Executables * 500 && (f * FilesPerFolder + i) % 500 == 0;
            QFile file(QStringLiteral("%1/%2%3").arg(folder).arg(i).arg(
                exe ? QStringLiteral(".exe") : QStringLiteral(".dat")));
            if (file.open(QIODevice::WriteOnly))
                file.write(QByteArray(64 + i, 'x'));
        }
    }
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

double timeCommand(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    process.waitForFinished(-1);
    return timer.nsecsElapsed() / 1e6;
}

template <typename Signal>
double timeUntil(ForceRemoveScanner& scanner, Signal signal, const std::function<void()>& start)
{
    QEventLoop loop;
    QObject::connect(&scanner, signal, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    start();
    loop.exec();
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QString work = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("forceremove-bench");
    const int runs = argc > 2 ? std::max(1, atoi(argv[2])) : 5;
    std::vector<double> scans, removals, dus, rms;
    for (int run = 0; run < runs; ++run) {
        std::filesystem::remove_all(work.toStdString()); // the bench's own scratch folder
        const QString sandbox = work + QStringLiteral("/sandbox");
        const QString copy = work + QStringLiteral("/copy");
        makeTree(sandbox + QStringLiteral("/C/Program Files/Bench App"));
        makeTree(copy);
        platform::SandboxPlatform machine(sandbox.toStdWString());
        platform::setCurrent(&machine);
        {
            ForceRemoveScanner scanner;
            scanner.setToolRunner(std::make_shared<SilentTools>());
            InstalledApp target;
            target.name = QStringLiteral("Bench App");
            target.installLocation = QStringLiteral("C:\\Program Files\\Bench App");
            scans.push_back(
                timeUntil(scanner, &ForceRemoveScanner::scanFinished, [&] { scanner.scan(target); }) - SettleMs);
            removals.push_back(
                timeUntil(scanner, &ForceRemoveScanner::executeFinished, [&] { scanner.execute({ 0 }); }));
        }
        platform::setCurrent(nullptr);
        dus.push_back(timeCommand(QStringLiteral("du"), { QStringLiteral("-sb"), copy }));
        rms.push_back(timeCommand(QStringLiteral("rm"), { QStringLiteral("-rf"), copy }));
    }
    std::filesystem::remove_all(work.toStdString());
    const double scan = median(scans), removal = median(removals), du = median(dus), rm = median(rms);
    std::printf("tree: %d files in %d folders, %d executables; %d runs, medians\n", Folders * FilesPerFolder, Folders,
        Executables, runs);
    std::printf("scan (without the %.0f ms pause): %.1f ms   du -sb: %.1f ms   ratio scan/du: %.2f\n", SettleMs, scan,
        du, scan / du);
    std::printf("removal of the install folder: %.1f ms   rm -rf: %.1f ms   ratio removal/rm: %.2f\n", removal, rm,
        removal / rm);
    return 0;
}
