#include "platform/sandbox/sandboxregistry.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using platform::Hive;
using platform::SandboxRegistry;
using platform::Status;

namespace fs = std::filesystem;

namespace {

class SandboxRegistryFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "norvale-sbreg-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_dir = pattern;
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_dir, ignored);
    }

    std::string file() const { return (m_dir / "registry.reg").string(); }

    std::vector<std::uint8_t> contents() const
    {
        std::ifstream in(file(), std::ios::binary);
        return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    static ino_t inode(const std::string& path)
    {
        struct stat st { };
        return ::stat(path.c_str(), &st) == 0 ? st.st_ino : 0;
    }

    fs::path m_dir;
};

TEST_F(SandboxRegistryFile, EveryChangeIsOnDiskForTheNextReader)
{
    {
        SandboxRegistry reg(file());
        ASSERT_EQ(reg.setString(Hive::LocalMachine, L"Software\\App", L"Name", L"App \u00e9"), Status::Ok);
        ASSERT_EQ(reg.setDword(Hive::LocalMachine, L"Software\\App", L"Size", 42), Status::Ok);
        ASSERT_EQ(reg.setString(Hive::CurrentUser, L"Software\\Gone", L"x", L"y"), Status::Ok);
        ASSERT_EQ(reg.createKey(Hive::CurrentUser, L"Software\\Empty"), Status::Ok);
        ASSERT_EQ(reg.deleteTree(Hive::CurrentUser, L"Software\\Gone"), Status::Ok);
    }
    const SandboxRegistry reread(file());
    EXPECT_EQ(reread.readString(Hive::LocalMachine, L"Software\\App", L"Name"), L"App \u00e9");
    EXPECT_EQ(reread.readDword(Hive::LocalMachine, L"Software\\App", L"Size"), 42u);
    EXPECT_TRUE(reread.keyExists(Hive::CurrentUser, L"Software\\Empty"));
    EXPECT_FALSE(reread.keyExists(Hive::CurrentUser, L"Software\\Gone"));
}

TEST_F(SandboxRegistryFile, RewritesReplaceTheFileWhole)
{
    SandboxRegistry reg(file());
    ASSERT_EQ(reg.setDword(Hive::CurrentUser, L"Software\\A", L"n", 1), Status::Ok);
    const ino_t before = inode(file());
    ASSERT_NE(before, 0u);
    // A reader holding the old file keeps seeing the old registry, complete.
    std::ifstream oldReader(file(), std::ios::binary);
    const std::vector<std::uint8_t> oldBytes = contents();

    ASSERT_EQ(reg.setDword(Hive::CurrentUser, L"Software\\A", L"n", 2), Status::Ok);
    EXPECT_NE(inode(file()), before);
    const std::vector<std::uint8_t> heldBytes { std::istreambuf_iterator<char>(oldReader),
        std::istreambuf_iterator<char>() };
    EXPECT_EQ(heldBytes, oldBytes);
    for (const auto& entry : fs::directory_iterator(m_dir))
        EXPECT_EQ(entry.path().filename(), "registry.reg") << "left behind: " << entry.path();
}

TEST_F(SandboxRegistryFile, AFailedWriteLeavesTheOldFileIntact)
{
    SandboxRegistry reg(file());
    ASSERT_EQ(reg.setDword(Hive::CurrentUser, L"Software\\A", L"n", 1), Status::Ok);
    const std::vector<std::uint8_t> before = contents();
    // Nothing can be written where the new file is prepared.
    fs::create_directory(file() + ".saving");

    EXPECT_EQ(reg.setDword(Hive::CurrentUser, L"Software\\A", L"n", 2), Status::Failed);
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(SandboxRegistry(file()).readDword(Hive::CurrentUser, L"Software\\A", L"n"), 1u);
}

TEST_F(SandboxRegistryFile, LoadsARegeditExportAndMergesImports)
{
    {
        std::ofstream out(file(), std::ios::binary);
        // UTF-16LE with a byte-order mark, as regedit writes it.
        const std::u16string text = u"\uFEFFWindows Registry Editor Version 5.00\r\n\r\n"
                                    u"[HKEY_CURRENT_USER\\Software\\Vendor]\r\n\"a\"=\"1\"\r\n\"b\"=dword:00000002\r\n";
        for (char16_t c : text) {
            out.put(static_cast<char>(c & 0xFF));
            out.put(static_cast<char>(c >> 8));
        }
    }
    SandboxRegistry reg(file());
    EXPECT_EQ(reg.readString(Hive::CurrentUser, L"Software\\Vendor", L"a"), L"1");

    const std::string import = "Windows Registry Editor Version 5.00\r\n\r\n"
                               "[HKEY_CURRENT_USER\\Software\\Vendor]\r\n\"a\"=-\r\n\"c\"=\"3\"\r\n";
    reg.importRegFile(std::vector<std::uint8_t>(import.begin(), import.end()));
    const SandboxRegistry reread(file());
    EXPECT_FALSE(reread.readString(Hive::CurrentUser, L"Software\\Vendor", L"a").has_value());
    EXPECT_EQ(reread.readDword(Hive::CurrentUser, L"Software\\Vendor", L"b"), 2u);
    EXPECT_EQ(reread.readString(Hive::CurrentUser, L"Software\\Vendor", L"c"), L"3");
}

TEST_F(SandboxRegistryFile, AMissingOrDamagedFileGivesWhatIsReadable)
{
    EXPECT_FALSE(SandboxRegistry(file()).keyExists(Hive::CurrentUser, L"Software"));
    {
        std::ofstream out(file(), std::ios::binary);
        out << "Windows Registry Editor Version 5.00\r\n[HKEY_CURRENT_USER\\Software\\Ok]\r\n\"v\"=dword:00000001\r\n"
            << std::string("\0\xff\xfe[[[\"=\\", 9) << "\r\n\"w\"=dword:00000002\r\n[HKEY_CURRENT_USER\\Software\\Cut";
    }
    const SandboxRegistry reg(file());
    EXPECT_EQ(reg.readDword(Hive::CurrentUser, L"Software\\Ok", L"v"), 1u);
    EXPECT_EQ(reg.readDword(Hive::CurrentUser, L"Software\\Ok", L"w"), 2u);
    EXPECT_FALSE(reg.keyExists(Hive::CurrentUser, L"Software\\Cut"));
}

} // namespace
