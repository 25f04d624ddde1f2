// What both launchers promise: a program that is not there is reported, not started, and
// Windows Installer answers for a product it does not know.

#include "platform/launcher.h"

#ifdef _WIN32
#include "platform/win/winlauncher.h"
#else
#include "platform/sandbox/sandboxlauncher.h"
#include <cstdlib>
#include <filesystem>
#endif

#include <gtest/gtest.h>

#include <memory>

namespace {

class LauncherContract : public ::testing::Test {
protected:
    void SetUp() override
    {
#ifdef _WIN32
        m_launcher = std::make_unique<platform::WinLauncher>();
#else
        std::string pattern = (std::filesystem::temp_directory_path() / "norvale-launcher-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_root = pattern;
        m_launcher = std::make_unique<platform::SandboxLauncher>(std::wstring(m_root.begin(), m_root.end()));
#endif
    }
    void TearDown() override
    {
#ifndef _WIN32
        std::error_code ignored;
        std::filesystem::remove_all(m_root, ignored);
#endif
    }

    platform::ShellExecuteResult run(const std::wstring& file, const std::wstring& parameters)
    {
        platform::ShellExecuteRequest request;
        request.file = file;
        request.parameters = parameters;
        request.started = [this] { ++m_startedCalls; };
        return m_launcher->shellExecuteAndWait(request, 60000);
    }

    int m_startedCalls = 0;

private:
    std::unique_ptr<platform::Launcher> m_launcher;
    std::string m_root;
};

TEST_F(LauncherContract, MissingProgramIsNotStarted)
{
    const auto result = run(L"C:\\NorvaleNoSuchFolder\\uninstall.exe", L"/S");
    EXPECT_FALSE(result.started);
    // Windows says ERROR_FILE_NOT_FOUND; Wine, failing to show its error box without a window,
    // reports that instead. Either way the caller learns why from a non-zero code.
    EXPECT_NE(result.error, 0u);
    EXPECT_EQ(result.exitCode, 1u); // never mistaken for success
    EXPECT_EQ(m_startedCalls, 0);
}

TEST_F(LauncherContract, InstallerReportsUnknownProduct)
{
    const auto result = run(L"msiexec.exe", L"/X{4E5A1C0B-0000-4000-8000-00000000B0B0} /quiet /norestart");
    ASSERT_TRUE(result.started);
    EXPECT_EQ(result.waitResult, platform::WaitObject0);
    EXPECT_EQ(result.exitCode, 1605u); // ERROR_UNKNOWN_PRODUCT
    EXPECT_EQ(m_startedCalls, 1);
}

} // namespace
