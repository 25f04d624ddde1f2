// The budgeted walk and whole-folder removal of the Win32 file system. Kept apart from the main
// walk so that each stays small; both follow the same link rules.

#include "winfilesystem.h"

#include "winhandle.h"

#include <vector>

namespace platform {

namespace {

// Each level holds a path one component longer; deeper trees are left alone.
constexpr int MaxMeasureDepth = 400;

struct FindCloser {
    using type = HANDLE;
    static type invalid() { return INVALID_HANDLE_VALUE; }
    static void close(type handle) { ::FindClose(handle); }
};
using UniqueSearch = UniqueAny<FindCloser>;

// Backslashes, no trailing separator, and the long-path prefix on a drive path, so deep trees are
// reachable. Callers hand in absolute, already clean paths.
std::wstring longPath(const std::wstring& path)
{
    std::wstring p = path;
    for (wchar_t& c : p) {
        if (c == L'/')
            c = L'\\';
    }
    while (p.size() > 3 && p.back() == L'\\')
        p.pop_back();
    if (p.size() >= 3 && p[1] == L':' && p[2] == L'\\')
        return L"\\\\?\\" + p;
    if (p.size() > 2 && p[0] == L'\\' && p[1] == L'\\' && p[2] != L'?')
        return L"\\\\?\\UNC\\" + p.substr(2);
    return p;
}

bool isPlainFolder(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY)
        && !(attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

struct Budget {
    std::uint64_t maxFiles;
    const std::atomic<bool>* stop;
    FolderMeasure measure;

    bool exhausted() const { return measure.files >= maxFiles || (stop && stop->load(std::memory_order_relaxed)); }
};

// False once the budget ran out, which ends the whole walk.
bool measureBelow(const std::wstring& folder, int depth, Budget& budget)
{
    WIN32_FIND_DATAW data;
    std::vector<std::wstring> folders;
    {
        UniqueSearch find(::FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &data, FindExSearchNameMatch,
            nullptr, FIND_FIRST_EX_LARGE_FETCH));
        if (!find)
            return true; // unreadable or empty: nothing to count, the walk goes on
        do {
            const wchar_t* n = data.cFileName;
            if (n[0] == L'.' && (n[1] == L'\0' || (n[1] == L'.' && n[2] == L'\0')))
                continue;
            if (budget.exhausted())
                return false;
            if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
                if (!(data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT))
                    folders.push_back(folder + L'\\' + n);
                continue;
            }
            // A file symbolic link holds none of the bytes it names.
            if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)
                && (data.dwReserved0 == 0 || IsReparseTagNameSurrogate(data.dwReserved0)))
                continue;
            budget.measure.bytes += static_cast<std::int64_t>(
                (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow);
            ++budget.measure.files;
        } while (::FindNextFileW(find.get(), &data));
    }
    if (depth >= MaxMeasureDepth)
        return true;
    for (const std::wstring& sub : folders) {
        if (budget.exhausted())
            return false;
        if (!measureBelow(sub, depth + 1, budget))
            return false;
    }
    return true;
}

bool isDriveRoot(const std::wstring& path)
{
    std::wstring p = path;
    while (!p.empty() && (p.back() == L'\\' || p.back() == L'/'))
        p.pop_back();
    return p.empty() || (p.size() == 2 && p[1] == L':');
}

} // namespace

FolderMeasure WinFileSystem::measureFolder(
    const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop)
{
    Budget budget { maxFiles, stop, {} };
    const std::wstring path = longPath(folder);
    if (path.empty() || !isPlainFolder(::GetFileAttributesW(path.c_str())))
        return budget.measure;
    budget.measure.complete = measureBelow(path, 0, budget);
    return budget.measure;
}

EmptyFolderResult WinFileSystem::removeFolder(const std::wstring& folder)
{
    if (isDriveRoot(folder) || !isFolder(folder))
        return EmptyFolderResult {};
    EmptyFolderResult result = emptyFolder(folder);
    if (!result.opened || result.failed != 0)
        return result;
    // The folder was checked to be no link above; RemoveDirectoryW would only drop a link anyway.
    if (::RemoveDirectoryW(longPath(folder).c_str())) {
        ++result.removed;
    } else {
        const DWORD error = ::GetLastError();
        if (isNotFound(error)) {
            ++result.removed;
        } else {
            ++result.failed;
            if (result.firstError == 0)
                result.firstError = error;
        }
    }
    return result;
}

} // namespace platform
