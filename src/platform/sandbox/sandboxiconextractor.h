#pragma once

#include "../iconextractor.h"

#include <string>

namespace platform {

class SandboxIconExtractor final : public IconExtractor {
public:
    explicit SandboxIconExtractor(std::wstring root);

private:
    std::wstring m_root;
};

} // namespace platform
