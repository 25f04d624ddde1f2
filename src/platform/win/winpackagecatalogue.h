#pragma once

#include "../packagecatalogue.h"

namespace platform {

// The package manager runtime class, reached through its binary interface (mingw-w64 has no
// header for it), and the shell's indirect-string loader.
class WinPackageCatalogue final : public PackageCatalogue {
public:
    CatalogueStatus forEachPackage(const Filter& wanted, const Visitor& visit) override;
    std::optional<std::wstring> loadIndirectString(const std::wstring& source) override;
};

} // namespace platform
