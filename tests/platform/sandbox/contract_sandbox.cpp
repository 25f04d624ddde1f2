#include "contract.h"

#include "platform/sandbox/sandboxenvironment.h"
#include "platform/sandbox/sandboxregistry.h"

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::SandboxRegistry>(); // in memory; saving has its own cases
}

bool valuesComeInCreationOrder()
{
    return true;
}

std::unique_ptr<platform::Environment> makeContractEnvironment()
{
    return std::make_unique<platform::SandboxEnvironment>(L"/nonexistent/norvale-contract"); // never touched
}

void setContractVariable(
    platform::Environment& environment, const std::wstring& name, const std::optional<std::wstring>& value)
{
    static_cast<platform::SandboxEnvironment&>(environment).setVariable(name, value);
}

} // namespace contract
