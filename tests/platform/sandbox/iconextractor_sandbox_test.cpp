// Sandbox icons are image files found beside the executable; reads never leave the sandbox.

#include "platform/sandbox/sandboxiconextractor.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

class SandboxIconTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "norvale-sbicon-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_base = pattern;
        m_root = m_base / "sandbox";
        fs::create_directories(m_root / "C" / "App");
        fs::create_directories(m_base / "outside");
        m_icons = std::make_unique<platform::SandboxIconExtractor>(m_root.wstring());
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }
    static void put(const fs::path& file, const std::string& text) { std::ofstream(file, std::ios::binary) << text; }
    std::string extract(const std::wstring& path, int index)
    {
        const auto result = m_icons->extract(path, index);
        return std::string(result.image.encoded.begin(), result.image.encoded.end());
    }

    fs::path m_base, m_root;
    std::unique_ptr<platform::SandboxIconExtractor> m_icons;
};

TEST_F(SandboxIconTest, IndexedIconBeforeShellIcon)
{
    put(m_root / "C" / "App" / "app.exe", "MZ");
    put(m_root / "C" / "App" / "app.exe.png", "shell");
    put(m_root / "C" / "App" / "app.exe.2.ico", "second");
    EXPECT_EQ(extract(L"C:\\App\\app.exe", 2), "second");
    EXPECT_EQ(extract(L"C:\\App\\app.exe", 0), "shell");
    EXPECT_EQ(extract(L"C:/App/app.exe", 7), "shell");
}

TEST_F(SandboxIconTest, ImageFilesAreTheirOwnIcon)
{
    put(m_root / "C" / "App" / "app.ICO", "icon bytes");
    EXPECT_EQ(extract(L"C:\\App\\app.ICO", 0), "icon bytes");
    put(m_root / "C" / "App" / "empty.png", "");
    const auto empty = m_icons->extract(L"C:\\App\\empty.png", 0);
    EXPECT_TRUE(empty.image.isNull());
    EXPECT_EQ(empty.error, 1813u);
}

TEST_F(SandboxIconTest, NothingOutsideTheSandbox)
{
    put(m_base / "outside" / "secret.png", "secret");
    fs::create_directory_symlink(m_base / "outside", m_root / "C" / "App" / "link");
    put(m_root / "C" / "App" / "tool.exe", "MZ");
    fs::create_symlink(m_base / "outside" / "secret.png", m_root / "C" / "App" / "tool.exe.png");
    EXPECT_EQ(extract((m_base / "outside" / "secret.png").wstring(), 0), "");
    EXPECT_EQ(extract(L"C:\\App\\link\\secret.png", 0), "");
    EXPECT_EQ(extract(L"C:\\App\\tool.exe", 0), "");
    EXPECT_EQ(extract(L"C:\\..\\..\\outside\\secret.png", 0), "");
}

TEST_F(SandboxIconTest, OversizedFilesAreNotRead)
{
    std::ofstream big(m_root / "C" / "App" / "big.png", std::ios::binary);
    big.seekp(5 * 1024 * 1024);
    big.put('x');
    big.close();
    EXPECT_TRUE(m_icons->extract(L"C:\\App\\big.png", 0).image.isNull());
}

} // namespace
