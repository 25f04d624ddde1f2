#pragma once

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

// What removing one entry did: the entry itself and, for a folder, everything it held.
struct RemoveTreeResult {
    bool existed = false; // something was at the path (a folder, a file or a link)
    bool removed = false; // it was there and is gone now
    std::uint64_t failed = 0; // entries below it that stayed
    std::uint32_t firstError = 0; // errno or Win32 error of the first failure, 0 if none
};

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

    // Deletes `path` itself: a folder with everything below it (as emptyFolder walks it), a file,
    // or a link as a link. A path whose last component is "." or ".." is refused, never resolved.
    virtual RemoveTreeResult removeTree(const std::wstring& path) = 0;
};

} // namespace platform
