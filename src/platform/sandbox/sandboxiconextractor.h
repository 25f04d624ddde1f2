#pragma once

#include "../iconextractor.h"

#include <string>

namespace platform {

// Icons in the sandbox are image files, handed back undecoded for the caller to decode. An .ico
// or .png file is its own icon. An executable's icons are files beside it: "<file>.<index>.ico"
// (or .png) stands for the icon at that index, "<file>.ico" (or .png) for the icon the shell
// would show. Nothing outside the sandbox folder is read.
class SandboxIconExtractor final : public IconExtractor {
public:
    explicit SandboxIconExtractor(std::wstring root);

    IconResult extract(const std::wstring& path, int index) override;

private:
    std::wstring m_root;
};

} // namespace platform
