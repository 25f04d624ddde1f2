// The sandbox plays uninstallers, finds icons beside programs and saves its registry, and never
// reaches past its drive.

#include "platform/sandbox/sandboxiconextractor.h"
#include "platform/sandbox/sandboxlauncher.h"
#include "platform/sandbox/sandboxregistry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

class SandboxUninstallTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "norvale-sbuninstall-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_base = pattern;
        m_root = m_base / "sandbox";
        fs::create_directories(m_root / "C" / "Tool");
        fs::create_directories(m_base / "outside");
        put(m_base / "outside" / "keep.png", "secret");
        fs::create_directory_symlink(m_base / "outside", m_root / "C" / "Tool" / "link");
        put(m_root / "C" / "Tool" / "tool.exe", "MZ");
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    static void put(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }
    platform::ShellExecuteResult run(const std::wstring& file, const std::wstring& parameters = L"/S")
    {
        platform::SandboxLauncher launcher(m_root.wstring(), &m_registry);
        return launcher.shellExecuteAndWait({ L"open", file, parameters, L"", platform::ShowNormal, {} }, 1000);
    }
    std::string icon(const std::wstring& path)
    {
        const auto encoded = platform::SandboxIconExtractor(m_root.wstring()).extract(path, 0).image.encoded;
        return std::string(encoded.begin(), encoded.end());
    }

    fs::path m_base, m_root;
    platform::SandboxRegistry m_registry;
};

TEST_F(SandboxUninstallTest, NothingOutsideTheDriveIsRunDeletedOrRead)
{
    put(m_base / "outside" / "evil.exe", "MZ");
    put(m_base / "outside" / "evil.exe.demo-uninstall", "exit=0\n");
    for (const fs::path& p : { m_base / "outside" / "evil.exe", m_root / "C" / ".." / ".." / "outside" / "evil.exe" })
        EXPECT_EQ(run(p.wstring()).error, 2u) << p;
    EXPECT_FALSE(run(L"").started);
    EXPECT_FALSE(run(L"C:\\Tool").started); // a folder is no program
    EXPECT_EQ(run(L"C:\\Tool\\tool.exe").error, 1260u); // a program without a description
    put(m_root / "C" / "Tool" / "tool.exe.demo-uninstall",
        "delete=C:\\Tool\\link\\keep.png\ndelete=C:\\..\\..\\outside\ndelete=C:\\\ndelete="
            + (m_base / "outside").string() + "\ndelete=C:\\Tool\\link\nexit=banana\n");
    EXPECT_EQ(run(L"C:\\Tool\\tool.exe").exitCode, 0u); // an unreadable code leaves the default
    EXPECT_TRUE(fs::exists(m_base / "outside" / "keep.png"));
    EXPECT_TRUE(fs::exists(m_root / "C" / "Tool" / "tool.exe"));
    EXPECT_FALSE(fs::exists(fs::symlink_status(m_root / "C" / "Tool" / "link"))); // the link itself went
    fs::create_directory_symlink(m_base / "outside", m_root / "C" / "Tool" / "link2");
    fs::create_symlink(m_base / "outside" / "keep.png", m_root / "C" / "Tool" / "tool.exe.png");
    EXPECT_EQ(icon((m_base / "outside" / "keep.png").wstring()), "");
    EXPECT_EQ(icon(L"C:\\Tool\\link2\\keep.png"), "");
    EXPECT_EQ(icon(L"C:\\..\\..\\outside\\keep.png"), "");
}

// Win32 cleans "link\.." out of a path before anything is opened, so such a path names the
// folder beside the link; followed on disk it would name one outside the sandbox.
TEST_F(SandboxUninstallTest, APathThatClimbsOutOfALinkStaysOnTheDrive)
{
    put(m_base / "evil.exe", "MZ");
    put(m_base / "evil.exe.demo-uninstall", "exit=0\n");
    fs::create_directories(m_base / "docs");
    put(m_base / "docs" / "keep.txt", "mine");
    fs::create_directories(m_root / "C" / "Tool" / "docs");
    put(m_root / "C" / "Tool" / "docs" / "old.txt", "stale");
    EXPECT_EQ(run(L"C:\\Tool\\link\\..\\evil.exe").error, 2u);
    put(m_root / "C" / "Tool" / "tool.exe.demo-uninstall", "delete=C:\\Tool\\link\\..\\docs\n");
    EXPECT_TRUE(run(L"C:\\Tool\\link\\..\\tool.exe").started);
    EXPECT_TRUE(fs::exists(m_base / "docs" / "keep.txt"));
    EXPECT_FALSE(fs::exists(m_root / "C" / "Tool" / "docs"));
}

TEST_F(SandboxUninstallTest, AProductDescriptionIsNotReadThroughALinkedFolder)
{
    fs::create_directories(m_root / "C" / "Windows");
    fs::create_directory_symlink(m_base / "outside", m_root / "C" / "Windows" / "Installer");
    const std::wstring code = L"{12345678-1234-1234-1234-123456789ABC}";
    put(m_base / "outside" / (fs::path(code).string() + ".demo-uninstall"), "delete=C:\\Tool\\tool.exe\n");
    EXPECT_EQ(run(L"MsiExec.exe", L"/X" + code).exitCode, 1605u);
    EXPECT_TRUE(fs::exists(m_root / "C" / "Tool" / "tool.exe"));
}

TEST_F(SandboxUninstallTest, TheRegistryIsSavedAsItselfNeverThroughAPlantedLink)
{
    const fs::path file = m_root / "registry.reg";
    put(m_base / "outside" / "victim.txt", "precious");
    fs::create_symlink(m_base / "outside" / "victim.txt", file.string() + ".saving");
    fs::create_symlink(m_base / "outside" / "victim.txt", file);
    {
        platform::SandboxRegistry registry(file.string());
        EXPECT_FALSE(registry.keyExists(platform::Hive::LocalMachine, L"SOFTWARE")); // the link was not read
        EXPECT_EQ(registry.createKey(platform::Hive::LocalMachine, L"SOFTWARE\\Norvale"), platform::Status::Ok);
    }
    std::ifstream victim(m_base / "outside" / "victim.txt");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(victim), {}), "precious");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(file)));
    EXPECT_FALSE(fs::exists(fs::symlink_status(file.string() + ".saving")));
    EXPECT_TRUE(platform::SandboxRegistry(file.string()).keyExists(platform::Hive::LocalMachine, L"SOFTWARE\\Norvale"));
}

} // namespace
