#pragma once

#include "../services.h"

namespace platform {

// The real service control manager: EnumServicesStatusExW and QueryServiceConfigW to list,
// DeleteService to remove.
class WinServices final : public Services {
public:
    WinServices() = default;

    std::optional<std::vector<ServiceInfo>> list() override;
    bool remove(const std::wstring& name) override;
};

} // namespace platform
