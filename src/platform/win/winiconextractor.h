#pragma once

#include "../iconextractor.h"

namespace platform {

class WinIconExtractor final : public IconExtractor {
public:
    WinIconExtractor() = default;
};

} // namespace platform
