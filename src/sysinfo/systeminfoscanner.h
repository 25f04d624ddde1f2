#pragma once

#include "systemmetrics.h"

#include <QFuture>
#include <QObject>
#include <QString>

class QTimer;

// Reads the machine's load on the interface thread every 1.5 s, and its static facts (Windows
// edition and build, processor, installed updates) once on a pool thread.
class SystemInfoScanner final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SystemInfoScanner)
public:
    explicit SystemInfoScanner(QObject* parent = nullptr);
    ~SystemInfoScanner() override;

    // Gathers the static facts on the global thread pool, announces them, then takes the first
    // load samples there so the first timer tick has a recent baseline. Returns at once.
    void loadStaticInfo();
    void startMonitoring();
    // One timer tick: processor, memory, disk, then metricsUpdated.
    void refresh();

    SystemMetrics metrics() const { return m_metrics; }
    // Valid once staticInfoReady has arrived.
    QString osName() const { return m_osName; }
    QString buildText() const { return m_buildText; }
    QString cpuName() const { return m_cpuName; }
    int cpuCores() const { return m_cpuCores; }
    int updatesInstalled() const { return m_updatesInstalled; }

signals:
    void metricsUpdated(const SystemMetrics& metrics);
    void staticInfoReady();

private:
    void gatherStaticInfo();
    void sampleCpu();
    void sampleMemory();
    void sampleDisk();

    SystemMetrics m_metrics;
    QString m_osName;
    QString m_buildText;
    QString m_cpuName;
    int m_cpuCores = 0;
    int m_updatesInstalled = 0;
    QTimer* m_timer = nullptr;
    quint64 m_prevIdle = 0;
    quint64 m_prevKernel = 0;
    quint64 m_prevUser = 0;
    QFuture<void> m_staticTask;
};
