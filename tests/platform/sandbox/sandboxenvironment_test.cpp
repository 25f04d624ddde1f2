#include "platform/sandbox/sandboxenvironment.h"

#include <gtest/gtest.h>

#include <string>

using platform::SandboxEnvironment;

namespace {

const std::wstring Root = L"/tmp/sb";
const std::wstring Temp = L"/tmp/sb/C/Users/User/AppData/Local/Temp";

struct TextRow {
    const char* name;
    std::wstring input;
    std::wstring expected;
};

class SandboxMapPath : public ::testing::TestWithParam<TextRow> { };

TEST_P(SandboxMapPath, SystemDrivePathsLandInsideTheSandbox)
{
    EXPECT_EQ(SandboxEnvironment(Root).mapPath(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SandboxMapPath,
    ::testing::Values(TextRow { "forward_slashes", L"C:/Windows/Temp", L"/tmp/sb/C/Windows/Temp" },
        TextRow { "backslashes_and_lower_drive", L"c:\\Users\\User\\x.txt", L"/tmp/sb/C/Users/User/x.txt" },
        TextRow { "drive_root", L"C:/", L"/tmp/sb/C/" }, TextRow { "bare_drive", L"C:", L"/tmp/sb/C/" },
        TextRow { "other_drive_unchanged", L"D:/Data", L"D:/Data" },
        TextRow { "relative_unchanged", L"Windows/Temp", L"Windows/Temp" },
        TextRow { "already_mapped_unchanged", L"/tmp/sb/C/Windows", L"/tmp/sb/C/Windows" },
        TextRow { "empty", L"", L"" }),
    [](const auto& info) { return std::string(info.param.name); });

class SandboxExpand : public ::testing::TestWithParam<TextRow> { };

// Expansion follows ExpandEnvironmentStringsW as the Wine lane shows it: unknown names stay as
// written and the scan resumes after their closing percent sign.
TEST_P(SandboxExpand, ExpandsLikeWindows)
{
    EXPECT_EQ(SandboxEnvironment(Root).expand(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SandboxExpand,
    ::testing::Values(TextRow { "known_name", L"%TEMP%\\x", Temp + L"\\x" },
        TextRow { "name_ignores_case", L"%temp%", Temp }, TextRow { "unknown_name_stays", L"%NOPE%\\x", L"%NOPE%\\x" },
        TextRow { "unknown_then_known", L"%NOPE%%TEMP%", L"%NOPE%" + Temp },
        TextRow { "unknown_closing_percent_is_used_up", L"100% %TEMP%", L"100% %TEMP%" },
        TextRow { "double_percent", L"%%TEMP%", L"%%TEMP%" }, TextRow { "trailing_percent", L"%TEMP%%", Temp + L"%" },
        TextRow { "unpaired_percent", L"%TEMP", L"%TEMP" },
        TextRow { "two_names", L"%SystemDrive%%HOMEPATH%", L"C:\\Users\\User" }, TextRow { "empty", L"", L"" }),
    [](const auto& info) { return std::string(info.param.name); });

TEST(SandboxEnvironment, KnownFoldersLieInsideTheSandboxWhateverTheRootSpelling)
{
    for (const std::wstring root : { L"/tmp/sb", L"/tmp/sb/", L"/tmp/sb//" }) {
        const SandboxEnvironment env(root);
        EXPECT_EQ(env.systemDriveRoot(), L"/tmp/sb/C/");
        EXPECT_EQ(env.userProfile(), L"/tmp/sb/C/Users/User");
        EXPECT_EQ(env.roamingAppData(), L"/tmp/sb/C/Users/User/AppData/Roaming");
        EXPECT_EQ(env.localAppData(), L"/tmp/sb/C/Users/User/AppData/Local");
        EXPECT_EQ(env.programData(), L"/tmp/sb/C/ProgramData");
        EXPECT_EQ(env.temp(), Temp);
        EXPECT_FALSE(env.variable(L"NORVALE_NOT_SET").has_value());
    }
}

} // namespace
