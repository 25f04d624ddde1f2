// Times the extension scan and a plain recursive listing of the same profile folders, alternating
// the two so that both see the same warm cache.
//
//   bench_browserext_scan <sandbox-folder> [runs]
//
// The machine (Chrome, Edge and Firefox, 4 profiles each, 150 extensions per profile, each with a
// manifest, three locales and three icons) is generated on first use and kept for later runs.

#include "browserext/browserextscanner.h"

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QProcess>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int Profiles = 4;
constexpr int ExtensionsPerProfile = 150;
const char* const DoneMarker = ".generated";

void write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        std::exit(1);
    }
}

// 32 letters from a to p, as Chromium derives IDs: the hex digits of a hash, shifted to letters.
QString chromiumId(int profile, int index)
{
    const QByteArray hex
        = QCryptographicHash::hash(QByteArray::number(profile * 1000 + index), QCryptographicHash::Md5).toHex();
    QString id;
    for (const char c : hex)
        id += QChar('a' + (c <= '9' ? c - '0' : c - 'a' + 10));
    return id;
}

// An extension's files: a localised manifest, three locales and three icons.
void writeExtension(const QString& folder, int index)
{
    write(folder + "/manifest.json",
        QJsonDocument(
            QJsonObject { { "name", "__MSG_appName__" }, { "description", "__MSG_appDesc__" },
                { "default_locale", "en" }, { "version", QString("1.%1.0").arg(index) }, { "manifest_version", 3 },
                { "icons",
                    QJsonObject { { "16", "icons/16.png" }, { "48", "icons/48.png" }, { "128", "icons/128.png" } } } })
            .toJson());
    for (const char* locale : { "en", "de", "zh_CN" }) {
        write(folder + "/_locales/" + locale + "/messages.json",
            QJsonDocument(
                QJsonObject {
                    { "appName", QJsonObject { { "message", QString("Extension %1 %2").arg(index).arg(locale) } } },
                    { "appDesc", QJsonObject { { "message", "Does useful things" } } } })
                .toJson());
    }
    for (const char* size : { "16", "48", "128" })
        write(folder + "/icons/" + size + ".png", QByteArray(512, 'p'));
}

void generate(const QString& local, const QString& roaming, const QString& marker)
{
    if (QFile::exists(marker))
        return;
    for (const char* userData : { "/Google/Chrome/User Data", "/Microsoft/Edge/User Data" }) {
        for (int p = 0; p < Profiles; ++p) {
            const QString profile = local + userData + (p == 0 ? QString("/Default") : QString("/Profile %1").arg(p));
            QJsonObject settings;
            for (int i = 0; i < ExtensionsPerProfile; ++i) {
                const QString id = chromiumId(p, i);
                writeExtension(profile + "/Extensions/" + id + "/1." + QString::number(i) + ".0_0", i);
                settings.insert(
                    id, QJsonObject { { "location", 1 }, { "state", 1 }, { "install_time", "13345678901234567" } });
            }
            write(profile + "/Preferences",
                QJsonDocument(QJsonObject { { "extensions", QJsonObject { { "settings", settings } } } })
                    .toJson(QJsonDocument::Compact));
        }
    }
    for (int p = 0; p < Profiles; ++p) {
        const QString profile = roaming + QString("/Mozilla/Firefox/Profiles/p%1.default").arg(p);
        QJsonArray addons;
        for (int i = 0; i < ExtensionsPerProfile; ++i) {
            const QString id = QString("addon-%1-%2@example.org").arg(p).arg(i);
            writeExtension(profile + "/extensions/" + id, i);
            addons.append(QJsonObject { { "id", id }, { "type", "extension" }, { "active", true }, { "version", "1.0" },
                { "location", "app-profile" },
                { "defaultLocale",
                    QJsonObject { { "name", QString("Add-on %1").arg(i) }, { "description", "Useful" } } },
                { "icons", QJsonObject { { "32", "icons/48.png" }, { "64", "icons/128.png" } } } });
        }
        write(profile + "/extensions.json",
            QJsonDocument(QJsonObject { { "addons", addons } }).toJson(QJsonDocument::Compact));
    }
    write(marker, QByteArray());
}

