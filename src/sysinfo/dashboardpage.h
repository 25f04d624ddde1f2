#pragma once

#include "systemmetrics.h"

#include <QWidget>

class CircleBadge;
class QLabel;
class RingGauge;
class SystemInfoScanner;

// Page 0: the system overview. A hero card with the Windows edition, build, uptime and installed
// updates, three live gauges, and quick actions that lead to the other pages.
class DashboardPage final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardPage)
public:
    explicit DashboardPage(QWidget* parent = nullptr);

    // Called once by the main window: reads the static facts, then starts the live metrics.
    void start();

signals:
    void navigateTo(int index);

public slots:
    void onMetricsUpdated(const SystemMetrics& metrics);
    void onStaticInfoReady();

private:
    QWidget* createHeader();
    QWidget* createHeroCard();
    QWidget* createGaugesCard();
    QWidget* createQuickActionsCard();

    SystemInfoScanner* m_scanner = nullptr;
    QLabel* m_osLabel = nullptr;
    QLabel* m_buildLabel = nullptr;
    QLabel* m_uptimeLabel = nullptr;
    CircleBadge* m_updatesBadge = nullptr;
    RingGauge* m_cpuGauge = nullptr;
    RingGauge* m_memGauge = nullptr;
    RingGauge* m_diskGauge = nullptr;
};
