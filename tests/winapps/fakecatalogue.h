#pragma once

#include "platform/forwardingplatform.h"
#include "platform/packagecatalogue.h"
#include "platform/platform.h"
#include "support/currentmachine.h"

#include <map>
#include <vector>

// A package catalogue with chosen packages and resource strings, optionally failing after a
// number of packages as a runtime call can; current while it lives.
class FakeCatalogue final : public platform::ForwardingPlatform, public platform::PackageCatalogue {
public:
    FakeCatalogue()
        : ForwardingPlatform(m_machine.platform())
    {
        platform::setCurrent(this);
    }
    ~FakeCatalogue() override { platform::setCurrent(nullptr); }

    std::vector<platform::PackageRecord> packages_;
    std::map<std::wstring, std::wstring> strings;
    int failAfter = -1; // packages walked before the failing call; -1 never fails

    platform::CatalogueStatus forEachPackage(const Filter& wanted, const Visitor& visit) override
    {
        for (std::size_t i = 0; i < packages_.size(); ++i) {
            if (int(i) == failAfter)
                return { false, 0x80004005, "get_Current" };
            if (wanted(packages_[i]))
                visit(packages_[i]);
        }
        if (failAfter == int(packages_.size()))
            return { false, 0x80004005, "MoveNext" };
        return {};
    }
    std::optional<std::wstring> loadIndirectString(const std::wstring& source) override
    {
        const auto it = strings.find(source);
        return it == strings.end() ? std::nullopt : std::optional(it->second);
    }

    platform::PackageCatalogue& packages() override { return *this; }

private:
    CurrentMachine m_machine;
};
