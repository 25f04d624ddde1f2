// The same trees measured and emptied by the sandbox natively and by Win32 under Wine.

#ifdef _WIN32
#include "platform/win/winfilesystem.h"
#include <windows.h>
#else
#include "platform/sandbox/sandboxfilesystem.h"
#endif

#include "contract.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

using contract::isLink;
using contract::makeLink;

#ifdef _WIN32
// Wine 8 opens a Unix link as its target even when told to open the link itself (the handle then
// shows a plain folder, and a delete disposition on it deletes an empty target), so no Win32 or
// NT call there removes such a link.
bool linksAreOpenedAsTargets()
{
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

bool makeReadOnly(const fs::path& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.wstring().c_str());
    return attributes != INVALID_FILE_ATTRIBUTES
        && ::SetFileAttributesW(path.wstring().c_str(), attributes | FILE_ATTRIBUTE_READONLY);
}
#else
bool linksAreOpenedAsTargets()
{
    return false;
}

// The sandbox reads a file its owner may not write as Windows reads the read-only attribute.
bool makeReadOnly(const fs::path& path)
{
    std::error_code error;
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
        fs::perm_options::remove, error);
    return !error;
}
#endif

class FileSystemContract : public ::testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
#ifdef _WIN32
        // Windows refuses to delete a read-only file; the cases leave some behind on purpose.
        for (auto it = fs::recursive_directory_iterator(m_base, ignored); it != fs::recursive_directory_iterator();
             it.increment(ignored))
            ::SetFileAttributesW(it->path().wstring().c_str(), FILE_ATTRIBUTE_NORMAL);
#endif
        fs::remove_all(m_base, ignored);
    }

    std::wstring path(const std::string& relative) const
    {
        return (m_base / relative).generic_wstring();
    }
    void write(const std::string& relative, std::size_t bytes) const
    {
        fs::create_directories((m_base / relative).parent_path());
        std::ofstream(m_base / relative, std::ios::binary) << std::string(bytes, 'x');
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-fs-" + std::to_string(std::random_device()()));
#ifdef _WIN32
    platform::WinFileSystem m_fs;
#else
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
#endif
};

TEST_F(FileSystemContract, MeasuresEveryFileAtEveryDepthThenEmptiesTheFolderButKeepsIt)
{
    write("sandbox/junk/a.tmp", 100);
    write("sandbox/junk/.hidden", 20);
    write("sandbox/junk/sub/b.tmp", 3000);
    write("sandbox/junk/sub/deeper/still/c.tmp", 7);
    write("sandbox/junk/empty.tmp", 0);
    fs::create_directories(m_base / "sandbox/junk/empty-folder");
    std::string deep = "sandbox/junk/deep"; // far past the classic Win32 path length limit
    for (int level = 0; level < 60; ++level)
        deep += "/level" + std::to_string(level);
    write(deep + "/bottom.tmp", 1);
    write("sandbox/beside.tmp", 999); // outside the measured folder

    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk")), 3128);
    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk/sub")), 3007);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("sandbox/junk"));
    EXPECT_TRUE(result.opened);
    EXPECT_EQ(result.failed, 0u);
    EXPECT_EQ(result.removed, 71u); // six files, 65 folders
    EXPECT_TRUE(fs::is_empty(m_base / "sandbox/junk")); // and still there, or this throws
    EXPECT_TRUE(fs::exists(m_base / "sandbox/beside.tmp"));
}

// A file where a folder is expected (the log file listed beside the log folders), or nothing at all.
TEST_F(FileSystemContract, WhatIsNotAFolderIsNeitherMeasuredNorEmptiedNorListed)
{
    write("sandbox/MRT.log", 4096);
    EXPECT_EQ(m_fs.folderSize(L""), 0);
    for (const std::wstring& notAFolder : { path("sandbox/MRT.log"), path("sandbox/missing/below") }) {
        SCOPED_TRACE(std::string(notAFolder.begin(), notAFolder.end()));
        EXPECT_FALSE(m_fs.isFolder(notAFolder));
        EXPECT_EQ(m_fs.folderSize(notAFolder), 0);
        EXPECT_FALSE(m_fs.emptyFolder(notAFolder).opened);
        EXPECT_FALSE(m_fs.subFolders(notAFolder).has_value());
    }
    EXPECT_EQ(fs::file_size(m_base / "sandbox/MRT.log"), 4096u);
}

