// The Win32 walk and delete against real reparse points. Wine cannot create Windows links, but a
// Unix symbolic link inside the prefix shows through the Win32 API as a folder reparse point, so
// the cases place one there from the Unix side.

#include "platform/win/winfilesystem.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

using UnixNameFn = char*(CDECL*)(LPCWSTR);

// The Unix path of a Windows path, through Wine's own export; empty where it does not exist.
std::string unixPath(const fs::path& path)
{
    static const auto fn = reinterpret_cast<UnixNameFn>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    if (!fn)
        return {};
    char* name = fn(path.wstring().c_str());
    if (!name)
        return {};
    std::string result(name);
    ::HeapFree(::GetProcessHeap(), 0, name);
    return result;
}

// Runs Unix "ln -s" (Wine starts Unix programs given by their Z: path) and waits until the link
// shows as a reparse point. The handle Wine returns for a Unix process cannot be waited on, so
// the link itself is what is watched.
bool makeUnixLink(const fs::path& target, const fs::path& link)
{
    const std::string from = unixPath(target);
    const std::string to = unixPath(link);
    if (from.empty() || to.empty() || from.find(' ') != std::string::npos || to.find(' ') != std::string::npos)
        return false;
    std::wstring command = L"Z:\\bin\\ln -s " + fs::path(from).wstring() + L" " + fs::path(to).wstring();
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    constexpr int PollMs = 20;
    constexpr int GiveUpMs = 10000;
    for (int waited = 0; waited < GiveUpMs; waited += PollMs) {
        const DWORD attributes = ::GetFileAttributesW(link.wstring().c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES)
            return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        ::Sleep(PollMs);
    }
    return false;
}

class WinFileSystemLinks : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (unixPath(fs::temp_directory_path()).empty())
            GTEST_SKIP() << "needs Wine to place a Unix link inside the prefix";
        std::random_device random;
        m_root = fs::temp_directory_path() / ("norvale-links-" + std::to_string(random()));
        fs::create_directories(m_root);
    }

    void TearDown() override
    {
        std::error_code ignored;
        if (!m_root.empty()) {
            for (const auto& entry : fs::recursive_directory_iterator(m_root, ignored))
                ::SetFileAttributesW(entry.path().wstring().c_str(), FILE_ATTRIBUTE_NORMAL);
            fs::remove_all(m_root, ignored);
        }
    }

    void write(const std::string& relative, std::size_t bytes) const
    {
        const fs::path file = m_root / relative;
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << std::string(bytes, 'x');
    }

    std::wstring path(const std::string& relative) const { return (m_root / relative).generic_wstring(); }
    bool exists(const std::string& relative) const { return fs::exists(fs::symlink_status(m_root / relative)); }

    fs::path m_root;
    platform::WinFileSystem m_fs;
};

TEST_F(WinFileSystemLinks, AFolderLinkIsNeitherMeasuredNorEnteredAndItsTargetStays)
{
    write("outside/precious/keep.doc", 5000);
    write("outside/precious/deeper/keep2.doc", 700);
    write("junk/a.tmp", 10);
    write("junk/sub/b.tmp", 20);
    ASSERT_TRUE(makeUnixLink(m_root / "outside/precious", m_root / "junk/link"));
    ASSERT_TRUE(makeUnixLink(m_root / "outside/precious", m_root / "junk/sub/deeper-link"));

    EXPECT_FALSE(m_fs.isFolder(path("junk/link")));
    EXPECT_EQ(m_fs.folderSize(path("junk/link")), 0);
    EXPECT_FALSE(m_fs.emptyFolder(path("junk/link")).opened);
    EXPECT_EQ(m_fs.folderSize(path("junk")), 30);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("junk"));
    EXPECT_TRUE(result.opened);
    EXPECT_FALSE(exists("junk/a.tmp"));
    EXPECT_FALSE(exists("junk/sub/b.tmp"));
    EXPECT_TRUE(fs::is_directory(m_root / "junk"));
    EXPECT_EQ(fs::file_size(m_root / "outside/precious/keep.doc"), 5000u);
    EXPECT_EQ(fs::file_size(m_root / "outside/precious/deeper/keep2.doc"), 700u);
    // Windows removes a folder link with RemoveDirectoryW; Wine 8 refuses for a Unix link
    // (ERROR_DIR_NOT_EMPTY), so there the link may stay, still a link, and counts as a failure.
    const DWORD after = ::GetFileAttributesW((m_root / "junk/link").wstring().c_str());
    if (after != INVALID_FILE_ATTRIBUTES) {
        EXPECT_TRUE(after & FILE_ATTRIBUTE_REPARSE_POINT);
        EXPECT_GE(result.failed, 1u);
    }
}

TEST_F(WinFileSystemLinks, FilesInUseOrReadOnlyStayAndTheRestGoes)
{
    write("junk/gone.tmp", 10);
    write("junk/in-use.tmp", 400);
    write("junk/sub/read-only.tmp", 60);
    ASSERT_TRUE(::SetFileAttributesW((m_root / "junk/sub/read-only.tmp").wstring().c_str(), FILE_ATTRIBUTE_READONLY));
    // Opened the way a running program holds its cache: no sharing of delete.
    const HANDLE held = ::CreateFileW((m_root / "junk/in-use.tmp").wstring().c_str(), GENERIC_READ, FILE_SHARE_READ,
        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("junk"));
    const std::int64_t left = m_fs.folderSize(path("junk"));
    ::CloseHandle(held);

    EXPECT_FALSE(exists("junk/gone.tmp"));
    EXPECT_TRUE(exists("junk/in-use.tmp"));
    EXPECT_TRUE(exists("junk/sub/read-only.tmp"));
    EXPECT_EQ(left, 460);
    EXPECT_EQ(result.failed, 3u); // the two files and the folder that still holds one
    EXPECT_EQ(result.removed, 1u);
}

} // namespace
