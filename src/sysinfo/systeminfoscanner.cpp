#include "systeminfoscanner.h"

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/systemcounters.h"
#include "platform/systemfacts.h"

#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

#include <limits>

namespace {

constexpr int RefreshIntervalMs = 1500;
// Beyond this the hero card's line is cut, so the name is shortened to fit with an ellipsis.
constexpr qsizetype CpuNameMaxChars = 36;
constexpr qsizetype CpuNameKeptChars = 34;
// Windows 11 kept "Windows 10" in its product name; its builds start here.
constexpr int FirstWindows11Build = 22000;

QString cleanProcessorName(const QString& raw)
{
    QString name = raw.simplified();
    name.remove(QStringLiteral("(R)"));
    name.remove(QStringLiteral("(TM)"));
    name = name.simplified();
    if (name.size() > CpuNameMaxChars)
        name = name.left(CpuNameKeptChars) + QChar(0x2026);
    return name;
}

QString windowsName(QString productName, int build)
{
    if (build >= FirstWindows11Build && productName.contains(QStringLiteral("Windows 10")))
        productName.replace(QStringLiteral("Windows 10"), QStringLiteral("Windows 11"));
    return productName;
}

int toInt(quint64 v)
{
    return v > quint64(std::numeric_limits<int>::max()) ? std::numeric_limits<int>::max() : int(v);
}

} // namespace

SystemInfoScanner::SystemInfoScanner(QObject* parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
{
    qRegisterMetaType<SystemMetrics>();
    m_timer->setInterval(RefreshIntervalMs);
    connect(m_timer, &QTimer::timeout, this, &SystemInfoScanner::refresh);
}

SystemInfoScanner::~SystemInfoScanner()
{
    m_timer->stop();
    // The pool task writes into this object; it is short (a few registry reads), so wait for it.
    m_staticTask.waitForFinished();
}

void SystemInfoScanner::loadStaticInfo()
{
    if (m_staticTask.isRunning())
        return; // the facts are on their way already
    m_staticTask = QtConcurrent::run([this] { gatherStaticInfo(); });
}

void SystemInfoScanner::startMonitoring()
{
    m_timer->start();
}

void SystemInfoScanner::refresh()
{
    sampleCpu();
    sampleMemory();
    sampleDisk();
    emit metricsUpdated(m_metrics);
}

void SystemInfoScanner::gatherStaticInfo()
{
    platform::Platform& pf = platform::current();
    const platform::SystemFacts facts = platform::SystemFacts::read(pf.registry());

    m_cpuName = cleanProcessorName(QString::fromStdWString(facts.processorName));
    m_cpuCores = toInt(pf.counters().processorCount());

    if (facts.windows) {
        const QString product = QString::fromStdWString(facts.windows->productName).trimmed();
        const QString build = QString::fromStdWString(facts.windows->buildNumber).trimmed();
        const QString display = QString::fromStdWString(facts.windows->displayVersion).trimmed();
        m_osName = windowsName(product, build.toInt());
        m_buildText = QStringLiteral("Build %1.%2  %3").arg(build, QString::number(facts.windows->ubr), display);
    }
    m_updatesInstalled = toInt(facts.updatesInstalled);
    emit staticInfoReady();

    sampleCpu();
    sampleMemory();
    sampleDisk();
    emit metricsUpdated(m_metrics);
}

void SystemInfoScanner::sampleCpu()
{
    const auto times = platform::current().counters().systemTimes();
    if (!times)
        return;
    // Signed differences: a counter that steps backwards yields a value outside 0..100, which
    // the clamp below turns into a full or empty gauge instead of a wrapped number.
    const qint64 idle = qint64(times->idle - m_prevIdle);
    const qint64 kernel = qint64(times->kernel - m_prevKernel);
    const qint64 user = qint64(times->user - m_prevUser);
    m_prevIdle = times->idle;
    m_prevKernel = times->kernel;
    m_prevUser = times->user;

    // Below this the sums and the ×100 cannot overflow; only absurd counters go through double.
    constexpr qint64 ExactLimit = std::numeric_limits<qint64>::max() / 400;
    const auto exact = [](qint64 v) { return v > -ExactLimit && v < ExactLimit; };
    qint64 percent = 0;
    if (exact(idle) && exact(kernel) && exact(user)) {
        const qint64 total = kernel + user;
        if (total == 0)
            return;
        percent = (total - idle) * 100 / total;
    } else {
        const double total = double(kernel) + double(user);
        if (total == 0)
            return;
        percent = qint64(qBound(-1.0, (total - double(idle)) * 100 / total, 101.0));
    }
    m_metrics.cpuPercent = qint32(qBound(qint64(0), percent, qint64(100)));
}

void SystemInfoScanner::sampleMemory()
{
    const auto mem = platform::current().counters().memoryStatus();
    if (!mem)
        return;
    m_metrics.memPercent = mem->loadPercent;
    m_metrics.memUsedMB = (mem->totalPhysBytes - qMin(mem->availPhysBytes, mem->totalPhysBytes)) >> 20;
    m_metrics.memTotalMB = mem->totalPhysBytes >> 20;
}

void SystemInfoScanner::sampleDisk()
{
    platform::Platform& pf = platform::current();
    const auto disk = pf.counters().diskSpace(pf.environment().systemDriveRoot());
    if (!disk)
        return;
    m_metrics.diskTotalGB = disk->totalBytes >> 30;
    m_metrics.diskFreeGB = disk->freeToCallerBytes >> 30;
    // A quota can report more free space than the volume holds; never wrap below zero.
    m_metrics.diskUsedGB = m_metrics.diskTotalGB - qMin(m_metrics.diskFreeGB, m_metrics.diskTotalGB);
    m_metrics.diskPercent = m_metrics.diskTotalGB == 0 ? 0 : qint32(m_metrics.diskUsedGB * 100 / m_metrics.diskTotalGB);
}
