// Contract cases for the file-system service: the same trees, measured and emptied by the
// sandbox implementation natively and by the Win32 one under Wine.

#include "platform/filesystem.h"

#ifdef _WIN32
#include "platform/win/winfilesystem.h"
#else
#include "platform/sandbox/sandboxfilesystem.h"
#endif

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

class FileSystemContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_root = fs::temp_directory_path() / ("norvale-fs-" + std::to_string(std::random_device()()));
#ifdef _WIN32
        m_fs = std::make_unique<platform::WinFileSystem>();
#else
        m_fs = std::make_unique<platform::SandboxFileSystem>(m_root.wstring());
#endif
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }

    std::wstring path(const std::string& relative) const
    {
        return (m_root / relative).generic_wstring();
    }
    void write(const std::string& relative, std::size_t bytes) const
    {
        fs::create_directories((m_root / relative).parent_path());
        std::ofstream(m_root / relative, std::ios::binary) << std::string(bytes, 'x');
    }

    fs::path m_root;
    std::unique_ptr<platform::FileSystem> m_fs;
};

TEST_F(FileSystemContract, MeasuresEveryFileAtEveryDepthThenEmptiesTheFolderButKeepsIt)
{
    write("junk/a.tmp", 100);
    write("junk/.hidden", 20);
    write("junk/sub/b.tmp", 3000);
    write("junk/sub/deeper/still/c.tmp", 7);
    write("junk/empty.tmp", 0);
    fs::create_directories(m_root / "junk/empty-folder");
    std::string deep = "junk/deep"; // far past the classic Win32 path length limit
    for (int level = 0; level < 60; ++level)
        deep += "/level" + std::to_string(level);
    write(deep + "/bottom.tmp", 1);
    write("beside.tmp", 999); // outside the measured folder

    EXPECT_EQ(m_fs->folderSize(path("junk")), 3128);
    EXPECT_EQ(m_fs->folderSize(path("junk/sub")), 3007);

    const platform::EmptyFolderResult result = m_fs->emptyFolder(path("junk"));
    EXPECT_TRUE(result.opened);
    EXPECT_EQ(result.failed, 0u);
    EXPECT_EQ(result.removed, 71u); // six files, 65 folders
    EXPECT_TRUE(fs::is_empty(m_root / "junk")); // and still there, or this throws
    EXPECT_TRUE(fs::exists(m_root / "beside.tmp"));
}

// A file where a folder is expected (the log file listed beside the log folders), or nothing at all.
TEST_F(FileSystemContract, WhatIsNotAFolderIsNeitherMeasuredNorEmptiedNorListed)
{
    write("MRT.log", 4096);
    EXPECT_EQ(m_fs->folderSize(L""), 0);
    for (const std::wstring& notAFolder : { path("MRT.log"), path("missing"), path("missing/below") }) {
        SCOPED_TRACE(std::string(notAFolder.begin(), notAFolder.end()));
        EXPECT_FALSE(m_fs->isFolder(notAFolder));
        EXPECT_EQ(m_fs->folderSize(notAFolder), 0);
        EXPECT_FALSE(m_fs->emptyFolder(notAFolder).opened);
        EXPECT_FALSE(m_fs->subFolders(notAFolder).has_value());
    }
    EXPECT_EQ(fs::file_size(m_root / "MRT.log"), 4096u);
}

// Category paths are a base folder from the environment with "/Name/..." appended as plain text,
// so a base that ends in a separator doubles it.
TEST_F(FileSystemContract, StraySeparatorsAndDotsNameTheSameFolder)
{
    write("Local/Google/Chrome/User Data/Default/Cache/f_000001", 40);
    write("Local/Google/Chrome/User Data/Default/Cache/sub/f_000002", 2);
    const std::wstring base = path("Local");
    std::vector<std::wstring> spellings = {
        base + L"//Google/Chrome/User Data/Default/Cache",
        base + L"/Google/./Chrome/User Data//Default/Cache/",
    };
#ifdef _WIN32
    std::wstring native = base;
    std::replace(native.begin(), native.end(), L'/', L'\\');
    spellings.push_back(native + L"\\/Google/Chrome/User Data/Default/Cache");
#endif
    for (const std::wstring& spelling : spellings) {
        SCOPED_TRACE(std::string(spelling.begin(), spelling.end()));
        EXPECT_TRUE(m_fs->isFolder(spelling));
        EXPECT_EQ(m_fs->folderSize(spelling), 42);
        EXPECT_EQ(m_fs->subFolders(spelling), std::optional(std::vector<std::wstring> { L"sub" }));
    }
    EXPECT_TRUE(m_fs->emptyFolder(spellings.back()).opened);
    EXPECT_TRUE(fs::is_empty(m_root / "Local/Google/Chrome/User Data/Default/Cache"));
}

} // namespace
