#include "contract.h"

#include "platform/win/winenvironment.h"
#include "platform/win/winpackagecatalogue.h"
#include "platform/win/winregistry.h"

#include "platform/win/winhandle.h"
#include "platform/win/winprocesses.h"
#include <map>
#include <windows.h>

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::WinRegistry>();
}

bool valuesComeInCreationOrder()
{
    return !::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
}

std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue()
{
    return std::make_unique<platform::WinPackageCatalogue>();
}

namespace {

std::map<std::uint32_t, platform::UniqueHandle>& startedProcesses()
{
    static std::map<std::uint32_t, platform::UniqueHandle> processes;
    return processes;
}

} // namespace

platform::Processes& contractProcesses()
{
    static platform::WinProcesses processes;
    return processes;
}

std::optional<StartedProcess> startLongRunningProcess()
{
    std::string helper = NORVALE_HELPER_FAKE_UNINSTALLER;
    std::wstring path(helper.begin(), helper.end());
    for (wchar_t& c : path) {
        if (c == L'/')
            c = L'\\';
    }
    std::wstring commandLine = L"\"" + path + L"\" --sleep 60000";
    STARTUPINFOW startup {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION info {};
    if (!::CreateProcessW(
            path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &info))
        return std::nullopt;
    ::CloseHandle(info.hThread);
    startedProcesses()[info.dwProcessId] = platform::UniqueHandle(info.hProcess);
    const std::size_t cut = path.find_last_of(L'\\');
    return StartedProcess { info.dwProcessId, path.substr(cut + 1), path };
}

bool waitUntilEnded(std::uint32_t pid)
{
    auto it = startedProcesses().find(pid);
    if (it == startedProcesses().end())
        return false;
    const bool ended = ::WaitForSingleObject(it->second.get(), 10000) == WAIT_OBJECT_0;
    startedProcesses().erase(it);
    return ended;
}

std::unique_ptr<platform::Environment> makeContractEnvironment()
{
    return std::make_unique<platform::WinEnvironment>();
}

void setContractVariable(platform::Environment&, const std::wstring& name, const std::optional<std::wstring>& value)
{
    ::SetEnvironmentVariableW(name.c_str(), value ? value->c_str() : nullptr);
}

namespace {

std::string unixPath(const std::filesystem::path& path)
{
    using UnixNameFn = char*(CDECL*)(LPCWSTR);
    static const auto fn = reinterpret_cast<UnixNameFn>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* name = fn ? fn(path.wstring().c_str()) : nullptr;
    const std::string result = name ? name : "";
    if (name)
        ::HeapFree(::GetProcessHeap(), 0, name);
    return result;
}

} // namespace

bool isLink(const std::filesystem::path& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.wstring().c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

// Wine starts Unix programs given by their Z: path, but the handle it returns for one cannot be
// waited on, so the link itself is watched until it shows up.
bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link)
{
    const std::string from = unixPath(target), to = unixPath(link);
    if (from.empty() || to.empty() || (from + to).find(' ') != std::string::npos)
        return false;
    std::wstring command
        = L"Z:\\bin\\ln -s " + std::filesystem::path(from).wstring() + L" " + std::filesystem::path(to).wstring();
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    for (int waitedMs = 0; waitedMs < 10000 && !isLink(link); waitedMs += 20)
        ::Sleep(20);
    return isLink(link);
}

void removeTree(const std::filesystem::path& folder)
{
    // Nothing to wait for otherwise: a late rm would take what the caller makes there next.
    if (::GetFileAttributesW(folder.wstring().c_str()) == INVALID_FILE_ATTRIBUTES)
        return;
    const std::string unix = unixPath(folder);
    if (unix.empty() || unix.find(' ') != std::string::npos)
        return;
    std::wstring command = L"Z:\\bin\\rm -rf " + std::filesystem::path(unix).wstring();
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return;
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    // As with makeLink, the Unix process cannot be waited on: the folder is watched instead.
    for (int waitedMs = 0;
         waitedMs < 10000 && ::GetFileAttributesW(folder.wstring().c_str()) != INVALID_FILE_ATTRIBUTES; waitedMs += 20)
        ::Sleep(20);
}

} // namespace contract
