#pragma once

#include "../systemcounters.h"

namespace platform {

class WinSystemCounters final : public SystemCounters {
public:
    WinSystemCounters() = default;
};

} // namespace platform
