#pragma once

#include "../launcher.h"

#include <string>

namespace platform {

class SandboxLauncher final : public Launcher {
public:
    explicit SandboxLauncher(std::wstring root);

private:
    std::wstring m_root;
};

} // namespace platform
