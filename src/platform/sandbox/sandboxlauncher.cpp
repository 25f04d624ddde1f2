#include "sandboxlauncher.h"

namespace platform {

SandboxLauncher::SandboxLauncher(std::wstring root)
    : m_root(std::move(root))
{
}

} // namespace platform
