#pragma once

#include "../systemcounters.h"

namespace platform {

class WinSystemCounters final : public SystemCounters {
public:
    WinSystemCounters() = default;

    std::optional<SystemTimes> systemTimes() const override;
    std::optional<MemoryStatus> memoryStatus() const override;
    std::optional<DiskSpace> diskSpace(const std::wstring& path) const override;
    unsigned processorCount() const override;
    std::uint64_t tickCount() const override;
};

} // namespace platform
