#pragma once

#include "platform/systemcounters.h"

#include <mutex>

// Counters a test sets by hand, so load figures and uptime are chosen rather than measured.
class FakeSystemCounters final : public platform::SystemCounters {
public:
    std::optional<platform::SystemTimes> times;
    std::optional<platform::MemoryStatus> memory;
    std::optional<platform::DiskSpace> disk;
    unsigned processors = 8;
    std::uint64_t ticks = 0;

    std::optional<platform::SystemTimes> systemTimes() const override { return locked(times); }
    std::optional<platform::MemoryStatus> memoryStatus() const override { return locked(memory); }
    std::optional<platform::DiskSpace> diskSpace(const std::wstring& path) const override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        lastDiskPath = path;
        return disk;
    }
    unsigned processorCount() const override { return locked(processors); }
    std::uint64_t tickCount() const override { return locked(ticks); }

    std::wstring diskPathAsked() const { return locked(lastDiskPath); }

private:
    // The scanner's first samples come from a pool thread.
    template <typename T> T locked(const T& v) const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return v;
    }

    mutable std::mutex m_mutex;
    mutable std::wstring lastDiskPath;
};
