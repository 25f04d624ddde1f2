#include "contract.h"

#include "platform/win/winpackagecatalogue.h"
#include "platform/win/winregistry.h"

#include <windows.h>

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::WinRegistry>();
}

bool valuesComeInCreationOrder()
{
    return !::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
}

std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue()
{
    return std::make_unique<platform::WinPackageCatalogue>();
}

} // namespace contract
