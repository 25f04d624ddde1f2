// The deletes every cleaning feature is built on, against the links an attacker can leave in a
// target: out to a folder or a file, up to the parent, in a loop, dangling, or in the target's
// own place. Under Wine the links are Unix links, which Win32 sees as reparse points. Whatever
// lies outside the target must come through unchanged, in both lanes.

#ifdef _WIN32
#include "platform/win/winfilesystem.h"
#else
#include "platform/sandbox/sandboxfilesystem.h"
#endif

#include "../support/treedigest.h"
#include "contract.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

class LinkAttackContract : public ::testing::Test {
protected:
    void TearDown() override { contract::removeTree(m_base); }

    void write(const fs::path& path, const std::string& text) const
    {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }

    const fs::path m_base = fs::temp_directory_path() / ("norvale-la-" + std::to_string(std::random_device()()));
#ifdef _WIN32
    platform::WinFileSystem m_fs;
#else
    platform::SandboxFileSystem m_fs { (m_base / "sandbox").wstring() };
#endif
};

struct Call {
    const char* name;
    bool onFile; // the target is a file, so the attack takes its place instead of lying inside
    std::function<void(platform::FileSystem&, const std::wstring&)> run;
};

struct Attack {
    const char* name;
    // Only links that resolve to a folder: Wine shows those as reparse points, and has no Windows
    // form for the others (its lane cannot even make them), so they run natively only.
    bool toFolders;
    // Plants the links for a target; false when the lane could not make them.
    std::function<bool(const fs::path& target, const fs::path& base)> plant;
};

TEST_F(LinkAttackContract, NothingOutsideTheTargetIsLost)
{
    using contract::makeLink;
    const Call calls[] = {
        { "emptyFolder", false, [](platform::FileSystem& f, const std::wstring& p) { f.emptyFolder(p); } },
        { "removeFolder", false, [](platform::FileSystem& f, const std::wstring& p) { f.removeFolder(p); } },
        { "removeFile", true, [](platform::FileSystem& f, const std::wstring& p) { f.removeFile(p); } },
    };
    const Attack folderAttacks[] = {
        { "link to outside folder", true,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/docs", t / "sub/docs"); } },
        { "link to outside file", false,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/file.txt", t / "notes.txt"); } },
        { "link to parent", true,
            [](const fs::path& t, const fs::path&) { return makeLink(t.parent_path(), t / "up"); } },
        { "link loop", true,
            [](const fs::path& t, const fs::path&) {
                return makeLink(t / "loop", t / "loop/self") && makeLink(t, t / "loop/top");
            } },
        { "dangling link", false,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/missing", t / "gone"); } },
    };
    const Attack fileAttacks[] = {
        { "link to outside folder", true,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/docs", t); } },
        { "link to outside file", false,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/file.txt", t); } },
        { "link to parent", true, [](const fs::path& t, const fs::path&) { return makeLink(t.parent_path(), t); } },
        { "link loop", false, [](const fs::path& t, const fs::path&) { return makeLink(t, t); } },
        { "dangling link", false,
            [](const fs::path& t, const fs::path& b) { return makeLink(b / "victim/missing", t); } },
    };

    std::string matrix = "\n";
    for (const Call& call : calls) {
        matrix += call.name + std::string(14 - std::string(call.name).size(), ' ');
        for (const Attack& attack : call.onFile ? fileAttacks : folderAttacks) {
            SCOPED_TRACE(std::string(call.name) + " x " + attack.name);
#ifdef _WIN32
            if (!attack.toFolders) {
                matrix += " | " + std::string(attack.name) + ": -";
                continue;
            }
#endif
            contract::removeTree(m_base);
            write(m_base / "victim/docs/thesis.doc", std::string(3000, 't'));
            write(m_base / "victim/file.txt", "the only copy");
            write(m_base / "sandbox/beside/keep.txt", "a sibling");
            const fs::path target = m_base / "sandbox/target";
            if (!call.onFile) {
                write(target / "junk.bin", std::string(100, 'j'));
                fs::create_directories(target / "sub");
                fs::create_directories(target / "loop");
            }
            fs::create_directories(target.parent_path());
            ASSERT_TRUE(attack.plant(target, m_base));

            const treedigest::Digest before = treedigest::of(m_base, { target });
            call.run(m_fs, target.generic_wstring());
            const std::size_t lost = treedigest::lost(before, treedigest::of(m_base, { target })).size();
            EXPECT_EQ(lost, 0u);
            EXPECT_TRUE(call.onFile || !fs::exists(target / "junk.bin"));
            matrix += " | " + std::string(attack.name) + ": " + std::to_string(lost);
        }
        matrix += "\n";
    }
    // Quoted in notes: files outside the target lost per delete and attack.
    std::printf("%s", matrix.c_str());
}

} // namespace
