#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace platform {

// Win32 numbers the callers log and compare against, kept so that both implementations report
// the same way.
constexpr std::uint32_t WaitObject0 = 0;
constexpr std::uint32_t WaitTimeout = 0x102;
constexpr std::uint32_t WaitFailed = 0xFFFFFFFF;
constexpr std::uint32_t StillActive = 259; // exit code of a process that has not ended

constexpr int ShowHide = 0;
constexpr int ShowNormal = 1;

struct ShellExecuteRequest {
    std::wstring verb = L"open";
    std::wstring file;
    std::wstring parameters; // passed as one text; empty means none
    std::wstring directory; // empty means none
    int show = ShowNormal;
    // Called once the process runs, before the wait begins (callers log that they are waiting);
    // not called when the start fails.
    std::function<void()> started;
};

struct ShellExecuteResult {
    // The shell started a process and handed back its handle.
    bool started = false;
    // GetLastError() when the start failed.
    std::uint32_t error = 0;
    // What waiting on the process gave: WaitObject0, WaitTimeout or WaitFailed.
    std::uint32_t waitResult = WaitFailed;
    // Preset to 1, so a process whose code cannot be read never looks successful.
    std::uint32_t exitCode = 1;
    // A readable reason when the start was refused; may be empty.
    std::wstring message;
};

// Starting programs through the shell and waiting for them.
class Launcher {
public:
    virtual ~Launcher() = default;

    // Starts the request through the shell and waits at most timeoutMs for the process to end.
    // A process still running at the time-out is left running.
    virtual ShellExecuteResult shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs) = 0;
};

} // namespace platform
