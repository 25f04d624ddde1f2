#include "sandboxiconextractor.h"

namespace platform {

SandboxIconExtractor::SandboxIconExtractor(std::wstring root)
    : m_root(std::move(root))
{
}

} // namespace platform
