#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// One running process as a snapshot saw it.
struct ProcessInfo {
    std::uint32_t pid = 0;
    // The executable's file name as the snapshot reports it ("chrome.exe").
    std::wstring imageName;
    // The executable's full path; empty when the process could not be opened or its path does not
    // fit the 260-character buffer the callers rely on.
    std::wstring imagePath;
};

enum class Termination {
    NotOpened, // no such process, or not ours to end
    Terminated,
    Refused, // opened, but the process would not end
};

// The process list and ending processes.
class Processes {
public:
    virtual ~Processes() = default;

    // Every process the system lists; empty when no snapshot could be taken.
    virtual std::vector<ProcessInfo> snapshot() = 0;

    // Ends one process with the given exit code.
    virtual Termination terminate(std::uint32_t pid, std::uint32_t exitCode) = 0;
};

} // namespace platform
