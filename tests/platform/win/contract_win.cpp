#include "contract.h"

#include "platform/win/winenvironment.h"
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

std::unique_ptr<platform::Environment> makeContractEnvironment()
{
    return std::make_unique<platform::WinEnvironment>();
}

void setContractVariable(platform::Environment&, const std::wstring& name, const std::optional<std::wstring>& value)
{
    ::SetEnvironmentVariableW(name.c_str(), value ? value->c_str() : nullptr);
}

} // namespace contract
