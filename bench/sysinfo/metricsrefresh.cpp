// Times the dashboard's 1.5 s tick on the interface thread against the sandbox platform, whose
// counters are the host's live /proc and statvfs figures.

#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"
#include "sysinfo/dashboardpage.h"
#include "sysinfo/systeminfoscanner.h"
#include "widgets/ringgauge.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

constexpr int WarmUpTicks = 50;

class PaintCounter final : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

struct Summary {
    double median;
    double p90;
    double max;
};

Summary summarise(std::vector<qint64> ns)
{
    std::sort(ns.begin(), ns.end());
    const auto at = [&ns](double q) { return ns[std::size_t(q * double(ns.size() - 1))] / 1000.0; };
    return { at(0.5), at(0.9), ns.back() / 1000.0 };
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const int ticks = argc > 1 ? std::max(10, atoi(argv[1])) : 2000;

    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;
    platform::SandboxPlatform sandbox(dir.path().toStdWString());
    platform::setCurrent(&sandbox);

    DashboardPage page(nullptr);
    page.resize(900, 640);
    page.show();
    auto* scanner = page.findChild<SystemInfoScanner*>();
    PaintCounter counter;
    const auto gauges = page.findChildren<RingGauge*>();
    for (RingGauge* gauge : gauges)
        gauge->installEventFilter(&counter);
    app.processEvents();

    QElapsedTimer clock;
    std::vector<qint64> sampling;
    std::vector<qint64> wholeTick;
    std::vector<qint64> pageUpdate;
    std::vector<qint64> painting;
    int unpaintedTicks = 0;
    for (int i = 0; i < WarmUpTicks + ticks; ++i) {
        clock.start();
        scanner->refresh();
        const qint64 sampled = clock.nsecsElapsed();
        // The report reaches the page as a queued call; the gauges then paint on the next pass.
        counter.paints = 0;
        app.sendPostedEvents();
        const qint64 delivered = clock.nsecsElapsed();
        app.processEvents();
        const qint64 whole = clock.nsecsElapsed();
        if (counter.paints < gauges.size())
            ++unpaintedTicks;
        if (i >= WarmUpTicks) {
            sampling.push_back(sampled);
            wholeTick.push_back(whole);
            pageUpdate.push_back(delivered - sampled);
            painting.push_back(whole - delivered);
        }
    }
    platform::setCurrent(nullptr);

    std::vector<qint64> refresh(sampling.size());
    for (std::size_t k = 0; k < refresh.size(); ++k)
        refresh[k] = sampling[k] + pageUpdate[k];

    QTextStream out(stdout);
    out << Qt::fixed << qSetRealNumberPrecision(1);
    const auto line = [&out](const char* what, const Summary& s) {
        out << what << ": median " << s.median << " us, p90 " << s.p90 << " us, max " << s.max << " us\n";
    };
    out << ticks << " ticks, sandbox platform (host /proc and statvfs)\n";
    line("  sampling (processor, memory, disk)     ", summarise(sampling));
    line("  page update (gauge values and texts)   ", summarise(pageUpdate));
    line("one metrics refresh (sampling + page)    ", summarise(refresh));
    line("  then Qt repaints the three gauges      ", summarise(painting));
    line("whole tick including that repaint        ", summarise(wholeTick));
    if (unpaintedTicks > 0)
        out << "note: " << unpaintedTicks << " ticks did not repaint all gauges\n";
    return 0;
}
