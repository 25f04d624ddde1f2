#pragma once

#include "../processes.h"

namespace platform {

// Tool Help snapshots, image paths through QueryFullProcessImageNameW, TerminateProcess.
class WinProcesses final : public Processes {
public:
    std::vector<ProcessInfo> snapshot() override;
    Termination terminate(std::uint32_t pid, std::uint32_t exitCode) override;
};

} // namespace platform
