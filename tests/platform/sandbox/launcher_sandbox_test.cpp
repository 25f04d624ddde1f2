// The sandbox plays uninstallers from their descriptions and never leaves its folder.

#include "platform/registry.h"
#include "platform/sandbox/sandboxlauncher.h"
#include "platform/sandbox/sandboxregistry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using platform::ShellExecuteResult;

namespace {

class SandboxLauncherTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "norvale-sblaunch-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_base = pattern;
        m_root = m_base / "sandbox";
        m_outside = m_base / "outside";
        fs::create_directories(m_root / "C" / "Program Files" / "Tool");
        fs::create_directories(m_outside);
        touch(m_outside / "keep.txt");
        touch(m_root / "C" / "Program Files" / "Tool" / "unins000.exe");
        touch(m_root / "C" / "Program Files" / "Tool" / "tool.exe");
        m_registry = std::make_unique<platform::SandboxRegistry>((m_root / "registry.reg").string());
        m_launcher = std::make_unique<platform::SandboxLauncher>(m_root.wstring(), m_registry.get());
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    static void touch(const fs::path& file, const std::string& text = "x")
    {
        std::ofstream(file, std::ios::binary) << text;
    }
    void describe(const std::string& script)
    {
        touch(m_root / "C" / "Program Files" / "Tool" / "unins000.exe.demo-uninstall", script);
    }
    ShellExecuteResult run(const std::wstring& file, const std::wstring& parameters = std::wstring())
    {
        platform::ShellExecuteRequest request;
        request.file = file;
        request.parameters = parameters;
        return m_launcher->shellExecuteAndWait(request, 1000);
    }
    ShellExecuteResult runTool() { return run(L"C:\\Program Files\\Tool\\unins000.exe", L"/S"); }
    fs::path tool() const { return m_root / "C" / "Program Files" / "Tool"; }

    fs::path m_base, m_root, m_outside;
    std::unique_ptr<platform::SandboxRegistry> m_registry;
    std::unique_ptr<platform::SandboxLauncher> m_launcher;
};

TEST_F(SandboxLauncherTest, ExitCodeAndFolderRemoval)
{
    describe("# removes itself and reports a failure\nexit=1\ndelete=C:\\Program Files\\Tool\n");
    const auto result = runTool();
    EXPECT_TRUE(result.started);
    EXPECT_EQ(result.waitResult, platform::WaitObject0);
    EXPECT_EQ(result.exitCode, 1u);
    EXPECT_FALSE(fs::exists(tool()));
}

TEST_F(SandboxLauncherTest, StillRunningAtTheTimeOut)
{
    describe("running=1\nexit=0\n");
    const auto result = runTool();
    EXPECT_TRUE(result.started);
    EXPECT_EQ(result.waitResult, platform::WaitTimeout);
    EXPECT_EQ(result.exitCode, platform::StillActive);
    EXPECT_TRUE(fs::exists(tool()));
}

TEST_F(SandboxLauncherTest, ProgramWithoutDescriptionIsRefused)
{
    const auto result = runTool();
    EXPECT_FALSE(result.started);
    EXPECT_EQ(result.error, 1260u);
    EXPECT_NE(result.message.find(L".demo-uninstall"), std::wstring::npos);
    EXPECT_TRUE(fs::exists(tool() / "unins000.exe"));
}

TEST_F(SandboxLauncherTest, ProgramsOutsideTheSandboxAreNotThere)
{
    touch(m_outside / "evil.exe");
    touch(m_outside / "evil.exe.demo-uninstall", "exit=0\n");
    for (const fs::path& p : { m_outside / "evil.exe", m_root / "C" / ".." / ".." / "outside" / "evil.exe" }) {
        const auto result = run(p.wstring());
        EXPECT_FALSE(result.started) << p;
        EXPECT_EQ(result.error, 2u) << p;
    }
    EXPECT_FALSE(run(L"").started);
    EXPECT_FALSE(run(L"C:\\Program Files\\Tool").started); // a folder is no program
}

TEST_F(SandboxLauncherTest, DeletionsStayInsideTheDrive)
{
    fs::create_directory_symlink(m_outside, tool() / "link");
    describe("delete=C:\\Program Files\\Tool\\link\\keep.txt\n"
             "delete=C:\\Program Files\\..\\..\\outside\n"
             "delete=C:\\\n"
             "delete="
        + m_outside.string()
        + "\n"
          "delete=C:\\Program Files\\Tool\\link\n");
    EXPECT_TRUE(runTool().started);
    EXPECT_TRUE(fs::exists(m_outside / "keep.txt"));
    EXPECT_TRUE(fs::exists(m_root / "C" / "Program Files" / "Tool" / "tool.exe"));
    EXPECT_FALSE(fs::exists(fs::symlink_status(tool() / "link"))); // the link itself went
}

TEST_F(SandboxLauncherTest, UnregisterRemovesTheEntry)
{
    const std::wstring key = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tool";
    m_registry->setString(platform::Hive::LocalMachine, key, L"DisplayName", L"Tool");
    describe("unregister=HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tool\n"
             "unregister=HKLM\n");
    EXPECT_EQ(runTool().exitCode, 0u);
    EXPECT_FALSE(m_registry->keyExists(platform::Hive::LocalMachine, key));
    EXPECT_TRUE(m_registry->keyExists(platform::Hive::LocalMachine, L"SOFTWARE\\Microsoft"));
}

TEST_F(SandboxLauncherTest, WindowsInstallerProducts)
{
    fs::create_directories(m_root / "C" / "Windows" / "Installer");
    touch(m_root / "C" / "Windows" / "Installer" / "{ABC0}.demo-uninstall", "exit=1641\n");
    EXPECT_EQ(run(L"MsiExec.exe", L"/X{ABC0} /quiet /norestart").exitCode, 1641u);
    EXPECT_EQ(run(L"C:\\Windows\\System32\\msiexec.exe", L"/x {ABC0}").exitCode, 1641u);
    EXPECT_EQ(run(L"msiexec", L"/X{DEF}").exitCode, 1605u);
    EXPECT_EQ(run(L"msiexec.exe", L"/quiet").exitCode, 1639u);
    touch(m_outside / "{}.demo-uninstall", "exit=0\n");
    EXPECT_EQ(run(L"msiexec.exe", L"/X{/../../../../outside/}").exitCode, 1605u);
}

TEST_F(SandboxLauncherTest, UnreadableExitCodeKeepsDefault)
{
    describe("exit=banana\nexit\n=3\n");
    EXPECT_EQ(runTool().exitCode, 0u);
}

} // namespace
