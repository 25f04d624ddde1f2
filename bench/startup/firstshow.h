#pragma once

#include <QEvent>
#include <QObject>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <ctime>

// Reports, in nanoseconds from the launch time the runner passed in NORVALE_BENCH_T0, when the
// window got its show event and when its first frame was complete (every widget painted and the
// event loop free again), then ends the process: teardown is not part of start-up.
class FirstShowProbe final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && m_shown < 0) {
            m_shown = sinceLaunch();
        } else if (event->type() == QEvent::Paint && !m_painted) {
            m_painted = true;
            // Children paint in the same pass; the zero timer fires once the frame is out.
            QTimer::singleShot(0, [this] {
                std::printf("%lld %lld\n", m_shown, sinceLaunch());
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static long long sinceLaunch()
    {
        timespec now {};
        clock_gettime(CLOCK_REALTIME, &now);
        const long long t = static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
        const char* t0 = std::getenv("NORVALE_BENCH_T0");
        return t0 ? t - std::atoll(t0) : -1LL;
    }

    long long m_shown = -1;
    bool m_painted = false;
};
