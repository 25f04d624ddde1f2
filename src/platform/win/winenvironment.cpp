#include "winenvironment.h"

#include <windows.h>

#include <vector>

namespace platform {

namespace {

// Both calls report the size they need when the buffer is short; a value may grow between two
// calls (another thread setting it), so they are retried a few times.
constexpr int SizeRetries = 4;

} // namespace

std::wstring WinEnvironment::systemDriveRoot() const
{
    return L"C:/";
}

std::wstring WinEnvironment::mapPath(const std::wstring& windowsPath) const
{
    return windowsPath;
}

std::optional<std::wstring> WinEnvironment::variable(const std::wstring& name) const
{
    std::vector<wchar_t> buffer(256);
    for (int attempt = 0; attempt < SizeRetries; ++attempt) {
        ::SetLastError(ERROR_SUCCESS);
        const DWORD length = ::GetEnvironmentVariableW(name.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) {
            // Zero is also the length of a variable that is set but empty.
            if (::GetLastError() == ERROR_ENVVAR_NOT_FOUND)
                return std::nullopt;
            return std::wstring();
        }
        if (length < buffer.size())
            return std::wstring(buffer.data(), length);
        buffer.resize(length); // the size it needs, terminator included
    }
    return std::nullopt;
}

std::wstring WinEnvironment::expand(const std::wstring& text) const
{
    std::vector<wchar_t> buffer(text.size() + 256);
    for (int attempt = 0; attempt < SizeRetries; ++attempt) {
        const DWORD needed
            = ::ExpandEnvironmentStringsW(text.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
        if (needed == 0)
            return text; // nothing sensible to expand into; leave it as written
        if (needed <= buffer.size())
            return std::wstring(buffer.data()); // the count includes the terminator
        buffer.resize(needed);
    }
    return text;
}

std::wstring WinEnvironment::temp() const
{
    // GetTempPath2W gives SYSTEM processes their own protected folder; older systems lack it.
    using GetTempPathFn = DWORD(WINAPI*)(DWORD, LPWSTR);
    static const GetTempPathFn getTempPath = [] {
        const auto newer = reinterpret_cast<GetTempPathFn>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "GetTempPath2W")));
        return newer ? newer : &::GetTempPathW;
    }();
    std::vector<wchar_t> buffer(MAX_PATH + 1);
    DWORD length = 0;
    for (int attempt = 0; attempt < SizeRetries; ++attempt) {
        length = getTempPath(static_cast<DWORD>(buffer.size()), buffer.data());
        if (length < buffer.size())
            break;
        buffer.resize(length + 1);
        length = 0;
    }
    std::wstring folder(buffer.data(), length);
    // The variables may hold a short 8.3 name ("C:\Users\RUNNER~1"); the long one is what other
    // paths use.
    if (!folder.empty()) {
        const DWORD needed = ::GetLongPathNameW(folder.c_str(), nullptr, 0);
        if (needed > 0) {
            std::wstring longName(needed, L'\0');
            const DWORD written = ::GetLongPathNameW(folder.c_str(), longName.data(), needed);
            if (written > 0 && written < needed) {
                longName.resize(written);
                folder = longName;
            }
        }
    }
    for (wchar_t& c : folder) {
        if (c == L'\\')
            c = L'/';
    }
    while (folder.size() > 3 && folder.back() == L'/')
        folder.pop_back();
    if (folder.size() >= 2 && folder[1] == L':' && folder[0] >= L'a' && folder[0] <= L'z')
        folder[0] = static_cast<wchar_t>(folder[0] - L'a' + L'A');
    return folder;
}

} // namespace platform
