#pragma once

#include "../filesystem.h"

namespace platform {

// The Win32 file system. Walks list each folder with FindFirstFileExW (basic information, large
// fetch), so sizes come from the directory entries and no file is opened. A folder with a reparse
// point (symbolic link, junction, mounted volume, cloud placeholder) is never entered; a link is
// deleted as a link with RemoveDirectoryW or DeleteFileW, which never touch its target.
class WinFileSystem final : public FileSystem {
public:
    WinFileSystem() = default;

    bool isFolder(const std::wstring& path) override;
    std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) override;
    std::int64_t folderSize(const std::wstring& folder) override;
    EmptyFolderResult emptyFolder(const std::wstring& folder) override;
    RemoveTreeResult removeTree(const std::wstring& path) override; // filesystemremove.cpp
};

} // namespace platform
