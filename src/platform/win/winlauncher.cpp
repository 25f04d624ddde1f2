#include "winlauncher.h"

#include <windows.h>

#include <shellapi.h>

#include <utility>

namespace platform {

namespace {

// Owns a process handle; closing keeps GetLastError() as it was.
class UniqueProcessHandle {
public:
    UniqueProcessHandle() = default;
    explicit UniqueProcessHandle(HANDLE h)
        : m_handle(h)
    {
    }
    ~UniqueProcessHandle() { reset(); }
    UniqueProcessHandle(UniqueProcessHandle&& other) noexcept
        : m_handle(other.release())
    {
    }
    UniqueProcessHandle& operator=(UniqueProcessHandle&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }
    UniqueProcessHandle(const UniqueProcessHandle&) = delete;
    UniqueProcessHandle& operator=(const UniqueProcessHandle&) = delete;

    HANDLE get() const { return m_handle; }
    HANDLE release() { return std::exchange(m_handle, nullptr); }
    void reset(HANDLE h = nullptr)
    {
        if (m_handle) {
            const DWORD err = GetLastError();
            CloseHandle(m_handle);
            SetLastError(err);
        }
        m_handle = h;
    }

private:
    HANDLE m_handle = nullptr;
};

} // namespace

ShellExecuteResult WinLauncher::shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs)
{
    static_assert(sizeof(void*) != 8 || sizeof(SHELLEXECUTEINFOW) == 112, "the 64-bit shell structure");
    ShellExecuteResult result;
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC;
    info.hwnd = nullptr;
    info.lpVerb = request.verb.empty() ? nullptr : request.verb.c_str();
    info.lpFile = request.file.c_str();
    info.lpParameters = request.parameters.empty() ? nullptr : request.parameters.c_str();
    info.lpDirectory = request.directory.empty() ? nullptr : request.directory.c_str();
    info.nShow = request.show;

    const BOOL ok = ShellExecuteExW(&info);
    UniqueProcessHandle process(info.hProcess);
    if (!ok || !process.get()) {
        result.error = GetLastError();
        return result;
    }
    result.started = true;
    result.waitResult = WaitForSingleObject(process.get(), timeoutMs);
    DWORD code = 1;
    if (GetExitCodeProcess(process.get(), &code))
        result.exitCode = code;
    return result;
}

} // namespace platform
