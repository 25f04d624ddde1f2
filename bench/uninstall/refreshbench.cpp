// Times UninstallManager::refresh() over a generated sandbox machine: 2,000 registered programs,
// each with an install folder holding a few executables, and a UserAssist key that knows some
// of them. Prints the median refresh time and the share of it that the main-executable lookups
// take (timed on their own over the same folders).

#include <uninstall/uninstallmanager.h>

#include <platform/platform.h>
#include <platform/sandbox/sandboxplatform.h>

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int Entries = 2000;

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

QString hex(const QByteArray& bytes)
{
    QStringList parts;
    for (char c : bytes)
        parts << QString::asprintf("%02x", static_cast<unsigned char>(c));
    return parts.join(',');
}

void generate(const QString& root)
{
    QFile reg(root + "/registry.reg");
    reg.open(QIODevice::WriteOnly);
    QTextStream out(&reg);
    out << "Windows Registry Editor Version 5.00\n\n";
    const QDate today = QDate::currentDate();
    for (int i = 0; i < Entries; ++i) {
        const QString id = QString("App%1").arg(i, 4, 10, QChar('0'));
        const QString folder = QString("C:\\\\Program Files\\\\%1").arg(id);
        out << "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" << id << "]\n";
        // A few runtimes and updates among them, as on a real machine.
        const QString name = i % 25 == 0 ? QString("Microsoft Visual C++ 2015 Redistributable %1").arg(i)
            : i % 40 == 0                ? QString("Security Update for %1").arg(id)
                                         : QString("Sample Program %1").arg(id);
        out << "\"DisplayName\"=\"" << name << "\"\n";
        out << "\"Publisher\"=\"Vendor " << (i % 97) << "\"\n";
        out << "\"DisplayVersion\"=\"" << (i % 9) << ".0." << i << "\"\n";
        out << "\"InstallDate\"=\"" << today.addDays(-(i % 900)).toString("yyyyMMdd") << "\"\n";
        if (i % 30 != 0)
            out << "\"UninstallString\"=\"\\\"" << folder << "\\\\unins000.exe\\\" /S\"\n";
        out << "\"InstallLocation\"=\"" << folder << "\"\n";
        out << "\"DisplayIcon\"=\"" << folder << "\\\\" << id << ".exe,0\"\n";
        out << "\"EstimatedSize\"=dword:" << QString::asprintf("%08x", (i * 7919) % 900000) << "\n\n";

        const QString dir = root + "/C/Program Files/" + id;
        QDir().mkpath(dir);
        const QList<QPair<QString, int>> files = { { id + ".exe", 4096 + i }, { "unins000.exe", 2048 },
            { "helper.exe", 1024 + (i % 3000) }, { "readme.txt", 100 } };
        for (const auto& [file, size] : files) {
            QFile f(dir + "/" + file);
            f.open(QIODevice::WriteOnly);
            f.resize(size);
        }
    }
    out << "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\UserAssist\\"
           "{CEBFF5CD-ACE2-4F4F-9178-9926F41749EA}\\Count]\n";
    for (int i = 0; i < Entries; i += 3) {
        const QString path = QString("C:\\Program Files\\App%1\\helper.exe").arg(i, 4, 10, QChar('0'));
        QByteArray data(64, '\0');
        const quint64 ft
            = quint64(QDateTime::currentSecsSinceEpoch() - qint64(i % 400) * 86400 + 11644473600LL) * 10000000ULL;
        for (int b = 0; b < 8; ++b)
            data[16 + b] = char(ft >> (8 * b));
        out << "\"" << UninstallManager::rot13(path).replace("\\", "\\\\") << "\"=hex:" << hex(data) << "\n";
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, atoi(argv[1])) : 9;
    qSetMessagePattern("%{if-warning}%{message}%{endif}"); // the manager's debug lines are not figures

    QTemporaryDir dir;
    generate(dir.path());
    platform::SandboxPlatform sandbox(dir.path().toStdWString());
    platform::setCurrent(&sandbox);

    UninstallManager manager;
    std::vector<double> refresh;
    int listed = 0;
    for (int r = 0; r < runs; ++r) {
        QEventLoop loop;
        QObject::connect(&manager, &UninstallManager::refreshFinished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        QElapsedTimer timer;
        timer.start();
        manager.refresh();
        loop.exec();
        refresh.push_back(timer.nsecsElapsed() / 1e6);
        listed = manager.apps().size();
    }

    const QList<InstalledApp> apps = manager.apps();
    std::vector<double> lookups;
    for (int r = 0; r < runs; ++r) {
        QElapsedTimer timer;
        timer.start();
        int found = 0;
        for (const InstalledApp& a : apps)
            found += !UninstallManager::mainExecutable(a.installLocation).isEmpty();
        lookups.push_back(timer.nsecsElapsed() / 1e6);
        if (found != listed - 0 && r == 0 && found == 0)
            std::fprintf(stderr, "no executables found: the generated tree is wrong\n");
    }

    const double refreshMs = median(refresh);
    const double lookupMs = median(lookups);
    std::printf("uninstall refresh: %d entries generated, %d listed, %d runs\n", Entries, listed, runs);
    std::printf("  median refresh time            %8.1f ms\n", refreshMs);
    std::printf(
        "  median main-executable lookups %8.1f ms (%.0f %% of a refresh)\n", lookupMs, 100.0 * lookupMs / refreshMs);
    platform::setCurrent(nullptr);
    return 0;
}
