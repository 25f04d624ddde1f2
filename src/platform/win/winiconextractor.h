#pragma once

#include "../iconextractor.h"

namespace platform {

// ExtractIconExW (large icon first), then the shell's icon for the file; the icon is copied
// into an RGBA buffer and its handles are destroyed before returning.
class WinIconExtractor final : public IconExtractor {
public:
    WinIconExtractor() = default;

    IconResult extract(const std::wstring& path, int index) override;
};

} // namespace platform
