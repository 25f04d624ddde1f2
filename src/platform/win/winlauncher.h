#pragma once

#include "../launcher.h"

namespace platform {

// ShellExecuteExW with a process handle to wait on; the handle is always closed, the process
// itself is left alone.
class WinLauncher final : public Launcher {
public:
    WinLauncher() = default;

    ShellExecuteResult shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs) override;
};

} // namespace platform
