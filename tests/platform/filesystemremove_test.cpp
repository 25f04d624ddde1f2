// Removing one entry itself, in both lanes: a folder tree, a file, a link, and paths that must
// never be resolved into something else.

#ifdef _WIN32
#include "platform/win/winfilesystem.h"
#include <windows.h>
#else
#include "platform/sandbox/sandboxfilesystem.h"
#endif

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

class RemoveTreeContract : public ::testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    std::wstring path(const std::string& relative) const { return (m_base / relative).generic_wstring(); }
    void write(const std::string& relative, const std::string& text = "x") const
    {
        fs::create_directories((m_base / relative).parent_path());
        std::ofstream(m_base / relative, std::ios::binary) << text;
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-rm-" + std::to_string(std::random_device()()));
#ifdef _WIN32
    platform::WinFileSystem m_fs;
#else
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
#endif
};

TEST_F(RemoveTreeContract, AFolderGoesWithEverythingBelowItAndItsNeighboursStay)
{
    write("sandbox/Extensions/aaa/1.0_0/manifest.json", "{}");
    write("sandbox/Extensions/aaa/1.0_0/_locales/en/messages.json", "{}");
    fs::create_directories(m_base / "sandbox/Extensions/aaa/empty");
    write("sandbox/Extensions/aaab/1.0_0/manifest.json", "{}"); // shares the name's start
    write("sandbox/Extensions/aaa.xpi", "zip");

    const platform::RemoveTreeResult folder = m_fs.removeTree(path("sandbox/Extensions/aaa/"));
    EXPECT_TRUE(folder.existed);
    EXPECT_TRUE(folder.removed);
    EXPECT_EQ(folder.failed, 0u);
    EXPECT_FALSE(fs::exists(m_base / "sandbox/Extensions/aaa"));

    const platform::RemoveTreeResult file = m_fs.removeTree(path("sandbox/Extensions/aaa.xpi"));
    EXPECT_TRUE(file.existed && file.removed);
    EXPECT_FALSE(fs::exists(m_base / "sandbox/Extensions/aaa.xpi"));

    EXPECT_TRUE(fs::exists(m_base / "sandbox/Extensions/aaab/1.0_0/manifest.json"));
}

TEST_F(RemoveTreeContract, NothingThereIsNotAFailureAndDotStepsAreNeverResolved)
{
    write("sandbox/Extensions/keep/manifest.json", "{}");

    const platform::RemoveTreeResult missing = m_fs.removeTree(path("sandbox/Extensions/gone"));
    EXPECT_FALSE(missing.existed);
    EXPECT_FALSE(missing.removed);
    EXPECT_EQ(missing.failed, 0u);
    EXPECT_EQ(missing.firstError, 0u);

    for (const char* refused : { "sandbox/Extensions/keep/.", "sandbox/Extensions/keep/..", "sandbox/Extensions/..",
             "sandbox/Extensions/keep/../keep" }) {
        SCOPED_TRACE(refused);
        const platform::RemoveTreeResult result = m_fs.removeTree(path(refused));
        EXPECT_FALSE(result.removed);
        EXPECT_TRUE(fs::exists(m_base / "sandbox/Extensions/keep/manifest.json"));
    }
}

#ifndef _WIN32
// Wine cannot remove a Unix link with RemoveDirectoryW (see the file-system contract), so the link
// case and the root's limits run in the sandbox lane.
TEST_F(RemoveTreeContract, ALinkGoesAsALinkAndNothingOutsideTheRootIsReached)
{
    write("outside/precious/keep.doc", "keep");
    write("sandbox/Extensions/real/a.js", "a");
    fs::create_directory_symlink(m_base / "outside/precious", m_base / "sandbox/Extensions/linked");
    fs::create_directory_symlink(m_base / "outside/precious", m_base / "sandbox/Extensions/real/inner");
    fs::create_directory_symlink(m_base / "outside", m_base / "sandbox/hop");

    const platform::RemoveTreeResult link = m_fs.removeTree(path("sandbox/Extensions/linked"));
    EXPECT_TRUE(link.existed && link.removed);
    EXPECT_FALSE(fs::exists(fs::symlink_status(m_base / "sandbox/Extensions/linked")));

    const platform::RemoveTreeResult real = m_fs.removeTree(path("sandbox/Extensions/real"));
    EXPECT_TRUE(real.removed);

    for (const char* refused : { "outside/precious", "sandbox/hop/precious", "sandbox" }) {
        SCOPED_TRACE(refused);
        EXPECT_FALSE(m_fs.removeTree(path(refused)).removed);
    }
    EXPECT_TRUE(fs::exists(m_base / "outside/precious/keep.doc"));
    EXPECT_TRUE(fs::exists(m_base / "sandbox"));
}
#endif

} // namespace
