#include "platform/sandbox/sandboxregistry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

using namespace platform;

namespace {

class SandboxRegistryFile : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(::mkdtemp(m_dir.data()), nullptr); }
    void TearDown() override { std::filesystem::remove_all(m_dir); }

    std::string m_dir = (std::filesystem::temp_directory_path() / "norvale-sbreg-XXXXXX").string();
    std::string file() const { return m_dir + "/registry.reg"; }
};

TEST_F(SandboxRegistryFile, ChangesReachTheDiskWholeOrNotAtAll)
{
    SandboxRegistry reg(file());
    ASSERT_EQ(reg.setString(Hive::LocalMachine, L"Software\\App", L"Name", L"App \u00e9"), Status::Ok);
    ASSERT_EQ(reg.setDword(Hive::LocalMachine, L"Software\\App", L"Size", 42), Status::Ok);
    ASSERT_EQ(reg.createKey(Hive::CurrentUser, L"Software\\Empty"), Status::Ok);
    const std::string import = "Windows Registry Editor Version 5.00\r\n\r\n"
                               "[HKEY_LOCAL_MACHINE\\Software\\App]\r\n\"Size\"=-\r\n\"c\"=\"3\"\r\n";
    reg.importRegFile(std::vector<std::uint8_t>(import.begin(), import.end()));
    const SandboxRegistry reread(file());
    EXPECT_EQ(reread.readString(Hive::LocalMachine, L"Software\\App", L"Name"), L"App \u00e9");
    EXPECT_FALSE(reread.readDword(Hive::LocalMachine, L"Software\\App", L"Size").has_value());
    EXPECT_EQ(reread.readString(Hive::LocalMachine, L"Software\\App", L"c"), L"3");
    EXPECT_TRUE(reread.keyExists(Hive::CurrentUser, L"Software\\Empty"));
    for (const auto& entry : std::filesystem::directory_iterator(m_dir))
        EXPECT_EQ(entry.path().filename(), "registry.reg") << "left behind: " << entry.path();

    // Nothing can be written where the new file is prepared; the old one must survive that.
    std::filesystem::create_directory(file() + ".saving");
    EXPECT_EQ(reg.setDword(Hive::LocalMachine, L"Software\\App", L"Size", 2), Status::Failed);
    EXPECT_EQ(SandboxRegistry(file()).readString(Hive::LocalMachine, L"Software\\App", L"c"), L"3");
}

TEST_F(SandboxRegistryFile, AMissingOrDamagedFileGivesWhatIsReadable)
{
    EXPECT_FALSE(SandboxRegistry(file()).keyExists(Hive::CurrentUser, L"Software"));
    std::ofstream(file(), std::ios::binary)
        << "Windows Registry Editor Version 5.00\r\n[HKEY_CURRENT_USER\\Ok]\r\n\"v\"=dword:00000001\r\n"
        << std::string("\0\xff\xfe[[[\"=\\", 9) << "\r\n\"w\"=dword:00000002\r\n[HKEY_CURRENT_USER\\Cut";
    const SandboxRegistry reg(file());
    EXPECT_EQ(reg.readDword(Hive::CurrentUser, L"Ok", L"v"), 1u);
    EXPECT_EQ(reg.readDword(Hive::CurrentUser, L"Ok", L"w"), 2u);
    EXPECT_FALSE(reg.keyExists(Hive::CurrentUser, L"Cut"));
}

} // namespace
