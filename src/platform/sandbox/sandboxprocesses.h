#pragma once

#include "../processes.h"

#include <mutex>
#include <string>

namespace platform {

class Environment;

// The sandbox's process list: the file "processes.txt" in the sandbox folder, one process a line
// as "<pid><TAB><Windows path of its executable>". Ending a process removes its line; nothing on
// the host is ever signalled.
class SandboxProcesses final : public Processes {
public:
    SandboxProcesses(std::wstring root, const Environment& environment);

    std::vector<ProcessInfo> snapshot() override;
    Termination terminate(std::uint32_t pid, std::uint32_t exitCode) override;

    static std::wstring listFileName() { return L"processes.txt"; }

private:
    struct Line {
        std::uint32_t pid = 0;
        std::wstring windowsPath;
        std::string raw;
    };
    std::vector<Line> readLines() const;

    std::wstring m_root;
    const Environment& m_environment;
    std::mutex m_mutex;
};

} // namespace platform
