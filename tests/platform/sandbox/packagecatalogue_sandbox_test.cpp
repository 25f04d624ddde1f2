// The sandbox catalogue file: what a package line turns into, and lines that must never point a
// walk outside the sandbox or stop the rest of the file from being read.

#include "platform/sandbox/sandboxpackagecatalogue.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace fs = std::filesystem;
using platform::PackageRecord;
using platform::PackageSignature;

namespace {

class SandboxCatalogueTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "norvale-sbpackages-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_root = pattern;
    }
    void TearDown() override { fs::remove_all(m_root); }

    void write(const std::string& text) { std::ofstream(m_root / "packages.txt", std::ios::binary) << text; }

    static std::vector<int> parts(const platform::PackageVersion& v)
    {
        return { v.major, v.minor, v.build, v.revision };
    }

    // Every package the filter lets through, and what the filter saw.
    std::vector<PackageRecord> walk(std::vector<PackageRecord>* seen = nullptr, bool keep = true)
    {
        std::vector<PackageRecord> out;
        platform::SandboxPackageCatalogue catalogue(m_root.wstring());
        const auto status = catalogue.forEachPackage(
            [&](const PackageRecord& p) {
                if (seen)
                    seen->push_back(p);
                return keep;
            },
            [&](const PackageRecord& p) { out.push_back(p); });
        EXPECT_TRUE(status.ok);
        return out;
    }

    fs::path m_root;
};

} // namespace

TEST_F(SandboxCatalogueTest, PackagesComeInFileOrderAndTheFilterSeesOnlyTheFirstRound)
{
    write(
        "# demo\n[package]\nname=Contoso.Notes\nfullName=Contoso.Notes_1.2.3.4_x64__abc\nfamilyName=Contoso.Notes_abc\n"
        "publisherId=abc\nversion=1.2.3.4\nlocation=C:\\Program Files\\WindowsApps\\Notes\\\n"
        "displayName=ms-resource:AppName\npublisherDisplayName=Contoso = Ltd\nbundle=true\nsignature=system\n"
        "[package]\r\nname=Fabrikam.Paint\r\nframework=1\r\nresource=1\r\nsignature=3\r\n");
    std::vector<PackageRecord> seen;
    const auto packages = walk(&seen);
    ASSERT_EQ(packages.size(), 2u);
    const PackageRecord& notes = packages[0];
    EXPECT_EQ(notes.fullName, L"Contoso.Notes_1.2.3.4_x64__abc");
    EXPECT_EQ(notes.familyName + L"|" + notes.publisherId, L"Contoso.Notes_abc|abc");
    EXPECT_EQ(parts(notes.version), (std::vector<int> { 1, 2, 3, 4 }));
    EXPECT_EQ(notes.installLocation, (m_root / "C/Program Files/WindowsApps/Notes").wstring());
    EXPECT_EQ(notes.publisherDisplayName, L"Contoso = Ltd");
    EXPECT_TRUE(notes.isBundle);
    EXPECT_EQ(notes.signature, PackageSignature::System);
    EXPECT_TRUE(packages[1].isFramework && packages[1].isResourcePackage);
    EXPECT_EQ(packages[1].signature, PackageSignature::Store);

    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].name, L"Contoso.Notes");
    EXPECT_TRUE(seen[0].fullName.empty() && seen[0].installLocation.empty());
    EXPECT_TRUE(walk(nullptr, false).empty());
}

TEST_F(SandboxCatalogueTest, LocationsOffTheSystemDriveOrClimbingOutAreLeftEmpty)
{
    const char* const locations[] = { "D:\\Apps\\Notes", "C:\\Program Files\\..\\..\\..\\etc", "/etc",
        "C:", "\\\\server\\share", "C:\\Apps\\..", "relative\\path" };
    std::string text;
    for (const char* location : locations)
        text += std::string("[package]\nname=P\nlocation=") + location + "\n";
    write(text);
    const auto packages = walk();
    ASSERT_EQ(packages.size(), std::size(locations));
    for (std::size_t i = 0; i < packages.size(); ++i)
        EXPECT_TRUE(packages[i].installLocation.empty()) << locations[i];
}

TEST_F(SandboxCatalogueTest, JunkLinesAndBadValuesAreSkippedAndTheRestIsRead)
{
    std::string junk("\x00\xff\xfe[pack\x01", 8);
    write("name=BeforeAnySection\n" + junk + "\n=\n[package]\nversion=99999.1.x.3\nsignature=kernel\nname\n"
        + std::string(100000, 'x')
        + "\n[other]\nname=Ignored\n[package]\nname=Second\n[strings]\nnot a source=1\n"
          "@{Second_1?ms-resource:A}=Text = with equals\n@{Unterminated?ms-resource:B=Nothing\n");
    const auto packages = walk();
    ASSERT_EQ(packages.size(), 2u);
    EXPECT_EQ(packages[0].name, L"");
    EXPECT_EQ(parts(packages[0].version), (std::vector<int> { 0, 1, 0, 3 }));
    EXPECT_EQ(packages[0].signature, PackageSignature::None);
    EXPECT_EQ(packages[1].name, L"Second");

    platform::SandboxPackageCatalogue catalogue(m_root.wstring());
    EXPECT_EQ(catalogue.loadIndirectString(L"@{Second_1?ms-resource:A}").value_or(L"-"), L"Text = with equals");
    EXPECT_FALSE(catalogue.loadIndirectString(L"@{Unterminated?ms-resource:B"));
    EXPECT_FALSE(catalogue.loadIndirectString(L"not a source"));
}

TEST_F(SandboxCatalogueTest, AnOversizedFileCountsAsNoRuntime)
{
    write("[package]\nname=A\n" + std::string(9 * 1024 * 1024, '#'));
    platform::SandboxPackageCatalogue catalogue(m_root.wstring());
    const auto status
        = catalogue.forEachPackage([](const PackageRecord&) { return true; }, [](const PackageRecord&) {});
    EXPECT_FALSE(status.ok);
    EXPECT_EQ(status.error, platform::SandboxPackageCatalogue::ClassNotRegistered);
}
