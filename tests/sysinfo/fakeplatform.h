#pragma once

#include "platform/forwardingplatform.h"
#include "platform/platform.h"
#include "platform/systemcounters.h"
#include "support/currentmachine.h"

// A sandbox machine with chosen counters, current while it lives. Tests set the counters before the
// scanner's worker starts, so they need no lock. Only the system drive has disk space.
class FakePlatform final : public platform::ForwardingPlatform, public platform::SystemCounters {
public:
    FakePlatform()
        : ForwardingPlatform(m_machine.platform())
    {
        platform::setCurrent(this);
    }
    ~FakePlatform() override { platform::setCurrent(nullptr); }

    std::optional<platform::SystemTimes> times;
    std::optional<platform::MemoryStatus> memory;
    std::optional<platform::DiskSpace> disk;
    unsigned processors = 8;
    std::uint64_t ticks = 0;

    std::optional<platform::SystemTimes> systemTimes() const override { return times; }
    std::optional<platform::MemoryStatus> memoryStatus() const override { return memory; }
    std::optional<platform::DiskSpace> diskSpace(const std::wstring& path) const override
    {
        return path == m_systemDrive ? disk : std::nullopt;
    }
    unsigned processorCount() const override { return processors; }
    std::uint64_t tickCount() const override { return ticks; }

    platform::SystemCounters& counters() override { return *this; }

private:
    CurrentMachine m_machine;
    const std::wstring m_systemDrive = m_machine.platform().environment().systemDriveRoot();
};
