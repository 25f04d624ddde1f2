#pragma once

#include "../filesystem.h"

#include <string>

namespace platform {

// The file system of a machine in one folder. Every path is opened one component at a time
// below the sandbox root without following links, so nothing outside the root is ever measured
// or deleted, even through a link placed inside it. Walks work relative to open directory
// descriptors (getdents64, fstatat, unlinkat) and stay on the file system they started on, as
// Windows keeps a walk out of mounted volumes.
class SandboxFileSystem final : public FileSystem {
public:
    explicit SandboxFileSystem(std::wstring root);

    bool isFolder(const std::wstring& path) override;
    std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) override;
    std::int64_t folderSize(const std::wstring& folder) override;
    EmptyFolderResult emptyFolder(const std::wstring& folder) override;
    FolderMeasure measureFolder(
        const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop) override;
    EmptyFolderResult removeFolder(const std::wstring& folder) override;
    bool removeFile(const std::wstring& path) override; // filesystemremove.cpp

private:
    // A readable descriptor of `path` when it is a real folder at or below the root, else -1.
    int openFolder(const std::wstring& path) const;

    std::string m_root; // UTF-8, without a trailing slash
};

} // namespace platform
