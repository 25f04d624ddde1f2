#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <cstdio>
#include <cstdlib>
#include <ctime>

// Prints the nanoseconds from the launch time the runner passed in NORVALE_BENCH_T0 to the
// window's first expose (its first frame), then ends the process.
class FirstShowProbe final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose || event->type() == QEvent::Show) {
            if (!m_done) {
                m_done = true;
                timespec now{};
                clock_gettime(CLOCK_REALTIME, &now);
                const long long t = static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
                const char* t0 = std::getenv("NORVALE_BENCH_T0");
                std::printf("%lld\n", t0 ? t - std::atoll(t0) : -1LL);
                std::fflush(stdout);
                std::_Exit(0); // teardown is not part of start-up
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_done = false;
};