qint64 scanOnce(int& found)
{
    BrowserExtScanner scanner;
    QObject::connect(
        &scanner, &BrowserExtScanner::scanDone, &scanner,
        [&found](const QList<BrowserExt>& list) { found = list.size(); }, Qt::DirectConnection);
    QElapsedTimer timer;
    timer.start();
    scanner.start();
    scanner.wait();
    return timer.nsecsElapsed();
}

qint64 listOnce(const QStringList& roots, int& entries)
{
    QElapsedTimer timer;
    timer.start();
    entries = 0;
    for (const QString& root : roots) {
        QDirIterator it(
            root, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            it.next();
            ++entries;
        }
    }
    return timer.nsecsElapsed();
}

// GNU find over the same folders, its listing sent to /dev/null; -1 when it cannot run.
qint64 findOnce(const QStringList& roots)
{
    QProcess find;
    find.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    find.start(QStringLiteral("find"), roots);
    if (!find.waitForFinished(60000) || find.exitCode() != 0)
        return -1;
    return timer.nsecsElapsed();
}

double medianMs(std::vector<qint64> ns)
{
    std::sort(ns.begin(), ns.end());
    const std::size_t n = ns.size();
    const double mid = n % 2 ? ns[n / 2] : (ns[n / 2 - 1] + ns[n / 2]) / 2.0;
    return mid / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <sandbox-folder> [runs]\n", argv[0]);
        return 2;
    }
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 9;
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // the scan's log lines are not timed

    const QString root = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    QDir().mkpath(root);
    platform::SandboxPlatform machine(root.toStdWString());
    platform::setCurrent(&machine);
    const QString local = QString::fromStdWString(machine.environment().localAppData());
    const QString roaming = QString::fromStdWString(machine.environment().roamingAppData());
    generate(local, roaming, root + "/" + DoneMarker);
    const QStringList roots { local + "/Google/Chrome/User Data", local + "/Microsoft/Edge/User Data",
        roaming + "/Mozilla/Firefox/Profiles" };

    int found = 0, entries = 0;
    scanOnce(found); // warm the cache for both
    listOnce(roots, entries);
    std::vector<qint64> scanNs, listNs, findNs;
    for (int i = 0; i < runs; ++i) {
        scanNs.push_back(scanOnce(found));
        listNs.push_back(listOnce(roots, entries));
        findNs.push_back(findOnce(roots));
    }
    platform::setCurrent(nullptr);

    const double scan = medianMs(scanNs), list = medianMs(listNs);
    std::printf("machine         %s\n", qPrintable(root));
    std::printf("set             3 browsers x %d profiles x %d extensions, %d entries on disk\n", Profiles,
        ExtensionsPerProfile, entries);
    std::printf("runs            %d, warm cache\n", runs);
    std::printf("scan            median %.1f ms, %d extensions listed\n", scan, found);
    std::printf("listing         median %.1f ms (QDirIterator over the same folders)\n", list);
    std::printf("ratio           %.2f (scan / listing)\n", scan / list);
    if (std::find(findNs.begin(), findNs.end(), -1) == findNs.end()) {
        const double find = medianMs(findNs);
        std::printf("find            median %.1f ms (GNU find, process start included)\n", find);
        std::printf("ratio           %.2f (scan / find)\n", scan / find);
    }
    // Chrome and Edge list each ID once per browser, Firefox each add-on of each profile.
    const int expected = 2 * Profiles * ExtensionsPerProfile + Profiles * ExtensionsPerProfile;
    if (found != expected) {
        std::fprintf(stderr, "expected %d extensions, the scan listed %d\n", expected, found);
        return 1;
    }
    return 0;
}
