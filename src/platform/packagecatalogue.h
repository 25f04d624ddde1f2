#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace platform {

// How a package was signed, with the runtime's own numbering.
enum class PackageSignature : std::uint32_t { None = 0, Developer = 1, Enterprise = 2, Store = 3, System = 4 };

struct PackageVersion {
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t build = 0;
    std::uint16_t revision = 0;
};

// One installed package as the feature code sees it. The catalogue fills it in two rounds: first
// the identity name and the kind flags (enough to decide whether the package is wanted), then, for
// wanted packages only, everything else.
struct PackageRecord {
    // First round.
    std::wstring name; // identity name, e.g. "Microsoft.WindowsCalculator"
    bool isFramework = false;
    bool isResourcePackage = false;
    bool isBundle = false;
    PackageSignature signature = PackageSignature::None;

    // Second round.
    std::wstring fullName; // name_version_arch_resource_publisherId
    std::wstring familyName; // name_publisherId
    std::wstring publisherId;
    PackageVersion version;
    // Absolute, with forward slashes; empty when the package has no install folder.
    std::wstring installLocation;
    // The runtime's own texts; these may themselves be unresolved "ms-resource:" references.
    std::wstring displayName;
    std::wstring publisherDisplayName;
};

// How a walk over the catalogue ended.
struct CatalogueStatus {
    bool ok = true;
    // The HRESULT of the failing call, 0 when ok.
    std::uint32_t error = 0;
    // Which call failed ("activate", "FindPackages", "get_Path" ...), for the log.
    std::string failedCall;
};

// The current user's packaged (Store/MSIX) applications.
class PackageCatalogue {
public:
    virtual ~PackageCatalogue() = default;

    using Filter = std::function<bool(const PackageRecord&)>;
    using Visitor = std::function<void(const PackageRecord&)>;

    // Walks the current user's packages in the order the system returns them. `wanted` sees each
    // package after the first round; `visit` receives the complete record of each wanted one.
    // Both are called on the caller's thread while the catalogue's apartment is open, so
    // loadIndirectString may be called from `visit`. The first failing system call ends the
    // walk: the packages visited before it stay visited and the status names the failure.
    virtual CatalogueStatus forEachPackage(const Filter& wanted, const Visitor& visit) = 0;

    // Resolves an indirect string such as "@{<full name>?ms-resource://<name>/Resources/AppName}"
    // through the shell's resource loader. nullopt when it cannot be resolved.
    virtual std::optional<std::wstring> loadIndirectString(const std::wstring& source) = 0;
};

} // namespace platform
