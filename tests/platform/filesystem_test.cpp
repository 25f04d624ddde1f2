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
        std::random_device random;
        m_root = fs::temp_directory_path() / ("norvale-fs-" + std::to_string(random()));
        fs::create_directories(m_root);
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
        const fs::path file = m_root / relative;
        fs::create_directories(file.parent_path());
        std::ofstream out(file, std::ios::binary);
        out << std::string(bytes, 'x');
    }

    bool exists(const std::string& relative) const
    {
        return fs::exists(m_root / relative);
    }

    platform::FileSystem& fileSystem()
    {
        return *m_fs;
    }

private:
    fs::path m_root;
    std::unique_ptr<platform::FileSystem> m_fs;
};

TEST_F(FileSystemContract, FolderSizeAddsEveryFileAtEveryDepthAndNothingForFolders)
{
    write("junk/a.tmp", 100);
    write("junk/.hidden", 20);
    write("junk/sub/b.tmp", 3000);
    write("junk/sub/deeper/still/c.tmp", 7);
    write("junk/empty.tmp", 0);
    fs::create_directories(fs::path(path("junk/empty-folder")));
    write("beside.tmp", 999); // outside the measured folder

    EXPECT_EQ(fileSystem().folderSize(path("junk")), 3127);
    EXPECT_EQ(fileSystem().folderSize(path("junk/sub")), 3007);
    EXPECT_EQ(fileSystem().folderSize(path("junk/empty-folder")), 0);
}

TEST_F(FileSystemContract, FolderSizeOfSomethingThatIsNotAFolderIsZero)
{
    write("file.log", 5000);
    EXPECT_EQ(fileSystem().folderSize(path("file.log")), 0);
    EXPECT_EQ(fileSystem().folderSize(path("missing")), 0);
    EXPECT_EQ(fileSystem().folderSize(path("missing/below")), 0);
    EXPECT_EQ(fileSystem().folderSize(L""), 0);
}

TEST_F(FileSystemContract, EmptyFolderRemovesEverythingInsideAndKeepsTheFolder)
{
    write("junk/a.tmp", 10);
    write("junk/sub/b.tmp", 10);
    write("junk/sub/deeper/c.tmp", 10);
    fs::create_directories(fs::path(path("junk/empty-folder")));
    write("beside.tmp", 10);

    const platform::EmptyFolderResult result = fileSystem().emptyFolder(path("junk"));

    EXPECT_TRUE(result.opened);
    EXPECT_EQ(result.failed, 0u);
    EXPECT_EQ(result.removed, 6u); // three files, three folders
    EXPECT_TRUE(fs::is_directory(fs::path(path("junk"))));
    EXPECT_TRUE(fs::is_empty(fs::path(path("junk"))));
    EXPECT_TRUE(exists("beside.tmp"));
    EXPECT_EQ(fileSystem().folderSize(path("junk")), 0);
}

TEST_F(FileSystemContract, EmptyFolderLeavesAFileNamedAsTheFolderAlone)
{
    write("MRT.log", 4096);
    const platform::EmptyFolderResult result = fileSystem().emptyFolder(path("MRT.log"));
    EXPECT_FALSE(result.opened);
    EXPECT_TRUE(exists("MRT.log"));
    EXPECT_FALSE(fileSystem().emptyFolder(path("missing")).opened);
}

TEST_F(FileSystemContract, EmptyFolderReachesTheBottomOfADeepTree)
{
    std::string deep = "junk";
    for (int level = 0; level < 60; ++level)
        deep += "/level" + std::to_string(level);
    write(deep + "/bottom.tmp", 1);
    EXPECT_EQ(fileSystem().folderSize(path("junk")), 1);

    const platform::EmptyFolderResult result = fileSystem().emptyFolder(path("junk"));
    EXPECT_EQ(result.failed, 0u);
    EXPECT_TRUE(fs::is_empty(fs::path(path("junk"))));
}

TEST_F(FileSystemContract, SubFoldersListsFoldersOnly)
{
    write("User Data/Default/Cache/x", 1);
    write("User Data/Profile 1/Cache/x", 1);
    write("User Data/Local State", 1);

    const auto names = fileSystem().subFolders(path("User Data"));
    ASSERT_TRUE(names.has_value());
    std::vector<std::wstring> sorted = *names;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, (std::vector<std::wstring> { L"Default", L"Profile 1" }));

    EXPECT_FALSE(fileSystem().subFolders(path("missing")).has_value());
    EXPECT_FALSE(fileSystem().subFolders(path("User Data/Local State")).has_value());
    EXPECT_TRUE(fileSystem().isFolder(path("User Data/Default")));
    EXPECT_FALSE(fileSystem().isFolder(path("User Data/Local State")));
    EXPECT_FALSE(fileSystem().isFolder(path("missing")));
}

TEST_F(FileSystemContract, StraySeparatorsAndDotsNameTheSameFolder)
{
    // How category paths are made: a base folder from the environment with "/Name/..." appended
    // as plain text, so a base that ends in a separator doubles it.
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
        EXPECT_TRUE(fileSystem().isFolder(spelling));
        EXPECT_EQ(fileSystem().folderSize(spelling), 42);
        const auto names = fileSystem().subFolders(spelling);
        ASSERT_TRUE(names.has_value());
        EXPECT_EQ(*names, std::vector<std::wstring> { L"sub" });
    }
    EXPECT_TRUE(fileSystem().emptyFolder(spellings.back()).opened);
    EXPECT_TRUE(fs::is_directory(fs::path(path("Local/Google/Chrome/User Data/Default/Cache"))));
    EXPECT_TRUE(fs::is_empty(fs::path(path("Local/Google/Chrome/User Data/Default/Cache"))));
}

} // namespace
