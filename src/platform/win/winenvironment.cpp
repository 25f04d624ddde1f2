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

} // namespace platform
