#include "contract.h"

#include "platform/sandbox/sandboxpackagecatalogue.h"
#include "platform/sandbox/sandboxregistry.h"

#include <filesystem>

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::SandboxRegistry>(); // in memory; saving has its own cases
}

bool valuesComeInCreationOrder()
{
    return true;
}

std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue()
{
    // A sandbox folder that holds no catalogue file stands for a machine without the runtime.
    const auto root = std::filesystem::temp_directory_path() / "norvale-contract-no-package-runtime";
    return std::make_unique<platform::SandboxPackageCatalogue>(root.wstring());
}

} // namespace contract
