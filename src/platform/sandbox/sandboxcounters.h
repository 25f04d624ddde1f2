#pragma once

#include "../systemcounters.h"

#include <string>

namespace platform {

class SandboxSystemCounters final : public SystemCounters {
public:
    explicit SandboxSystemCounters(std::wstring root);

private:
    std::wstring m_root;
};

} // namespace platform
