// The sandbox's process list is a file anyone can write: damaged lines, links and long paths.

#include "platform/sandbox/sandboxenvironment.h"
#include "platform/sandbox/sandboxprocesses.h"
#include "platform/strings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

class SandboxProcessesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/norvale-proclist-XXXXXX";
        ASSERT_NE(::mkdtemp(pattern), nullptr);
        root = pattern;
        environment = std::make_unique<platform::SandboxEnvironment>(platform::fromUtf8(root.string()));
        processes = std::make_unique<platform::SandboxProcesses>(platform::fromUtf8(root.string()), *environment);
    }
    void TearDown() override { fs::remove_all(root); }

    void writeList(const std::string& text) { std::ofstream(root / "processes.txt", std::ios::binary) << text; }
    std::string readFile(const fs::path& path)
    {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }

    fs::path root;
    std::unique_ptr<platform::SandboxEnvironment> environment;
    std::unique_ptr<platform::SandboxProcesses> processes;
};

TEST_F(SandboxProcessesTest, DamagedLinesAreSkipped)
{
    writeList("12\tC:\\A\\good.exe\r\n"
              "x1\tC:\\bad.exe\n" // not a number
              "0\tC:\\zero.exe\n" // no process has id 0 in the list
              "99999999999\tC:\\big.exe\n" // beyond 32 bits
              "13 C:\\no-tab.exe\n"
              "14\t\n" // no path
              "\n"
              "16\tC:\\B\\last.exe"); // no final newline
    const std::vector<platform::ProcessInfo> list = processes->snapshot();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].pid, 12u);
    EXPECT_EQ(list[0].imageName, L"good.exe");
    EXPECT_EQ(list[0].imagePath, environment->mapPath(L"C:\\A\\good.exe"));
    EXPECT_EQ(list[1].pid, 16u);
    EXPECT_EQ(list[1].imageName, L"last.exe");
}

TEST_F(SandboxProcessesTest, APathTooLongForTheBufferHasNoImagePath)
{
    const std::string longPath = "C:\\" + std::string(300, 'p') + "\\long.exe";
    writeList("20\t" + longPath + "\n");
    const std::vector<platform::ProcessInfo> list = processes->snapshot();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].imageName, L"long.exe");
    EXPECT_TRUE(list[0].imagePath.empty());
}

TEST_F(SandboxProcessesTest, AListThatIsALinkIsNotRead)
{
    const fs::path outside = root / "outside.txt";
    std::ofstream(outside) << "30\tC:\\host.exe\n";
    fs::create_symlink(outside, root / "processes.txt");
    EXPECT_TRUE(processes->snapshot().empty());
    EXPECT_EQ(processes->terminate(30, 1), platform::Termination::NotOpened);
    EXPECT_EQ(readFile(outside), "30\tC:\\host.exe\n");
}

TEST_F(SandboxProcessesTest, EndingRewritesTheListWithoutFollowingAPlantedTemporaryLink)
{
    writeList("40\tC:\\a.exe\n41\tC:\\b.exe\n");
    const fs::path outside = root / "victim.txt";
    std::ofstream(outside) << "keep";
    fs::create_symlink(outside, root / "processes.txt.saving");

    EXPECT_EQ(processes->terminate(40, 1), platform::Termination::Terminated);
    EXPECT_EQ(readFile(root / "processes.txt"), "41\tC:\\b.exe\n");
    EXPECT_EQ(processes->terminate(40, 1), platform::Termination::NotOpened);
    EXPECT_EQ(readFile(outside), "keep");
    EXPECT_FALSE(fs::exists(fs::symlink_status(root / "processes.txt.saving")));
}

} // namespace
