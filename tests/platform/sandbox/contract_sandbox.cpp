#include "contract.h"

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

} // namespace contract
