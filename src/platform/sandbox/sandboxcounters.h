#pragma once

#include "../systemcounters.h"

#include <string>

namespace platform {

// The host's live figures: processor and memory from /proc, disk space from the file system
// that holds the sandbox, uptime from the boot clock. They only read, so the sandbox may use them.
class SandboxSystemCounters final : public SystemCounters {
public:
    explicit SandboxSystemCounters(std::wstring root);

    std::optional<SystemTimes> systemTimes() const override;
    std::optional<MemoryStatus> memoryStatus() const override;
    std::optional<DiskSpace> diskSpace(const std::wstring& path) const override;
    unsigned processorCount() const override;
    std::uint64_t tickCount() const override;

    // The parsers, apart from the files, so that odd contents can be tried.
    static std::optional<SystemTimes> parseProcStat(const std::string& text, long ticksPerSecond);
    static std::optional<MemoryStatus> parseMeminfo(const std::string& text);

private:
    std::wstring m_root;
};

} // namespace platform
