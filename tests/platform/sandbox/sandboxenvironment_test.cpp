#include "platform/sandbox/sandboxenvironment.h"

#include <gtest/gtest.h>

#include <string>

using platform::SandboxEnvironment;

namespace {

const std::wstring Temp = L"/tmp/sb/C/Users/User/AppData/Local/Temp";
const auto Map = &SandboxEnvironment::mapPath;
const auto Expand = &SandboxEnvironment::expand;

struct TextRow {
    const char* name;
    std::wstring (SandboxEnvironment::*call)(const std::wstring&) const;
    std::wstring input;
    std::wstring expected;
};

class SandboxEnvironmentText : public ::testing::TestWithParam<TextRow> { };

// Expansion does what the Wine lane shows ExpandEnvironmentStringsW doing.
TEST_P(SandboxEnvironmentText, MapsAndExpandsLikeWindowsInsideTheSandboxWhateverTheRootSpelling)
{
    for (const std::wstring root : { L"/tmp/sb", L"/tmp/sb//" })
        EXPECT_EQ((SandboxEnvironment(root).*GetParam().call)(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SandboxEnvironmentText,
    ::testing::Values(TextRow { "map_forward_slashes", Map, L"C:/Windows/Temp", L"/tmp/sb/C/Windows/Temp" },
        TextRow { "map_backslashes_lower_drive", Map, L"c:\\Users\\User\\x.txt", L"/tmp/sb/C/Users/User/x.txt" },
        TextRow { "map_bare_drive", Map, L"C:", L"/tmp/sb/C/" },
        TextRow { "map_leaves_other_drive", Map, L"D:/Data", L"D:/Data" },
        TextRow { "map_leaves_relative", Map, L"Windows/Temp", L"Windows/Temp" },
        TextRow { "expand_ignores_case", Expand, L"%temp%\\x", Temp + L"\\x" },
        TextRow { "expand_folders", Expand, L"%LOCALAPPDATA%;%ProgramData%;%SystemDrive%%HOMEPATH%",
            L"/tmp/sb/C/Users/User/AppData/Local;/tmp/sb/C/ProgramData;C:\\Users\\User" },
        TextRow { "expand_unknown_then_known", Expand, L"%NOPE%%TEMP%", L"%NOPE%" + Temp },
        TextRow { "expand_unknown_uses_up_closing_percent", Expand, L"100% %TEMP%", L"100% %TEMP%" },
        TextRow { "expand_double_percent", Expand, L"%%TEMP%", L"%%TEMP%" },
        TextRow { "expand_trailing_percent", Expand, L"%TEMP%%", Temp + L"%" },
        TextRow { "expand_unpaired_percent", Expand, L"%TEMP", L"%TEMP" }),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