TEST_F(FileSystemContract, ALinkedFolderIsNeitherMeasuredNorEnteredAndGoesAsALink)
{
    write("outside/precious/keep.doc", 5000);
    fs::create_directories(m_base / "outside/empty");
    write("sandbox/junk/sub/a.tmp", 10);
    ASSERT_TRUE(makeLink(m_base / "outside/precious", m_base / "sandbox/junk/sub/link"));
    // An empty target is the one a delete that followed the link would manage to remove.
    ASSERT_TRUE(makeLink(m_base / "outside/empty", m_base / "sandbox/junk/to-empty"));
#ifndef _WIN32
    fs::create_symlink(m_base / "outside/precious/keep.doc", m_base / "sandbox/junk/file-link");
#endif

    EXPECT_FALSE(m_fs.isFolder(path("sandbox/junk/sub/link")));
    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk/sub/link")), 0);
    EXPECT_FALSE(m_fs.emptyFolder(path("sandbox/junk/sub/link")).opened);
    EXPECT_FALSE(m_fs.subFolders(path("sandbox/junk/sub/link")).has_value());
    EXPECT_EQ(m_fs.subFolders(path("sandbox/junk")), std::vector<std::wstring> { L"sub" });
    EXPECT_EQ(m_fs.folderSize(path("sandbox/junk")), 10);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("sandbox/junk"));
    EXPECT_TRUE(result.opened);
    EXPECT_EQ(fs::file_size(m_base / "outside/precious/keep.doc"), 5000u);
    EXPECT_TRUE(fs::is_directory(m_base / "outside/empty"));
    if (linksAreOpenedAsTargets()) {
        // Both links stay, as links, and so does the folder holding one; each counts.
        EXPECT_EQ(result.failed, 3u);
        EXPECT_TRUE(isLink(m_base / "sandbox/junk/sub/link"));
        EXPECT_TRUE(isLink(m_base / "sandbox/junk/to-empty"));
    } else {
        EXPECT_EQ(result.failed, 0u) << "first error " << result.firstError;
        EXPECT_TRUE(fs::is_empty(m_base / "sandbox/junk"));
    }
}

// Below the emptied folder a whole tree is being removed, and a read-only file there goes with
// it; the emptied folder's own files are deleted as one file at a time would be, so a read-only
// one stays.
TEST_F(FileSystemContract, ReadOnlyFilesGoInsideRemovedFoldersAndStayAtTheTop)
{
    for (const char* file :
        { "sandbox/junk/sub/ro.txt", "sandbox/junk/sub/deeper/ro.txt", "sandbox/junk/top-ro.txt" }) {
        write(file, 10);
        ASSERT_TRUE(makeReadOnly(m_base / file)) << file;
    }
    write("sandbox/junk/plain.txt", 10);

    const platform::EmptyFolderResult result = m_fs.emptyFolder(path("sandbox/junk"));
    EXPECT_EQ(result.removed, 5u);
    EXPECT_EQ(result.failed, 1u);
    EXPECT_NE(result.firstError, 0u);
    EXPECT_FALSE(fs::exists(m_base / "sandbox/junk/sub"));
    EXPECT_FALSE(fs::exists(m_base / "sandbox/junk/plain.txt"));
    EXPECT_TRUE(fs::exists(m_base / "sandbox/junk/top-ro.txt"));
}

#ifndef _WIN32
TEST_F(FileSystemContract, TheSandboxReachesNothingOutsideItsRoot)
{
    write("outside/keep.doc", 100);
    write("sandbox/C/Windows/Temp/a.tmp", 1);
    ASSERT_TRUE(makeLink(m_base / "outside", m_base / "sandbox/C/linked"));
    // Beside the root, climbing out, a link as the folder itself and as a step on the way.
    for (const char* refused : { "outside", "sandbox/../outside", "sandbox/C/linked", "sandbox/C/linked/." }) {
        SCOPED_TRACE(refused);
        EXPECT_FALSE(m_fs.isFolder(path(refused)));
        EXPECT_EQ(m_fs.folderSize(path(refused)), 0);
        EXPECT_FALSE(m_fs.emptyFolder(path(refused)).opened);
        EXPECT_FALSE(m_fs.subFolders(path(refused)).has_value());
    }
    EXPECT_TRUE(fs::exists(m_base / "outside/keep.doc"));
    EXPECT_EQ(m_fs.folderSize(path("sandbox")), 1);
}
#endif

// Force removal takes the install folder itself, and still only what lies inside it.
TEST_F(FileSystemContract, RemovingAFolderTakesItWholeButNeverALinkedTarget)
{
    write("sandbox/app/bin/app.exe", 300);
    write("sandbox/app/.hidden", 2);
    write("sandbox/beside/keep.txt", 9);
    write("outside/precious/keep.doc", 5000);
    ASSERT_TRUE(makeLink(m_base / "outside/precious", m_base / "sandbox/app/bin/link"));
    ASSERT_TRUE(makeLink(m_base / "outside/precious", m_base / "sandbox/linked-app"));

    EXPECT_FALSE(m_fs.removeFolder(path("sandbox/linked-app")).opened); // a link is not a folder to remove
    EXPECT_TRUE(isLink(m_base / "sandbox/linked-app"));
    EXPECT_FALSE(m_fs.removeFolder(path("sandbox/missing")).opened);

    const bool removed = platform::removedWhole(m_fs.removeFolder(path("sandbox/app/")));
    // Wine 8 cannot remove a Unix link with RemoveDirectoryW, so there the link and its folders stay.
    EXPECT_EQ(removed, !fs::exists(m_base / "sandbox/app"));
    EXPECT_EQ(removed, !isLink(m_base / "sandbox/app/bin/link"));
    EXPECT_FALSE(fs::exists(m_base / "sandbox/app/bin/app.exe"));
    EXPECT_EQ(fs::file_size(m_base / "outside/precious/keep.doc"), 5000u);
    EXPECT_TRUE(fs::exists(m_base / "sandbox/beside/keep.txt"));
#ifndef _WIN32
    EXPECT_TRUE(removed);
    EXPECT_FALSE(m_fs.removeFolder(path("sandbox")).opened); // the sandbox root is never removed
    EXPECT_FALSE(platform::removedWhole(m_fs.removeFolder(path("sandbox/../outside"))));
    EXPECT_TRUE(fs::exists(m_base / "outside/precious/keep.doc"));
#endif
}

} // namespace
