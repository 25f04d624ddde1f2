// The budgeted walk and whole-folder removal, natively against the sandbox and under Wine.

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

namespace fs = std::filesystem;

namespace {

using contract::isLink;
using contract::makeLink;

class FileSystemExtraContract : public ::testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    std::wstring path(const std::string& relative) const { return (m_base / relative).generic_wstring(); }
    void write(const std::string& relative, std::size_t bytes) const
    {
        fs::create_directories((m_base / relative).parent_path());
        std::ofstream(m_base / relative, std::ios::binary) << std::string(bytes, 'x');
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-fsx-" + std::to_string(std::random_device()()));
#ifdef _WIN32
    platform::WinFileSystem m_fs;
#else
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
#endif
};

TEST_F(FileSystemExtraContract, TheBudgetBoundsTheCountAndTheStopFlagEndsTheWalk)
{
    // 30 files of 10 bytes over three levels.
    for (int i = 0; i < 10; ++i) {
        write("sandbox/tree/f" + std::to_string(i), 10);
        write("sandbox/tree/a/f" + std::to_string(i), 10);
        write("sandbox/tree/a/b/f" + std::to_string(i), 10);
    }
    const struct {
        std::uint64_t budget;
        std::uint64_t files;
        bool complete;
    } rows[] = { { 1000, 30, true }, { 30, 30, true }, { 29, 29, false }, { 12, 12, false }, { 0, 0, false } };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.budget);
        const platform::FolderMeasure m = m_fs.measureFolder(path("sandbox/tree"), row.budget, nullptr);
        EXPECT_EQ(m.files, row.files);
        EXPECT_EQ(m.bytes, std::int64_t(row.files) * 10);
        EXPECT_EQ(m.complete, row.complete);
    }
    const std::atomic<bool> stopped { true };
    const platform::FolderMeasure m = m_fs.measureFolder(path("sandbox/tree"), 1000, &stopped);
    EXPECT_EQ(m.files, 0u);
    EXPECT_FALSE(m.complete);
    EXPECT_EQ(m_fs.measureFolder(path("sandbox/missing"), 1000, nullptr).files, 0u);
}

TEST_F(FileSystemExtraContract, RemovingAFolderTakesItWholeButNeverWhatALinkInsideNames)
{
    write("outside/precious/keep.doc", 5000);
    write("sandbox/residue/data/a.bin", 100);
    write("sandbox/residue/b.bin", 20);
    write("sandbox/beside/c.bin", 1);
    ASSERT_TRUE(makeLink(m_base / "outside/precious", m_base / "sandbox/residue/data/link"));
    // A loop back to its own folder: a walk that followed it would never end.
    ASSERT_TRUE(makeLink(m_base / "sandbox/residue", m_base / "sandbox/residue/loop"));

    const platform::FolderMeasure m = m_fs.measureFolder(path("sandbox/residue"), 5000, nullptr);
    EXPECT_EQ(m.bytes, 120);
    EXPECT_TRUE(m.complete);

    const platform::EmptyFolderResult result = m_fs.removeFolder(path("sandbox/residue"));
    EXPECT_TRUE(result.opened);
    EXPECT_EQ(fs::file_size(m_base / "outside/precious/keep.doc"), 5000u);
    EXPECT_TRUE(fs::exists(m_base / "sandbox/beside/c.bin"));
    if (result.failed == 0) {
        EXPECT_FALSE(fs::exists(fs::symlink_status(m_base / "sandbox/residue")));
    } else {
        // Wine 8 refuses RemoveDirectoryW on a Unix link; the folder then stays with the links.
        EXPECT_TRUE(isLink(m_base / "sandbox/residue/data/link"));
    }
}

TEST_F(FileSystemExtraContract, WhatIsNotARealFolderIsNotRemoved)
{
    write("outside/precious/keep.doc", 5000);
    write("sandbox/file.bin", 10);
    ASSERT_TRUE(makeLink(m_base / "outside/precious", m_base / "sandbox/link"));
    for (const char* refused : { "sandbox/link", "sandbox/file.bin", "sandbox/missing" }) {
        SCOPED_TRACE(refused);
        EXPECT_FALSE(m_fs.removeFolder(path(refused)).opened);
    }
    EXPECT_TRUE(isLink(m_base / "sandbox/link"));
    EXPECT_EQ(fs::file_size(m_base / "sandbox/file.bin"), 10u);
    EXPECT_EQ(fs::file_size(m_base / "outside/precious/keep.doc"), 5000u);
#ifndef _WIN32
    // The sandbox's own root is the machine itself.
    EXPECT_FALSE(m_fs.removeFolder(path("sandbox")).opened);
    EXPECT_TRUE(fs::exists(m_base / "sandbox/file.bin"));
#endif
}

} // namespace
