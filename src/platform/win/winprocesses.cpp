#include "winprocesses.h"

#include "winhandle.h"

#include <tlhelp32.h>

namespace platform {

namespace {

// The callers compare paths that fit the classic limit; a longer one is treated as unreadable.
constexpr DWORD ImagePathChars = MAX_PATH;

std::wstring imagePathOf(DWORD pid)
{
    UniqueHandle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
    if (!process)
        return std::wstring();
    wchar_t buffer[ImagePathChars];
    DWORD size = ImagePathChars;
    if (!::QueryFullProcessImageNameW(process.get(), 0, buffer, &size))
        return std::wstring();
    return std::wstring(buffer, size);
}

} // namespace

std::vector<ProcessInfo> WinProcesses::snapshot()
{
    std::vector<ProcessInfo> out;
    UniqueHfile snap(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snap)
        return out;
    PROCESSENTRY32W entry {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = ::Process32FirstW(snap.get(), &entry); more; more = ::Process32NextW(snap.get(), &entry)) {
        ProcessInfo info;
        info.pid = entry.th32ProcessID;
        // szExeFile is a fixed array; never trust it to be terminated.
        std::size_t length = 0;
        while (length < MAX_PATH && entry.szExeFile[length])
            ++length;
        info.imageName.assign(entry.szExeFile, length);
        if (info.pid != 0)
            info.imagePath = imagePathOf(info.pid);
        out.push_back(std::move(info));
    }
    return out;
}

Termination WinProcesses::terminate(std::uint32_t pid, std::uint32_t exitCode)
{
    UniqueHandle process(::OpenProcess(PROCESS_TERMINATE, FALSE, pid));
    if (!process)
        return Termination::NotOpened;
    return ::TerminateProcess(process.get(), exitCode) ? Termination::Terminated : Termination::Refused;
}

} // namespace platform
