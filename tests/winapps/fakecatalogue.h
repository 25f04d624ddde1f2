#pragma once

#include "platform/packagecatalogue.h"
#include "platform/platform.h"
#include "platform/sandbox/sandboxplatform.h"

#include <QTemporaryDir>

#include <map>
#include <vector>

// A package catalogue with chosen packages and resource strings, optionally failing after a
// number of packages as a runtime call can; current while it lives.
class FakeCatalogue final : public platform::Platform, public platform::PackageCatalogue {
public:
    FakeCatalogue() { platform::setCurrent(this); }
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

    platform::Registry& registry() override { return m_sandbox.registry(); }
    platform::Environment& environment() override { return m_sandbox.environment(); }
    platform::WindowFrame& windowFrame() override { return m_sandbox.windowFrame(); }
    platform::SystemCounters& counters() override { return m_sandbox.counters(); }
    platform::FileSystem& fileSystem() override { return m_sandbox.fileSystem(); }
    platform::Launcher& launcher() override { return m_sandbox.launcher(); }
    platform::IconExtractor& icons() override { return m_sandbox.icons(); }
    platform::PackageCatalogue& packages() override { return *this; }
    std::wstring sandboxRoot() const override { return m_sandbox.sandboxRoot(); }

private:
    QTemporaryDir m_dir;
    platform::SandboxPlatform m_sandbox { m_dir.path().toStdWString() };
};
