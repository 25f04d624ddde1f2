#pragma once

#include "platform/filesystem.h"
#include "platform/platform.h"

// A file system that hands every call on to a platform's. Fault-injecting and watching wrappers
// derive from it and replace only the calls they play.
class ForwardingFileSystem : public platform::FileSystem {
public:
    // `inner` may still be under construction (a member of the derived class): it is only asked
    // for its file system once a call comes.
    explicit ForwardingFileSystem(platform::Platform& inner)
        : m_inner(inner)
    {
    }

    bool isFolder(const std::wstring& path) override { return innerFiles().isFolder(path); }
    std::optional<std::vector<std::wstring>> subFolders(const std::wstring& folder) override
    {
        return innerFiles().subFolders(folder);
    }
    std::int64_t folderSize(const std::wstring& folder) override { return innerFiles().folderSize(folder); }
    platform::EmptyFolderResult emptyFolder(const std::wstring& folder) override
    {
        return innerFiles().emptyFolder(folder);
    }
    platform::FolderMeasure measureFolder(
        const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop) override
    {
        return innerFiles().measureFolder(folder, maxFiles, stop);
    }
    platform::EmptyFolderResult removeFolder(const std::wstring& folder) override
    {
        return innerFiles().removeFolder(folder);
    }
    bool removeFile(const std::wstring& path) override { return innerFiles().removeFile(path); }

protected:
    platform::FileSystem& innerFiles() const { return m_inner.fileSystem(); }

private:
    platform::Platform& m_inner;
};
