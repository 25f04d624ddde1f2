#include "wincounters.h"

#include <windows.h>

namespace platform {

namespace {

std::uint64_t toCount(const FILETIME& ft)
{
    return (static_cast<std::uint64_t>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
}

} // namespace

std::optional<SystemTimes> WinSystemCounters::systemTimes() const
{
    FILETIME idle {}, kernel {}, user {};
    if (!::GetSystemTimes(&idle, &kernel, &user))
        return std::nullopt;
    return SystemTimes { toCount(idle), toCount(kernel), toCount(user) };
}

std::optional<MemoryStatus> WinSystemCounters::memoryStatus() const
{
    MEMORYSTATUSEX status {};
    status.dwLength = sizeof status;
    if (!::GlobalMemoryStatusEx(&status))
        return std::nullopt;
    return MemoryStatus { static_cast<std::uint32_t>(status.dwMemoryLoad), status.ullTotalPhys, status.ullAvailPhys };
}

std::optional<DiskSpace> WinSystemCounters::diskSpace(const std::wstring& path) const
{
    // Callers write folders with forward slashes ("C:/"); the call wants the backslash form.
    std::wstring native = path;
    for (wchar_t& c : native) {
        if (c == L'/')
            c = L'\\';
    }
    ULARGE_INTEGER freeToCaller {}, total {}, totalFree {};
    if (!::GetDiskFreeSpaceExW(native.c_str(), &freeToCaller, &total, &totalFree))
        return std::nullopt;
    return DiskSpace { freeToCaller.QuadPart, total.QuadPart, totalFree.QuadPart };
}

unsigned WinSystemCounters::processorCount() const
{
    SYSTEM_INFO info {};
    ::GetSystemInfo(&info);
    return info.dwNumberOfProcessors > 0 ? static_cast<unsigned>(info.dwNumberOfProcessors) : 1u;
}

std::uint64_t WinSystemCounters::tickCount() const
{
    return ::GetTickCount64();
}

} // namespace platform
