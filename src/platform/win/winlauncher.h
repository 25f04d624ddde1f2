#pragma once

#include "../launcher.h"

namespace platform {

class WinLauncher final : public Launcher {
public:
    WinLauncher() = default;
};

} // namespace platform
