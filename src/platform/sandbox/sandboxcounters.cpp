#include "sandboxcounters.h"

namespace platform {

SandboxSystemCounters::SandboxSystemCounters(std::wstring root)
    : m_root(std::move(root))
{
}

} // namespace platform
