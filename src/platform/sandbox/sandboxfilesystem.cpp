#include "sandboxfilesystem.h"

namespace platform {

SandboxFileSystem::SandboxFileSystem(std::wstring root)
    : m_root(std::move(root))
{
}

} // namespace platform
