// ShellExecuteExW and the wait, with real processes: exit codes, a folder the uninstaller
// removes or leaves, and an uninstaller that outlasts the time-out.

#include "platform/win/winlauncher.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

std::wstring helper()
{
#ifdef NORVALE_HELPER_FAKE_UNINSTALLER
    const char* path = NORVALE_HELPER_FAKE_UNINSTALLER;
    return std::wstring(path, path + std::char_traits<char>::length(path));
#else
    return std::wstring();
#endif
}

class WinLauncherTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (helper().empty())
            GTEST_SKIP() << "the fake uninstaller was not built";
        wchar_t temp[MAX_PATH] = {};
        ASSERT_GT(GetTempPathW(MAX_PATH, temp), 0u);
        m_folder = fs::path(temp) / L"Norvale Fake App";
        fs::create_directories(m_folder / L"bin");
        std::ofstream(m_folder / L"bin" / L"app.exe") << "MZ";
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    platform::ShellExecuteResult run(const std::wstring& parameters, std::uint32_t timeoutMs = 60000)
    {
        platform::ShellExecuteRequest request;
        request.file = helper();
        request.parameters = parameters;
        return m_launcher.shellExecuteAndWait(request, timeoutMs);
    }
    std::wstring quotedFolder() const { return L"\"" + m_folder.wstring() + L"\""; }

    platform::WinLauncher m_launcher;
    fs::path m_folder;
};

TEST_F(WinLauncherTest, UninstallerRemovesItsFolderAndExitsWithOne)
{
    const auto result = run(L"--delete " + quotedFolder() + L" --exit 1");
    ASSERT_TRUE(result.started) << result.error;
    EXPECT_EQ(result.waitResult, platform::WaitObject0);
    EXPECT_EQ(result.exitCode, 1u);
    EXPECT_FALSE(fs::exists(m_folder));
}

TEST_F(WinLauncherTest, UninstallerExitsWithOneAndLeavesItsFolder)
{
    const auto result = run(L"--exit 1");
    ASSERT_TRUE(result.started) << result.error;
    EXPECT_EQ(result.exitCode, 1u);
    EXPECT_TRUE(fs::exists(m_folder / L"bin" / L"app.exe"));
}

TEST_F(WinLauncherTest, ExitCodesPassThrough)
{
    EXPECT_EQ(run(L"--exit 0").exitCode, 0u);
    EXPECT_EQ(run(L"--exit 3010").exitCode, 3010u);
    platform::ShellExecuteRequest request;
    request.file = L"cmd.exe";
    request.parameters = L"/c exit 7";
    EXPECT_EQ(m_launcher.shellExecuteAndWait(request, 60000).exitCode, 7u);
}

TEST_F(WinLauncherTest, StartedIsReportedBeforeTheWait)
{
    platform::ShellExecuteRequest request;
    request.file = helper();
    request.parameters = L"--sleep 2000 --delete " + quotedFolder() + L" --exit 0";
    int calls = 0;
    bool folderThere = false;
    request.started = [&] {
        ++calls;
        folderThere = fs::exists(m_folder);
    };
    const auto result = m_launcher.shellExecuteAndWait(request, 60000);
    ASSERT_TRUE(result.started) << result.error;
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(folderThere); // the uninstaller was still asleep
    EXPECT_FALSE(fs::exists(m_folder));
}

TEST_F(WinLauncherTest, TimeOutLeavesTheUninstallerRunning)
{
    const auto result = run(L"--sleep 3000 --exit 0", 200);
    ASSERT_TRUE(result.started) << result.error;
    EXPECT_EQ(result.waitResult, platform::WaitTimeout);
    EXPECT_EQ(result.exitCode, platform::StillActive);
}

} // namespace
