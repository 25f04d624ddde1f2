#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// Processor time since boot, summed over all processors, in 100-ns units. Kernel time includes
// idle time, as Windows counts it, so busy time is kernel + user - idle.
struct SystemTimes {
    std::uint64_t idle = 0;
    std::uint64_t kernel = 0;
    std::uint64_t user = 0;
};

struct MemoryStatus {
    std::uint32_t loadPercent = 0;
    std::uint64_t totalPhysBytes = 0;
    std::uint64_t availPhysBytes = 0;
};

struct DiskSpace {
    std::uint64_t freeToCallerBytes = 0; // honours per-user quotas
    std::uint64_t totalBytes = 0;
    std::uint64_t totalFreeBytes = 0;
};

// Live load counters: system times, memory status, disk space, processor count, tick count.
// Every call only reads and may be made from any thread. A nullopt means the system refused;
// callers keep what they had.
class SystemCounters {
public:
    virtual ~SystemCounters() = default;

    virtual std::optional<SystemTimes> systemTimes() const = 0;
    virtual std::optional<MemoryStatus> memoryStatus() const = 0;
    // Space on the volume that holds `path` (a folder, e.g. the system drive's root).
    virtual std::optional<DiskSpace> diskSpace(const std::wstring& path) const = 0;
    // Logical processors; at least 1.
    virtual unsigned processorCount() const = 0;
    // Milliseconds since the machine started.
    virtual std::uint64_t tickCount() const = 0;
};

} // namespace platform
