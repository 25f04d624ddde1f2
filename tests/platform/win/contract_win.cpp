#include "contract.h"

#include "platform/win/winregistry.h"

#include <windows.h>

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::WinRegistry>();
}

// In the throw-away Wine prefix of the lane; the fixtures delete it around every case.
std::wstring contractBaseKey()
{
    return L"Software\\Brightfen\\NorvaleContractTests";
}

bool valuesComeInCreationOrder()
{
    const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
    const bool underWine = ntdll && ::GetProcAddress(ntdll, "wine_get_version");
    return !underWine;
}

} // namespace contract
