// The sandbox file system's own promises: links are never entered, nothing outside the sandbox
// root is reached, and walks stay on the file system they start on.

#include "platform/sandbox/sandboxfilesystem.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <sys/mount.h>

namespace fs = std::filesystem;

namespace {

class SandboxFileSystemTest : public ::testing::Test {
protected:
    void SetUp() override { fs::create_directories(m_base / "sandbox/junk"); }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    std::wstring path(const std::string& relative) const { return (m_base / relative).wstring(); }
    bool exists(const std::string& relative) const { return fs::exists(fs::symlink_status(m_base / relative)); }
    void write(const std::string& relative, std::size_t bytes) const
    {
        fs::create_directories((m_base / relative).parent_path());
        std::ofstream(m_base / relative, std::ios::binary) << std::string(bytes, 'x');
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-sfs-" + std::to_string(std::random_device()()));
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
};

TEST_F(SandboxFileSystemTest, ALinkedFolderIsNeitherMeasuredNorEnteredButRemovedAsALink)
{
    write("outside/precious/keep.doc", 5000);
    write("sandbox/junk/a.tmp", 10);
    fs::create_directory_symlink(m_base / "outside/precious", m_base / "sandbox/junk/link");
    fs::create_symlink(m_base / "outside/precious/keep.doc", m_base / "sandbox/junk/file-link");

    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk")), 10);
    EXPECT_EQ(m_fs.emptyFolder(path("sandbox/junk")).failed, 0u);
    EXPECT_TRUE(fs::is_empty(m_base / "sandbox/junk")); // the links are gone too
    EXPECT_EQ(fs::file_size(m_base / "outside/precious/keep.doc"), 5000u);
}

TEST_F(SandboxFileSystemTest, NothingOutsideTheRootIsReached)
{
    write("outside/keep.doc", 100);
    write("sandbox/C/Windows/Temp/a.tmp", 1);
    fs::create_directory_symlink(m_base / "outside", m_base / "sandbox/C/linked");

    const std::string refused[] = {
        "outside", // beside the root
        "sandbox/../outside", // climbing out
        "sandbox/C/linked", // a link as the folder itself
        "sandbox/C/linked/.", // a link as a step on the way
    };
    for (const std::string& p : refused) {
        SCOPED_TRACE(p);
        EXPECT_FALSE(m_fs.isFolder(path(p)));
        EXPECT_EQ(m_fs.folderSize(path(p)), 0);
        EXPECT_FALSE(m_fs.emptyFolder(path(p)).opened);
        EXPECT_FALSE(m_fs.subFolders(path(p)).has_value());
    }
    EXPECT_TRUE(exists("outside/keep.doc"));
    EXPECT_EQ(m_fs.folderSize(path("sandbox")), 1);
}

// A mount inside a category folder stands for another volume: on Windows that is a reparse point
// and never entered, and the sandbox keeps the same promise.
TEST_F(SandboxFileSystemTest, AMountPointIsNeitherEnteredNorRemoved)
{
    write("sandbox/junk/a.tmp", 1);
    const std::string target = (m_base / "sandbox/junk/mounted").string();
    fs::create_directories(target);
    if (::mount("tmpfs", target.c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "cannot mount a tmpfs here (needs CAP_SYS_ADMIN)";
    write("sandbox/junk/mounted/on-other-volume.doc", 200);

    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk")), 1);
    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("sandbox/junk"));
    const bool kept = exists("sandbox/junk/mounted/on-other-volume.doc");
    ::umount(target.c_str());
    EXPECT_TRUE(kept);
    EXPECT_EQ(result.failed, 1u);
    EXPECT_FALSE(exists("sandbox/junk/a.tmp"));
}

} // namespace
