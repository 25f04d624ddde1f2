#include "winfilesystem.h"

#include "winhandle.h"

namespace platform {

namespace {

// Any "." or ".." step: Win32 would resolve it lexically and delete some other file.
bool hasDotStep(const std::wstring& path)
{
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = path.find_first_of(L"/\\", start);
        if (end == std::wstring::npos)
            end = path.size();
        const std::wstring part = path.substr(start, end - start);
        if (part == L"." || part == L"..")
            return true;
        start = end + 1;
    }
    return false;
}

// The "\\?\" form of an absolute path, so that deep profile trees are not cut off at MAX_PATH.
std::wstring longPath(std::wstring path)
{
    for (wchar_t& c : path) {
        if (c == L'/')
            c = L'\\';
    }
    if (path.size() >= 3 && path[1] == L':' && path[2] == L'\\')
        return L"\\\\?\\" + path;
    if (path.size() > 2 && path[0] == L'\\' && path[1] == L'\\' && path[2] != L'?')
        return L"\\\\?\\UNC\\" + path.substr(2);
    return path;
}

} // namespace

bool WinFileSystem::removeFile(const std::wstring& path)
{
    std::wstring trimmed = path;
    while (trimmed.size() > 1 && (trimmed.back() == L'/' || trimmed.back() == L'\\'))
        trimmed.pop_back();
    if (trimmed.empty() || hasDotStep(trimmed))
        return false;
    const std::wstring p = longPath(trimmed);
    const DWORD attributes = ::GetFileAttributesW(p.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return isNotFound(::GetLastError());
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return false;
    // DeleteFileW removes a file symbolic link itself, never its target.
    return ::DeleteFileW(p.c_str()) || isNotFound(::GetLastError());
}

} // namespace platform
