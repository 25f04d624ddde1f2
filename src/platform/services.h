#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform {

// One Win32 service (own or shared process) as the service manager describes it.
struct ServiceInfo {
    std::wstring name; // the service's key name, what `sc` takes
    std::wstring displayName; // empty when the service has none
    std::wstring binaryPath; // the command line it starts, as configured; empty when unreadable
};

// The service manager: listing services with their binaries, and deleting one.
class Services {
public:
    virtual ~Services() = default;

    // Every Win32 service in any state, in the manager's order; nullopt when the manager cannot be
    // opened. A service whose configuration cannot be read is listed with an empty binary path.
    virtual std::optional<std::vector<ServiceInfo>> list() = 0;

    // Marks the service for deletion; true when it was there and the manager accepted.
    virtual bool remove(const std::wstring& name) = 0;
};

} // namespace platform
