#include "winlauncher.h"

#include "winhandle.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

ShellExecuteResult WinLauncher::shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs)
{
    static_assert(sizeof(void*) != 8 || sizeof(SHELLEXECUTEINFOW) == 112, "the 64-bit shell structure");
    ShellExecuteResult result;
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof(info);
    // No shell error box: a missing uninstaller is reported by the caller's own dialog, and a box
    // raised here would hold the worker until someone found it behind the window.
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    info.hwnd = nullptr;
    info.lpVerb = request.verb.empty() ? nullptr : request.verb.c_str();
    info.lpFile = request.file.c_str();
    info.lpParameters = request.parameters.empty() ? nullptr : request.parameters.c_str();
    info.lpDirectory = request.directory.empty() ? nullptr : request.directory.c_str();
    info.nShow = request.show;

    const BOOL ok = ShellExecuteExW(&info);
    UniqueHandle process(info.hProcess);
    if (!ok || !process.get()) {
        result.error = GetLastError();
        return result;
    }
    result.started = true;
    if (request.started)
        request.started();
    result.waitResult = WaitForSingleObject(process.get(), timeoutMs);
    DWORD code = 1;
    if (GetExitCodeProcess(process.get(), &code))
        result.exitCode = code;
    return result;
}

} // namespace platform
