#include "winfilesystem.h"

#include "winhandle.h"

namespace platform {

namespace {

// The "\\?\" form of an absolute path, so that deep extension trees are not cut off at MAX_PATH.
// Win32's own clean-up is done first on purpose: "." and ".." in the last component are refused by
// the caller before this runs, so nothing here can make the path climb.
std::wstring longPath(const std::wstring& path)
{
    std::wstring p = path;
    for (wchar_t& c : p) {
        if (c == L'/')
            c = L'\\';
    }
    if (p.rfind(L"\\\\?\\", 0) == 0)
        return p;
    const DWORD needed = ::GetFullPathNameW(p.c_str(), 0, nullptr, nullptr);
    if (needed > 0) {
        std::wstring full(needed, L'\0');
        const DWORD written = ::GetFullPathNameW(p.c_str(), needed, full.data(), nullptr);
        if (written > 0 && written < needed) {
            full.resize(written);
            p = full;
        }
    }
    while (p.size() > 3 && p.back() == L'\\')
        p.pop_back();
    if (p.size() >= 3 && p[1] == L':' && p[2] == L'\\')
        return L"\\\\?\\" + p;
    if (p.size() > 2 && p[0] == L'\\' && p[1] == L'\\')
        return L"\\\\?\\UNC\\" + p.substr(2);
    return p;
}

// Any "." or ".." step: Win32 would resolve it lexically and remove some other folder.
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

void noteFailure(RemoveTreeResult& result, DWORD error)
{
    ++result.failed;
    if (result.firstError == 0)
        result.firstError = error;
}

} // namespace

RemoveTreeResult WinFileSystem::removeTree(const std::wstring& path)
{
    RemoveTreeResult result;
    std::wstring trimmed = path;
    while (trimmed.size() > 1 && (trimmed.back() == L'/' || trimmed.back() == L'\\'))
        trimmed.pop_back();
    if (trimmed.empty() || hasDotStep(trimmed) || (trimmed.size() <= 3 && trimmed.find(L':') != std::wstring::npos)) {
        result.firstError = ERROR_INVALID_NAME;
        return result;
    }
    const std::wstring p = longPath(trimmed);
    const DWORD attributes = ::GetFileAttributesW(p.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (!isNotFound(error))
            result.firstError = error;
        return result;
    }
    result.existed = true;

    BOOL ok;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) {
        if (!(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) {
            const EmptyFolderResult emptied = emptyFolder(trimmed);
            result.failed += emptied.failed;
            if (result.firstError == 0)
                result.firstError = emptied.firstError;
        }
        // On a junction or folder link this removes the link and leaves its target alone.
        ok = ::RemoveDirectoryW(p.c_str());
    } else {
        ok = ::DeleteFileW(p.c_str());
    }
    const DWORD error = ok ? ERROR_SUCCESS : ::GetLastError();
    if (ok || isNotFound(error))
        result.removed = true;
    else
        noteFailure(result, error);
    return result;
}

} // namespace platform
