#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// What emptying a folder did. Entries count every file, link and folder below the emptied folder.
struct EmptyFolderResult {
    bool opened = false; // the path was a real folder (not a link) and could be listed
    std::uint64_t removed = 0; // entries that are gone
    std::uint64_t failed = 0; // entries that stayed (in use, protected, or not listable)
    std::uint32_t firstError = 0; // errno or Win32 error of the first failure, 0 if none
};

// What a walk with a file budget saw.
struct FolderMeasure {
    std::int64_t bytes = 0;
    std::uint64_t files = 0; // regular files counted
    bool complete = false; // false when the budget or the stop flag ended the walk early
};

// Whether removeFolder took the folder away whole.
inline bool removedWhole(const EmptyFolderResult& result)
{
    return result.opened && result.failed == 0;
}

// Metadata walks and link-safe deletion inside folders.
//
// None of these ever enters a symbolic link, junction, mount point or other reparse point: a link
// is measured as nothing and deleted as a link, so its target is never read or touched. A path
// whose last component is itself a link is not treated as a folder at all.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    // True when `path` is a folder and not a link to one.
    virtual bool isFolder(const std::wstring& path) = 0;

    // Names of the real sub-folders of `folder`, in the order the file system lists them; nullopt
    // when `folder` is not a folder that can be listed.
    virtual std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) = 0;

    // Sum of the sizes of every regular file below `folder`, hidden and system files included,
    // read from directory metadata only: no file is opened, so files in use still count. Folders
    // add nothing themselves. 0 when `folder` is missing, a file or a link.
    virtual std::int64_t folderSize(const std::wstring& folder) = 0;

    // Deletes everything inside `folder` and keeps the folder itself. Sub-folders go with all
    // they hold; what cannot be deleted stays (with the folders that lead to it) and the rest
    // goes on. The folder's own files go as single deletes would take them, so a read-only one
    // stays; inside its sub-folders, where whole trees are being removed, a read-only file is
    // made writable and deleted. A link, wherever it is met, is deleted as itself.
    virtual EmptyFolderResult emptyFolder(const std::wstring& folder) = 0;

    // folderSize with a budget: counts at most `maxFiles` files and gives up as soon as `stop`
    // (when not null) reads true. A survey of hundreds of folders stays quick this way; its
    // figures are lower bounds for folders larger than the budget.
    virtual FolderMeasure measureFolder(
        const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop)
        = 0;

    // Deletes `folder` itself with everything inside, by the rules of emptyFolder. The folder goes
    // last and only when nothing inside stayed; `removed` counts it too. A link, a file or a
    // drive root is not removed (opened is false).
    virtual EmptyFolderResult removeFolder(const std::wstring& folder) = 0;

    // Deletes one file, or a link as itself (never its target). True when nothing is left at
    // `path`, so a file that is already gone counts as removed; false for a folder, for a path whose
    // last component is "." or "..", and when the delete fails.
    virtual bool removeFile(const std::wstring& path) = 0;
};

} // namespace platform
