#pragma once

#include "../packagecatalogue.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace platform {

// The sandbox's packaged apps: "<root>/packages.txt", a plain text file of sections.
//
//   [package]                      one per package, in the order the catalogue returns them
//   name=Contoso.Notes
//   fullName=Contoso.Notes_1.2.3.0_x64__abc
//   familyName=Contoso.Notes_abc
//   publisherId=abc
//   version=1.2.3.0
//   location=C:\Program Files\WindowsApps\Contoso.Notes_1.2.3.0_x64__abc
//   displayName=ms-resource:AppName      the runtime's own texts
//   publisherDisplayName=Contoso
//   framework=0   resource=0   bundle=0  (0/1, true/false)
//   signature=store                      none, developer, enterprise, store, system, or 0 to 4
//
//   [strings]                      what the resource loader resolves
//   @{Contoso.Notes_1.2.3.0_x64__abc?ms-resource://Contoso.Notes/Resources/AppName}=Notes
//
// Unknown keys, lines without "=" and "#" comments are ignored. Locations must be on the system
// drive and are mapped into the sandbox like every other path; anything else is left empty, so a
// catalogue line can never point a walk outside the sandbox. Without the file the machine has no
// package runtime, as under Wine: the walk fails at activation.
class SandboxPackageCatalogue final : public PackageCatalogue {
public:
    explicit SandboxPackageCatalogue(std::wstring root);

    CatalogueStatus forEachPackage(const Filter& wanted, const Visitor& visit) override;
    std::optional<std::wstring> loadIndirectString(const std::wstring& source) override;

    static std::wstring fileName() { return L"packages.txt"; }
    // The "class not registered" result a machine without the runtime class gives.
    static constexpr std::uint32_t ClassNotRegistered = 0x80040154;

private:
    struct Contents {
        std::vector<PackageRecord> packages;
        std::map<std::wstring, std::wstring> strings;
    };
    std::optional<Contents> load() const;

    std::wstring m_root;
    std::mutex m_mutex;
    std::map<std::wstring, std::wstring> m_strings; // from the latest load
    bool m_loaded = false;
};

} // namespace platform
