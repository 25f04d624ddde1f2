// From the registry's uninstall text to what the shell is asked to start, in both lanes: the same
// preparation the uninstall page uses.

#include "platform/strings.h"
#include "platform/uninstallcommandline.h"

#include <gtest/gtest.h>

namespace {

const std::wstring Guid = L"{23170F69-40C1-2702-2301-000001000000}";

struct Case {
    const char* what;
    std::wstring text;
    std::wstring program; // empty: nothing is started
    std::vector<std::wstring> arguments;
    std::wstring publisher = L"";
    std::wstring name = L"App";
};

std::vector<Case> cases()
{
    const std::vector<std::wstring> silentRemove = { L"/X" + Guid, L"/quiet", L"/norestart" };
    return {
        { "quoted path with a switch", LR"("C:\Program Files\Firefox\helper.exe" /S)",
            LR"(C:\Program Files\Firefox\helper.exe)", { L"/S" } },
        { "quoted argument comes apart", LR"("C:\Steam\uninstall.exe" /uninstall "My Game")",
            LR"(C:\Steam\uninstall.exe)", { L"/uninstall", L"\"My", L"Game\"" } },
        { "unquoted path with spaces, upper case, padded", L" \tC:\\Program Files\\VLC\\UNINSTALL.EXE /S  /NCRC\u3000",
            LR"(C:\Program Files\VLC\UNINSTALL.EXE)", { L"/S", L"/NCRC" } },
        { "rundll32 click-once", L"rundll32.exe dfshim.dll,ShArpMaintain Foo.application", L"rundll32.exe",
            { L"dfshim.dll,ShArpMaintain", L"Foo.application" } },
        { "empty quotes", LR"("" /S)", L"", {} },
        { "only blanks", L"  \t ", L"", {} },

        { "msi remove gets both switches", L"MsiExec.exe /X" + Guid, L"msiexec.exe", silentRemove, L"Igor Pavlov",
            L"7-Zip 23.01" },
        { "msi install switch joined to the code", L"MsiExec.exe /I" + Guid, L"msiexec.exe", silentRemove },
        { "msi install switch in lower case, code apart", L"msiexec /i " + Guid, L"msiexec.exe",
            { L"/X", Guid, L"/quiet", L"/norestart" } },
        { "msi long install switch, dash", L"msiexec.exe -package " + Guid + L" /qn", L"msiexec.exe",
            { L"/X", Guid, L"/qn" } },
        { "msi install of a package file", L"msiexec /i C:\\Setup\\app.msi", L"msiexec.exe",
            { L"/X", L"C:\\Setup\\app.msi", L"/quiet", L"/norestart" } },
        { "msiexec full path, blanks, /qb is not silent", L"C:\\Windows\\System32\\msiexec.exe  /x " + Guid + L"  /qb",
            L"msiexec.exe", { L"/x", Guid, L"/qb", L"/quiet", L"/norestart" } },
        { "/QN already chosen", L"MsiExec.exe /X" + Guid + L" /QN", L"msiexec.exe", { L"/X" + Guid, L"/QN" } },
        { "Autodesk publisher, still removed", L"MsiExec.exe /I" + Guid, L"msiexec.exe", { L"/X" + Guid },
            L"Autodesk, Inc.", L"AutoCAD 2024" },
        { "Microsoft Office", L"MsiExec.exe /X" + Guid, L"msiexec.exe", { L"/X" + Guid }, L"Microsoft Corporation",
            L"Microsoft Office 2019" },
        { "other Microsoft product", L"MsiExec.exe /X" + Guid, L"msiexec.exe", silentRemove, L"Microsoft Corporation",
            L"Microsoft Teams" },
        { "an install switch of another program is its own business", L"C:\\App\\setup.exe /I" + Guid,
            L"C:\\App\\setup.exe", { L"/I" + Guid } },

        { "a URL ending in .exe", L"https://example.com/uninstall.exe", L"", {} },
        { "a protocol handler", L"ms-settings:appsfeatures-app", L"", {} },
        { "a script", L"C:\\Tools\\remove.bat /S", L"", {} },
        { "a quoted script", LR"("C:\Tools\remove.cmd" /S)", L"", {} },
        { "a document", LR"(C:\Tools\readme.txt)", L"", {} },
        { "a program on a share", L"\\\\server\\share\\unins000.exe /S", L"", {} },
        { "a quoted program on a share, forward slashes", L"\"//server/share/unins000.exe\" /S", L"", {} },
        { "a stream of a file", L"C:\\Tools\\notes.txt:evil.exe", L"", {} },
        { "an unmatched quote is no file name", LR"("C:\Foo\uninst.exe /S)", L"", {} },
    };
}

TEST(UninstallCommandLine, PreparedAsTheShellWillRunIt)
{
    for (const Case& c : cases()) {
        SCOPED_TRACE(c.what);
        const platform::PreparedUninstall prepared = platform::prepareUninstall(c.text, c.publisher, c.name);
        ASSERT_EQ(prepared.command.has_value(), !c.program.empty());
        if (!prepared.command) {
            // Something that names a program but may not be started always says why.
            EXPECT_EQ(prepared.refusal.empty(), !platform::parseUninstallCommand(c.text).has_value());
            continue;
        }
        EXPECT_EQ(prepared.command->program, c.program);
        EXPECT_EQ(prepared.command->arguments, c.arguments);
        EXPECT_TRUE(prepared.refusal.empty());
    }
}

TEST(UninstallCommandLine, ParametersAreTheArgumentsJoinedBySingleSpaces)
{
    const auto prepared = platform::prepareUninstall(L"msiexec  /x " + Guid, L"", L"App");
    ASSERT_TRUE(prepared.command);
    EXPECT_EQ(prepared.command->parameters(), L"/x " + Guid + L" /quiet /norestart");
    const platform::UninstallCommandLine bare { L"a.exe", {} };
    EXPECT_EQ(bare.parameters(), L"");
}

TEST(UninstallCommandLine, NetworkPaths)
{
    for (const wchar_t* path : { L"\\\\server\\share", L"//server/share/app.exe", L" \"\\\\server\\s\\a.ico\",0",
             L"\\\\?\\UNC\\server\\share\\x", L"\\/server/share" })
        EXPECT_TRUE(platform::isNetworkPath(path)) << platform::toUtf8(path);
    for (const wchar_t* path : { L"C:\\Program Files\\App", L"\\Windows", L"/usr/bin", L"", L"\"C:\\a\\b\"" })
        EXPECT_FALSE(platform::isNetworkPath(path)) << platform::toUtf8(path);
}

} // namespace
