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

// The Unix path of a Windows path, through Wine's own export; empty where it does not exist.
std::string unixPath(const fs::path& path)
{
    using UnixNameFn = char*(CDECL*)(LPCWSTR);
    static const auto fn = reinterpret_cast<UnixNameFn>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* name = fn ? fn(path.wstring().c_str()) : nullptr;
    const std::string result = name ? name : "";
    if (name)
        ::HeapFree(::GetProcessHeap(), 0, name);
    return result;
}

// Runs Unix "ln -s" (Wine starts Unix programs given by their Z: path). The handle Wine returns
// for a Unix process cannot be waited on, so the link itself is watched until it shows up.
bool makeUnixLink(const fs::path& target, const fs::path& link)
{
    const std::string from = unixPath(target), to = unixPath(link);
    if (from.empty() || to.empty() || (from + to).find(' ') != std::string::npos)
        return false;
    std::wstring command = L"Z:\\bin\\ln -s " + fs::path(from).wstring() + L" " + fs::path(to).wstring();
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    for (int waitedMs = 0; waitedMs < 10000; waitedMs += 20, ::Sleep(20)) {
        const DWORD attributes = ::GetFileAttributesW(link.wstring().c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES)
            return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    }
    return false;
}

class WinFileSystemLinks : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (unixPath(fs::temp_directory_path()).empty())
            GTEST_SKIP() << "needs Wine to place a Unix link inside the prefix";
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }

    void write(const std::string& relative, std::size_t bytes) const
    {
        fs::create_directories((m_root / relative).parent_path());
        std::ofstream(m_root / relative, std::ios::binary) << std::string(bytes, 'x');
    }
    std::wstring path(const std::string& relative) const { return (m_root / relative).generic_wstring(); }

    const fs::path m_root = fs::temp_directory_path() / ("norvale-links-" + std::to_string(std::random_device()()));
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
    EXPECT_EQ(m_fs.folderSize(path("junk")), 0); // only the link may stay
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
    ASSERT_TRUE(::SetFileAttributesW(path("junk/sub/read-only.tmp").c_str(), FILE_ATTRIBUTE_READONLY));
    // Opened the way a running program holds its cache: no sharing of delete.
    const HANDLE held = ::CreateFileW(path("junk/in-use.tmp").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("junk"));
    const std::int64_t left = m_fs.folderSize(path("junk"));
    ::CloseHandle(held);
    ::SetFileAttributesW(path("junk/sub/read-only.tmp").c_str(), FILE_ATTRIBUTE_NORMAL); // or nothing removes it

    EXPECT_FALSE(fs::exists(m_root / "junk/gone.tmp"));
    EXPECT_EQ(left, 460); // both files stay
    EXPECT_EQ(result.failed, 3u); // the two files and the folder that still holds one
    EXPECT_EQ(result.removed, 1u);
}

} // namespace
