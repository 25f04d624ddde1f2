#include "sandboxservices.h"

#include "../registry.h"

namespace platform {

namespace {

// SERVICE_WIN32_OWN_PROCESS | SERVICE_WIN32_SHARE_PROCESS: what EnumServicesStatusExW lists
// for SERVICE_WIN32. Kernel and file-system drivers have other bits.
constexpr std::uint32_t Win32ServiceBits = 0x10 | 0x20;

// Registry strings the service manager itself would read; longer ones are not a service's.
constexpr std::size_t MaxStringBytes = 32 * 1024;

} // namespace

SandboxServices::SandboxServices(Registry* registry)
    : m_registry(registry)
{
}

std::optional<std::vector<ServiceInfo>> SandboxServices::list()
{
    const auto names = m_registry->subKeys(Hive::LocalMachine, servicesKey());
    if (!names)
        return std::vector<ServiceInfo>();
    std::vector<ServiceInfo> services;
    for (const std::wstring& name : *names) {
        const std::wstring key = std::wstring(servicesKey()) + L"\\" + name;
        const auto type = m_registry->readDword(Hive::LocalMachine, key, L"Type");
        if (type && !(*type & Win32ServiceBits))
            continue;
        ServiceInfo info;
        info.name = name;
        info.displayName
            = m_registry->readString(Hive::LocalMachine, key, L"DisplayName", MaxStringBytes).value_or(L"");
        info.binaryPath = m_registry->readString(Hive::LocalMachine, key, L"ImagePath", MaxStringBytes).value_or(L"");
        services.push_back(std::move(info));
    }
    return services;
}

bool SandboxServices::remove(const std::wstring& name)
{
    if (name.empty() || name.find(L'\\') != std::wstring::npos)
        return false;
    const std::wstring key = std::wstring(servicesKey()) + L"\\" + name;
    if (!m_registry->keyExists(Hive::LocalMachine, key))
        return false;
    return m_registry->deleteTree(Hive::LocalMachine, key) == Status::Ok;
}

} // namespace platform
