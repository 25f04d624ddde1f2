#include "winservices.h"

#include "winhandle.h"

#include <winsvc.h>

#include <vector>

namespace platform {

namespace {

struct ScHandleTraits {
    using type = SC_HANDLE;
    static type invalid() { return nullptr; }
    static void close(type handle) { ::CloseServiceHandle(handle); }
};
using UniqueScHandle = UniqueAny<ScHandleTraits>;

// The list can grow between the size query and the read; a few retries settle it.
constexpr int SizeRetries = 4;

std::wstring binaryPathOf(SC_HANDLE manager, const wchar_t* name)
{
    UniqueScHandle service(::OpenServiceW(manager, name, SERVICE_QUERY_CONFIG));
    if (!service)
        return std::wstring();
    DWORD needed = 0;
    ::QueryServiceConfigW(service.get(), nullptr, 0, &needed);
    if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed == 0)
        return std::wstring();
    std::vector<std::uint8_t> buffer(needed);
    auto* config = reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer.data());
    if (!::QueryServiceConfigW(service.get(), config, needed, &needed) || !config->lpBinaryPathName)
        return std::wstring();
    return config->lpBinaryPathName;
}

} // namespace

std::optional<std::vector<ServiceInfo>> WinServices::list()
{
    UniqueScHandle manager(::OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ENUMERATE_SERVICE));
    if (!manager)
        return std::nullopt;
    std::vector<std::uint8_t> buffer;
    DWORD needed = 0, count = 0, resume = 0;
    bool read = false;
    for (int attempt = 0; attempt < SizeRetries && !read; ++attempt) {
        resume = 0;
        read = ::EnumServicesStatusExW(manager.get(), SC_ENUM_PROCESS_INFO, SERVICE_WIN32, SERVICE_STATE_ALL,
            buffer.empty() ? nullptr : buffer.data(), static_cast<DWORD>(buffer.size()), &needed, &count, &resume,
            nullptr);
        if (!read) {
            if (::GetLastError() != ERROR_MORE_DATA)
                return std::nullopt;
            buffer.resize(buffer.size() + needed);
        }
    }
    if (!read)
        return std::nullopt;
    std::vector<ServiceInfo> services;
    const auto* entries = reinterpret_cast<const ENUM_SERVICE_STATUS_PROCESSW*>(buffer.data());
    for (DWORD i = 0; i < count; ++i) {
        if (!entries[i].lpServiceName)
            continue;
        ServiceInfo info;
        info.name = entries[i].lpServiceName;
        // Services created without a display name come back with none at all.
        if (entries[i].lpDisplayName)
            info.displayName = entries[i].lpDisplayName;
        info.binaryPath = binaryPathOf(manager.get(), entries[i].lpServiceName);
        services.push_back(std::move(info));
    }
    return services;
}

bool WinServices::remove(const std::wstring& name)
{
    UniqueScHandle manager(::OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    if (!manager)
        return false;
    UniqueScHandle service(::OpenServiceW(manager.get(), name.c_str(), DELETE));
    return service && ::DeleteService(service.get());
}

} // namespace platform
