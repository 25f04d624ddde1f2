#pragma once

namespace platform {

// Live load counters: system times, memory status, disk space, processor count, tick count.
class SystemCounters {
public:
    virtual ~SystemCounters() = default;
};

} // namespace platform
