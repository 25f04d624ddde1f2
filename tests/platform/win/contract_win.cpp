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

} // namespace contract
