#include "winfilesystem.h"

#include "winhandle.h"

namespace platform {

namespace {

// Each level of a walk holds a path one component longer; beyond this depth a folder is left
// alone rather than risking the pool thread's stack on a pathological tree.
constexpr int MaxDepth = 400;

struct FindTraits {
    using type = HANDLE;
    static type invalid() { return INVALID_HANDLE_VALUE; }
    static void close(type handle) { ::FindClose(handle); }
};
using UniqueFind = UniqueAny<FindTraits>;

// Backslashes, no trailing separator, and the "\\?\" prefix on absolute paths so that deep
// trees are not cut off at MAX_PATH. The prefix also switches off Win32's own clean-up of the
// path, so that is done first: a base folder from the environment that ends in a separator, with
// "/Google/..." appended to it, must still name the folder it names everywhere else.
std::wstring toWin32Path(const std::wstring& path)
{
    std::wstring p = path;
    for (wchar_t& c : p) {
        if (c == L'/')
            c = L'\\';
    }
    // Already in the form the file system takes as it is: "\\?\" and device paths ("\\.\").
    if (p.empty() || p.rfind(L"\\\\?\\", 0) == 0 || p.rfind(L"\\\\.\\", 0) == 0)
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

bool isRealFolder(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY)
        && !(attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

struct Entry {
    std::wstring name;
    DWORD attributes;
    DWORD reparseTag;
    std::int64_t size;
};

// Reads the whole listing and closes the search before the caller acts on it, so a deep walk
// holds one search handle at a time and deleting entries cannot disturb the enumeration.
bool readEntries(const std::wstring& folder, std::vector<Entry>& out, DWORD& error)
{
    out.clear();
    error = ERROR_SUCCESS;
    WIN32_FIND_DATAW data;
    const std::wstring pattern = folder + (folder.back() == L'\\' ? L"*" : L"\\*");
    UniqueFind find(::FindFirstFileExW(
        pattern.c_str(), FindExInfoBasic, &data, FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (!find) {
        error = ::GetLastError();
        // A drive root has no "." entry, so an empty one reports "not found".
        return error == ERROR_FILE_NOT_FOUND;
    }
    do {
        const wchar_t* n = data.cFileName;
        if (n[0] == L'.' && (n[1] == L'\0' || (n[1] == L'.' && n[2] == L'\0')))
            continue;
        const std::int64_t size
            = static_cast<std::int64_t>((static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow);
        const DWORD tag = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) ? data.dwReserved0 : 0;
        out.push_back({ n, data.dwFileAttributes, tag, size });
    } while (::FindNextFileW(find.get(), &data));
    error = ::GetLastError();
    if (error == ERROR_NO_MORE_FILES) {
        error = ERROR_SUCCESS;
        return true;
    }
    return false;
}

std::wstring child(const std::wstring& folder, const std::wstring& name)
{
    return folder.back() == L'\\' ? folder + name : folder + L'\\' + name;
}

// A file-like entry that only points elsewhere (a file symbolic link) holds none of the bytes it
// names; other reparse points on files (deduplicated, cloud) are the file's own data. A missing
// tag is taken as a link, the safe reading.
bool isLinkToElsewhere(const Entry& e)
{
    if (!(e.attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        return false;
    return e.reparseTag == 0 || IsReparseTagNameSurrogate(e.reparseTag);
}

std::int64_t sizeBelow(const std::wstring& folder, int depth)
{
    std::vector<Entry> entries;
    DWORD error;
    if (!readEntries(folder, entries, error))
        return 0;
    std::int64_t total = 0;
    for (const Entry& e : entries) {
        if (e.attributes & FILE_ATTRIBUTE_DIRECTORY) {
            if (!(e.attributes & FILE_ATTRIBUTE_REPARSE_POINT) && depth < MaxDepth)
                total += sizeBelow(child(folder, e.name), depth + 1);
        } else if (!isLinkToElsewhere(e)) {
            total += e.size;
        }
    }
    return total;
}

void noteFailure(EmptyFolderResult& result, DWORD error)
{
    ++result.failed;
    if (result.firstError == 0)
        result.firstError = error;
}

void account(BOOL ok, EmptyFolderResult& result)
{
    const DWORD error = ok ? ERROR_SUCCESS : ::GetLastError();
    if (ok || isNotFound(error))
        ++result.removed;
    else
        noteFailure(result, error);
}

void emptyBelow(const std::wstring& folder, int depth, EmptyFolderResult& result)
{
    std::vector<Entry> entries;
    DWORD error;
    if (!readEntries(folder, entries, error)) {
        noteFailure(result, error);
        return;
    }
    for (const Entry& e : entries) {
        const std::wstring path = child(folder, e.name);
        if (!(e.attributes & FILE_ATTRIBUTE_DIRECTORY)) {
            // DeleteFileW removes a file symbolic link itself, never its target.
            account(::DeleteFileW(path.c_str()), result);
            continue;
        }
        if (e.attributes & FILE_ATTRIBUTE_REPARSE_POINT) {
            // A junction or folder link: RemoveDirectoryW removes the link and leaves the target.
            account(::RemoveDirectoryW(path.c_str()), result);
            continue;
        }
        // Look again right before entering: a folder swapped for a junction since the listing
        // must be removed as a link, not walked.
        const DWORD now = ::GetFileAttributesW(path.c_str());
        if (now == INVALID_FILE_ATTRIBUTES) {
            const DWORD gone = ::GetLastError();
            if (!isNotFound(gone))
                noteFailure(result, gone);
            continue;
        }
        if (!isRealFolder(now)) {
            account((now & FILE_ATTRIBUTE_DIRECTORY) ? ::RemoveDirectoryW(path.c_str()) : ::DeleteFileW(path.c_str()),
                result);
            continue;
        }
        if (depth >= MaxDepth) {
            noteFailure(result, ERROR_CANT_RESOLVE_FILENAME);
            continue;
        }
        emptyBelow(path, depth + 1, result);
        account(::RemoveDirectoryW(path.c_str()), result);
    }
}

} // namespace

bool WinFileSystem::isFolder(const std::wstring& path)
{
    return isRealFolder(::GetFileAttributesW(toWin32Path(path).c_str()));
}

std::optional<std::vector<std::wstring>> WinFileSystem::subFolders(const std::wstring& folder)
{
    const std::wstring path = toWin32Path(folder);
    if (!isRealFolder(::GetFileAttributesW(path.c_str())))
        return std::nullopt;
    std::vector<Entry> entries;
    DWORD error;
    if (!readEntries(path, entries, error))
        return std::nullopt;
    std::vector<std::wstring> names;
    for (const Entry& e : entries) {
        if (isRealFolder(e.attributes))
            names.push_back(e.name);
    }
    return names;
}

std::int64_t WinFileSystem::folderSize(const std::wstring& folder)
{
    const std::wstring path = toWin32Path(folder);
    if (!isRealFolder(::GetFileAttributesW(path.c_str())))
        return 0;
    return sizeBelow(path, 0);
}

EmptyFolderResult WinFileSystem::emptyFolder(const std::wstring& folder)
{
    EmptyFolderResult result;
    const std::wstring path = toWin32Path(folder);
    if (!isRealFolder(::GetFileAttributesW(path.c_str())))
        return result;
    result.opened = true;
    emptyBelow(path, 0, result);
    return result;
}

} // namespace platform
