#pragma once

#include "../services.h"

namespace platform {

class Registry;

// The sandbox's services are the keys under HKLM\SYSTEM\CurrentControlSet\Services of its
// registry, as Windows stores them: ImagePath, DisplayName and Type. Drivers are not services here.
class SandboxServices final : public Services {
public:
    explicit SandboxServices(Registry* registry);

    std::optional<std::vector<ServiceInfo>> list() override;
    bool remove(const std::wstring& name) override;

    static const wchar_t* servicesKey() { return L"SYSTEM\\CurrentControlSet\\Services"; }

private:
    Registry* m_registry;
};

} // namespace platform
