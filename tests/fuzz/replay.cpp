// Feeds every committed seed to its target once, so the ordinary test run already replays the
// corpus without clang or libFuzzer. A target that breaks aborts the whole run.

#include "fuzztarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <map>

namespace {

std::map<std::string, fuzz::Target>& targets()
{
    static std::map<std::string, fuzz::Target> all;
    return all;
}

} // namespace

bool fuzz::registerTarget(const char* name, Target target)
{
    return targets().emplace(name, target).second;
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <corpus folder>\n", argv[0]);
        return 2;
    }
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int failures = 0;
    for (const auto& [name, target] : targets()) {
        const QDir folder(QString::fromLocal8Bit(argv[1]) + QLatin1Char('/') + QString::fromStdString(name));
        const QStringList seeds = folder.entryList(QDir::Files, QDir::Name);
        // A target without seeds would pass here without ever having run.
        if (seeds.isEmpty()) {
            std::fprintf(stderr, "%s: no seeds in %s\n", name.c_str(), qPrintable(folder.path()));
            ++failures;
            continue;
        }
        for (const QString& seed : seeds) {
            QFile file(folder.filePath(seed));
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "%s: cannot read %s\n", name.c_str(), qPrintable(seed));
                ++failures;
                continue;
            }
            const QByteArray data = file.readAll();
            std::fprintf(stderr, "%s/%s\n", name.c_str(), qPrintable(seed));
            target(reinterpret_cast<const std::uint8_t*>(data.constData()), std::size_t(data.size()));
        }
        std::printf("%-22s %lld seeds\n", name.c_str(), static_cast<long long>(seeds.size()));
    }
    return failures == 0 ? 0 : 1;
}
