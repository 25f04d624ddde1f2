#include "winfilesystem.h"

#include "winhandle.h"

namespace platform {

namespace {

// The full path in the "\\?\" form, so that a deep install folder is not cut off at MAX_PATH.
std::wstring fullLongPath(const std::wstring& folder)
{
    std::wstring p = folder;
    for (wchar_t& c : p) {
        if (c == L'/')
            c = L'\\';
    }
    if (p.rfind(L"\\\\?\\", 0) == 0)
        return p;
    const DWORD needed = ::GetFullPathNameW(p.c_str(), 0, nullptr, nullptr);
    if (needed == 0)
        return std::wstring();
    std::wstring full(needed, L'\0');
    const DWORD written = ::GetFullPathNameW(p.c_str(), needed, full.data(), nullptr);
    if (written == 0 || written >= needed)
        return std::wstring();
    full.resize(written);
    while (full.size() > 3 && full.back() == L'\\')
        full.pop_back();
    if (full.size() >= 3 && full[1] == L':' && full[2] == L'\\')
        return L"\\\\?\\" + full;
    if (full.size() > 2 && full[0] == L'\\' && full[1] == L'\\')
        return L"\\\\?\\UNC\\" + full.substr(2);
    return std::wstring();
}

// "\\?\C:\" or "\\?\UNC\server\share": never removed, whatever the caller asked.
bool isVolumeRoot(const std::wstring& longPath)
{
    if (longPath.rfind(L"\\\\?\\UNC\\", 0) == 0) {
        const std::wstring rest = longPath.substr(8);
        const std::size_t server = rest.find(L'\\');
        return server == std::wstring::npos || rest.find(L'\\', server + 1) == std::wstring::npos;
    }
    return longPath.size() <= 7;
}

} // namespace

bool WinFileSystem::removeFolder(const std::wstring& folder)
{
    const std::wstring path = fullLongPath(folder);
    if (path.empty() || isVolumeRoot(path))
        return false;
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)
        || (attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        return false;
    emptyFolder(path);
    if (::RemoveDirectoryW(path.c_str()))
        return true;
    return isNotFound(::GetLastError());
}

} // namespace platform
