#pragma once

#include <QMetaType>
#include <QtGlobal>

// One sample of processor, memory and system-disk load; travels from the scanner to the page.
struct SystemMetrics {
    qint32 cpuPercent = 0;
    quint32 memPercent = 0;
    quint64 memUsedMB = 0;
    quint64 memTotalMB = 0;
    qint32 diskPercent = 0;
    quint64 diskUsedGB = 0;
    quint64 diskTotalGB = 0;
    quint64 diskFreeGB = 0;
};

Q_DECLARE_METATYPE(SystemMetrics)
