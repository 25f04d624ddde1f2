#pragma once

#include "../filesystem.h"

namespace platform {

// The Win32 file system. A walk holds each folder open and works relative to that handle: it
// lists the folder through the handle (sizes come from the listing, so no file is opened), and
// opens and deletes each child by name relative to it with FILE_OPEN_REPARSE_POINT, so a folder
// swapped for a junction mid-walk is deleted as a junction and never entered. A folder with a
// reparse point (symbolic link, junction, mounted volume, cloud placeholder) is never entered.
class WinFileSystem final : public FileSystem {
public:
    WinFileSystem() = default;

    bool isFolder(const std::wstring& path) override;
    std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) override;
    std::int64_t folderSize(const std::wstring& folder) override;
    EmptyFolderResult emptyFolder(const std::wstring& folder) override;
    // These two live in winfilesystemextra.cpp.
    FolderMeasure measureFolder(
        const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop) override;
    EmptyFolderResult removeFolder(const std::wstring& folder) override;
    bool removeFile(const std::wstring& path) override; // filesystemremove.cpp
};

} // namespace platform
