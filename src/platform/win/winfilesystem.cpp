#include "winfilesystem.h"

#include "winhandle.h"

#include <winternl.h>

#include <cstddef>

namespace platform {

namespace {

// Each level of a walk keeps its folder open; beyond this depth a folder is left alone rather
// than risking the handle count or the pool thread's stack on a pathological tree.
constexpr int MaxDepth = 400;

// One large read per directory chunk: the listing is the hot path of a scan.
constexpr std::size_t ListingBufferBytes = 64 * 1024;

// The few NTSTATUS values the walk tells apart; ntstatus.h clashes with windows.h.
constexpr NTSTATUS StatusAccessDenied = static_cast<NTSTATUS>(0xC0000022);
constexpr NTSTATUS StatusObjectNameNotFound = static_cast<NTSTATUS>(0xC0000034);
constexpr NTSTATUS StatusObjectPathNotFound = static_cast<NTSTATUS>(0xC000003A);
constexpr NTSTATUS StatusNotADirectory = static_cast<NTSTATUS>(0xC0000103);

// Windows 10 1809's disposition class; mingw-w64 hides it behind a version test that never holds.
constexpr auto FileDispositionInfoExClass = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21);

constexpr ULONG ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Rights to walk a folder: list it, read what it is, and wait on synchronous I/O.
constexpr ACCESS_MASK WalkAccess = FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES | SYNCHRONIZE;

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
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) && !(attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

// The attributes of what a handle names, INVALID_FILE_ATTRIBUTES when they cannot be read.
DWORD attributesOf(HANDLE handle)
{
    FILE_BASIC_INFO info {};
    if (!::GetFileInformationByHandleEx(handle, FileBasicInfo, &info, sizeof info))
        return INVALID_FILE_ATTRIBUTES;
    return info.FileAttributes;
}

// Opens the folder a caller names, the last component as itself: a link there is opened as the
// link, so its attributes give it away and it is never listed.
UniqueHfile openTopFolder(const std::wstring& folder, DWORD& attributes, ACCESS_MASK access = WalkAccess)
{
    attributes = INVALID_FILE_ATTRIBUTES;
    const std::wstring path = toWin32Path(folder);
    if (path.empty())
        return UniqueHfile();
    UniqueHfile handle(::CreateFileW(path.c_str(), access, ShareAll, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!handle)
        return handle;
    attributes = attributesOf(handle.get());
    // Wine opens a Unix link as its target even when asked not to, and only the path still shows
    // the link; on Windows both agree.
    const DWORD byPath = ::GetFileAttributesW(path.c_str());
    if (byPath == INVALID_FILE_ATTRIBUTES || (byPath & FILE_ATTRIBUTE_REPARSE_POINT))
        attributes = byPath;
    return handle;
}

// Opens `name` inside the folder `parent` holds, never by a path: what the walk listed is what it
// acts on, even if a folder higher up is swapped for a junction meanwhile. FILE_OPEN_REPARSE_POINT
// opens a link as itself.
NTSTATUS openChild(HANDLE parent, const std::wstring& name, ACCESS_MASK access, ULONG options, UniqueHfile& out)
{
    UNICODE_STRING objectName;
    objectName.Buffer = const_cast<PWSTR>(name.c_str());
    objectName.Length = static_cast<USHORT>(name.size() * sizeof(wchar_t));
    objectName.MaximumLength = objectName.Length;
    OBJECT_ATTRIBUTES attributes;
    InitializeObjectAttributes(&attributes, &objectName, OBJ_CASE_INSENSITIVE, parent, nullptr);
    IO_STATUS_BLOCK io {};
    HANDLE handle = nullptr;
    const NTSTATUS status = ::NtOpenFile(&handle, access | SYNCHRONIZE, &attributes, &io, ShareAll,
        options | FILE_OPEN_REPARSE_POINT | FILE_SYNCHRONOUS_IO_NONALERT | FILE_OPEN_FOR_BACKUP_INTENT);
    out.reset(NT_SUCCESS(status) ? handle : INVALID_HANDLE_VALUE);
    return status;
}

struct Entry {
    std::wstring name;
    DWORD attributes;
    DWORD reparseTag;
    std::int64_t size;
};

// Reads the whole listing of an open folder from its start, so the caller may delete entries
// while it goes through them.
bool readEntries(HANDLE folder, std::vector<Entry>& out, DWORD& error)
{
    out.clear();
    error = ERROR_SUCCESS;
    // 8-byte aligned, as the records are.
    static thread_local std::vector<std::uint64_t> buffer(ListingBufferBytes / sizeof(std::uint64_t));
    const DWORD bufferBytes = static_cast<DWORD>(buffer.size() * sizeof(std::uint64_t));
    FILE_INFO_BY_HANDLE_CLASS infoClass = FileIdBothDirectoryRestartInfo;
    for (;;) {
        if (!::GetFileInformationByHandleEx(folder, infoClass, buffer.data(), bufferBytes)) {
            error = ::GetLastError();
            if (error == ERROR_NO_MORE_FILES || error == ERROR_FILE_NOT_FOUND) {
                error = ERROR_SUCCESS;
                return true;
            }
            return false;
        }
        infoClass = FileIdBothDirectoryInfo;
        const auto* bytes = reinterpret_cast<const unsigned char*>(buffer.data());
        for (std::size_t pos = 0;;) {
            const auto* info = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(bytes + pos);
            const std::wstring name(info->FileName, info->FileNameLength / sizeof(wchar_t));
            if (name != L"." && name != L"..") {
                // For a reparse point the extended-attribute size field carries its tag instead.
                const DWORD tag = (info->FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) ? info->EaSize : 0;
                out.push_back({ name, info->FileAttributes, tag, info->EndOfFile.QuadPart });
            }
            if (info->NextEntryOffset == 0)
                break;
            pos += info->NextEntryOffset;
        }
    }
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

std::int64_t sizeBelow(HANDLE folder, int depth)
{
    std::vector<Entry> entries;
    DWORD error;
    if (!readEntries(folder, entries, error))
        return 0;
    std::int64_t total = 0;
    for (const Entry& e : entries) {
        if (e.attributes & FILE_ATTRIBUTE_DIRECTORY) {
            if (!isRealFolder(e.attributes) || depth >= MaxDepth)
                continue;
            UniqueHfile sub;
            if (NT_SUCCESS(openChild(folder, e.name, WalkAccess, FILE_DIRECTORY_FILE, sub))
                && isRealFolder(attributesOf(sub.get())))
                total += sizeBelow(sub.get(), depth + 1);
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

DWORD errorFrom(NTSTATUS status)
{
    return ::RtlNtStatusToDosError(status);
}

bool setAttributes(HANDLE handle, DWORD attributes)
{
    FILE_BASIC_INFO info {};
    info.FileAttributes = attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
    return ::SetFileInformationByHandle(handle, FileBasicInfo, &info, sizeof info);
}

// Marks what the handle names for deletion; it goes when the handle closes. The handle was opened
// with FILE_OPEN_REPARSE_POINT, so for a link that is the link and never its target.
// `clearReadOnly` is the walk inside a folder being removed: there a read-only entry is made
// writable and deleted all the same, and keeps its attribute if it still cannot go.
bool markForDeletion(HANDLE handle, bool clearReadOnly, DWORD& error)
{
    FILE_DISPOSITION_INFO_EX ex {};
    ex.Flags = FILE_DISPOSITION_FLAG_DELETE | FILE_DISPOSITION_FLAG_POSIX_SEMANTICS
        | (clearReadOnly ? FILE_DISPOSITION_FLAG_IGNORE_READONLY_ATTRIBUTE : 0);
    if (::SetFileInformationByHandle(handle, FileDispositionInfoExClass, &ex, sizeof ex))
        return true;
    // Windows before 10 1809, and Wine, know only the plain disposition.
    FILE_DISPOSITION_INFO plain { TRUE };
    if (::SetFileInformationByHandle(handle, FileDispositionInfo, &plain, sizeof plain))
        return true;
    error = ::GetLastError();
    if (!clearReadOnly || error != ERROR_ACCESS_DENIED)
        return false;
    const DWORD attributes = attributesOf(handle);
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_READONLY))
        return false;
    if (!setAttributes(handle, attributes & ~FILE_ATTRIBUTE_READONLY))
        return false;
    if (::SetFileInformationByHandle(handle, FileDispositionInfo, &plain, sizeof plain))
        return true;
    error = ::GetLastError();
    setAttributes(handle, attributes);
    return false;
}

// Deletes the open entry `handle` names and accounts for it.
void deleteOpened(HANDLE handle, bool clearReadOnly, EmptyFolderResult& result)
{
    DWORD error = ERROR_SUCCESS;
    if (markForDeletion(handle, clearReadOnly, error))
        ++result.removed;
    else
        noteFailure(result, error);
}

// Opens an entry for deletion; making a read-only entry writable needs the right to change
// attributes, which an entry may refuse while still allowing its deletion.
NTSTATUS openForDeletion(
    HANDLE parent, const std::wstring& name, ACCESS_MASK extra, ULONG options, bool clearReadOnly, UniqueHfile& out)
{
    const ACCESS_MASK access = DELETE | FILE_READ_ATTRIBUTES | extra;
    NTSTATUS status = StatusAccessDenied;
    if (clearReadOnly)
        status = openChild(parent, name, access | FILE_WRITE_ATTRIBUTES, options, out);
    if (status == StatusAccessDenied)
        status = openChild(parent, name, access, options, out);
    return status;
}

void emptyBelow(HANDLE folder, int depth, EmptyFolderResult& result);

// Removes one entry of an open folder as itself: a file or a link goes whole, a real folder is
// emptied through its own handle and then removed by that same handle.
void removeEntry(HANDLE parent, const Entry& e, int depth, EmptyFolderResult& result)
{
    // The category folder's own files go as a plain delete would take them; below it, and for
    // the folders it holds, the whole tree is being removed.
    const bool clearReadOnly = depth > 0 || (e.attributes & FILE_ATTRIBUTE_DIRECTORY);
    const bool listedAsFolder = isRealFolder(e.attributes);
    UniqueHfile handle;
    NTSTATUS status = StatusNotADirectory;
    if (listedAsFolder)
        status = openForDeletion(parent, e.name, FILE_LIST_DIRECTORY, FILE_DIRECTORY_FILE, clearReadOnly, handle);
    if (status == StatusNotADirectory)
        status = openForDeletion(parent, e.name, 0, 0, clearReadOnly, handle);
    if (status == StatusAccessDenied && listedAsFolder) {
        // A folder that may not be deleted can still hold what may.
        status = openChild(parent, e.name, WalkAccess, FILE_DIRECTORY_FILE, handle);
        if (NT_SUCCESS(status) && isRealFolder(attributesOf(handle.get())) && depth < MaxDepth)
            emptyBelow(handle.get(), depth + 1, result);
        noteFailure(result, ERROR_ACCESS_DENIED);
        return;
    }
    if (!NT_SUCCESS(status)) {
        if (status != StatusObjectNameNotFound && status != StatusObjectPathNotFound)
            noteFailure(result, errorFrom(status));
        return;
    }
    const DWORD now = attributesOf(handle.get());
    if (now == INVALID_FILE_ATTRIBUTES) {
        noteFailure(result, ::GetLastError());
        return;
    }
    if ((e.attributes & FILE_ATTRIBUTE_REPARSE_POINT) && !(now & FILE_ATTRIBUTE_REPARSE_POINT)) {
        // Listed as a link, yet the handle names no link: the open went through to the target
        // (Wine does that with Unix links), and deleting by this handle would delete the target.
        noteFailure(result, ERROR_CANT_ACCESS_FILE);
        return;
    }
    if (!isRealFolder(now) || !listedAsFolder) {
        // A file, a link of any kind (also one swapped in for a folder since the listing), or a
        // folder that appeared where a file was listed: it goes as itself, never entered.
        deleteOpened(handle.get(), clearReadOnly, result);
        return;
    }
    if (depth >= MaxDepth) {
        noteFailure(result, ERROR_CANT_RESOLVE_FILENAME);
        return;
    }
    emptyBelow(handle.get(), depth + 1, result);
    deleteOpened(handle.get(), clearReadOnly, result);
}

void emptyBelow(HANDLE folder, int depth, EmptyFolderResult& result)
{
    std::vector<Entry> entries;
    DWORD error;
    if (!readEntries(folder, entries, error)) {
        noteFailure(result, error);
        return;
    }
    for (const Entry& e : entries)
        removeEntry(folder, e, depth, result);
}

} // namespace

bool WinFileSystem::isFolder(const std::wstring& path)
{
    // Being there is enough: a folder the user may not list (C:\Windows\Temp unelevated) is still one.
    DWORD attributes;
    const UniqueHfile folder = openTopFolder(path, attributes, FILE_READ_ATTRIBUTES | SYNCHRONIZE);
    return folder && isRealFolder(attributes);
}

std::optional<std::vector<std::wstring>> WinFileSystem::subFolders(const std::wstring& folder)
{
    DWORD attributes;
    const UniqueHfile handle = openTopFolder(folder, attributes);
    std::vector<Entry> entries;
    DWORD error;
    if (!handle || !isRealFolder(attributes) || !readEntries(handle.get(), entries, error))
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
    DWORD attributes;
    const UniqueHfile handle = openTopFolder(folder, attributes);
    if (!handle || !isRealFolder(attributes))
        return 0;
    return sizeBelow(handle.get(), 0);
}

EmptyFolderResult WinFileSystem::emptyFolder(const std::wstring& folder)
{
    EmptyFolderResult result;
    DWORD attributes;
    const UniqueHfile handle = openTopFolder(folder, attributes);
    if (!handle || !isRealFolder(attributes))
        return result;
    result.opened = true;
    emptyBelow(handle.get(), 0, result);
    return result;
}

} // namespace platform
