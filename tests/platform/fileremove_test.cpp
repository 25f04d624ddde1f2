// Removing one file, in both lanes: the file goes, a folder never does, and paths that could be
// resolved into something else are refused.

#ifdef _WIN32
#include "platform/win/winfilesystem.h"
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

class RemoveFileContract : public ::testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    std::wstring path(const std::string& relative) const { return (m_base / relative).generic_wstring(); }
    void write(const std::string& relative) const
    {
        fs::create_directories((m_base / relative).parent_path());
        std::ofstream(m_base / relative, std::ios::binary) << "x";
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-rmf-" + std::to_string(std::random_device()()));
#ifdef _WIN32
    platform::WinFileSystem m_fs;
#else
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
#endif
};

TEST_F(RemoveFileContract, TheFileGoesAndNothingElse)
{
    write("sandbox/extensions/a@x.xpi");
    write("sandbox/extensions/a@x.xpi.bak");
    write("sandbox/extensions/a@x/manifest.json");

    EXPECT_TRUE(m_fs.removeFile(path("sandbox/extensions/a@x.xpi")));
    EXPECT_FALSE(fs::exists(m_base / "sandbox/extensions/a@x.xpi"));
    EXPECT_TRUE(m_fs.removeFile(path("sandbox/extensions/a@x.xpi"))); // already gone
    EXPECT_TRUE(fs::exists(m_base / "sandbox/extensions/a@x.xpi.bak"));

    // A folder, or a dot step that would name one, is never a file to remove.
    for (const char* refused : { "sandbox/extensions/a@x", "sandbox/extensions/a@x/.", "sandbox/extensions/a@x/..",
             "sandbox/extensions/a@x/../a@x.xpi.bak" }) {
        SCOPED_TRACE(refused);
        EXPECT_FALSE(m_fs.removeFile(path(refused)));
    }
    EXPECT_TRUE(fs::exists(m_base / "sandbox/extensions/a@x/manifest.json"));
    EXPECT_TRUE(fs::exists(m_base / "sandbox/extensions/a@x.xpi.bak"));
}

#ifndef _WIN32
// Wine cannot make Windows links (see the file-system contract), so links and the root's limits
// run in the sandbox lane.
TEST_F(RemoveFileContract, ALinkGoesAsALinkAndNothingOutsideTheRootIsReached)
{
    write("outside/keep.doc");
    write("sandbox/extensions/real.xpi");
    fs::create_symlink(m_base / "outside/keep.doc", m_base / "sandbox/extensions/linked.xpi");
    fs::create_directory_symlink(m_base / "outside", m_base / "sandbox/hop");

    EXPECT_TRUE(m_fs.removeFile(path("sandbox/extensions/linked.xpi")));
    EXPECT_FALSE(fs::exists(fs::symlink_status(m_base / "sandbox/extensions/linked.xpi")));
    for (const char* refused : { "outside/keep.doc", "sandbox/hop/keep.doc" }) {
        SCOPED_TRACE(refused);
        EXPECT_FALSE(m_fs.removeFile(path(refused)));
    }
    EXPECT_TRUE(fs::exists(m_base / "outside/keep.doc"));
}
#endif

} // namespace
