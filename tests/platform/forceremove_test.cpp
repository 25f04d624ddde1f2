// What force removal relies on from the machine, in both lanes: the service manager's list and
// deletion, the rule that keeps system and user folders out of reach, and the matching rules.

#include "contract.h"

#include "platform/environment.h"
#include "platform/services.h"
#include "platform/tracerules.h"

#ifdef _WIN32
#include "platform/win/winenvironment.h"
#include "platform/win/winservices.h"
#include <windows.h>
#else
#include "platform/sandbox/sandboxenvironment.h"
#include "platform/sandbox/sandboxregistry.h"
#include "platform/sandbox/sandboxservices.h"
#endif

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>

using platform::Hive;
namespace traces = platform::traces;

namespace {

#ifdef _WIN32
DWORD runAndWait(std::wstring commandLine)
{
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process {};
    if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
            &startup, &process))
        return ~0u;
    ::WaitForSingleObject(process.hProcess, 30000);
    DWORD code = ~0u;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}
#endif

// One lane's service manager, with services made the way that lane makes them.
class ServiceLane {
public:
    platform::Services& services() { return m_services; }
#ifdef _WIN32
    bool create(const std::wstring& name, const std::wstring& binary, const std::wstring& displayName)
    {
        std::wstring command = L"sc create " + name + L" binPath= \"" + binary + L"\"";
        if (!displayName.empty())
            command += L" DisplayName= \"" + displayName + L"\"";
        return runAndWait(command) == 0;
    }

private:
    platform::WinServices m_services;
#else
    bool create(const std::wstring& name, const std::wstring& binary, const std::wstring& displayName)
    {
        const std::wstring key = std::wstring(platform::SandboxServices::servicesKey()) + L"\\" + name;
        m_registry.setDword(Hive::LocalMachine, key, L"Type", 0x10);
        if (!displayName.empty())
            m_registry.setString(Hive::LocalMachine, key, L"DisplayName", displayName);
        return m_registry.setString(Hive::LocalMachine, key, L"ImagePath", binary, platform::TypeExpandString)
            == platform::Status::Ok;
    }
    platform::SandboxRegistry& registry()
    {
        return m_registry;
    }

private:
    platform::SandboxRegistry m_registry;
    platform::SandboxServices m_services { &m_registry };
#endif
};

const platform::ServiceInfo* findService(const std::vector<platform::ServiceInfo>& list, const std::wstring& name)
{
    const auto it = std::find_if(list.begin(), list.end(), [&](const auto& s) { return s.name == name; });
    return it == list.end() ? nullptr : &*it;
}

TEST(ServicesContract, ListsBinaryPathsWithOrWithoutADisplayNameAndRemoves)
{
    ServiceLane lane;
    const std::wstring named = L"NorvaleContractNamedSvc", bare = L"NorvaleContractBareSvc";
    lane.services().remove(named);
    lane.services().remove(bare);
    ASSERT_TRUE(lane.create(named, L"C:\\Program Files\\Norvale Contract\\svc.exe", L"Norvale Contract Service"));
    ASSERT_TRUE(lane.create(bare, L"C:\\Program Files\\Norvale Contract\\bare.exe", L""));

    auto listed = lane.services().list();
    ASSERT_TRUE(listed.has_value());
    const platform::ServiceInfo* a = findService(*listed, named);
    const platform::ServiceInfo* b = findService(*listed, bare);
    ASSERT_TRUE(a && b);
    EXPECT_EQ(a->displayName, L"Norvale Contract Service");
    EXPECT_TRUE(traces::serviceMatches(a->binaryPath, L"c:\\program files\\norvale contract"));
    // Created without a display name: Windows may report the key name, Wine reports none.
    EXPECT_TRUE(b->displayName.empty() || b->displayName == bare);
    EXPECT_TRUE(traces::serviceMatches(b->binaryPath, L"C:\\Program Files\\Norvale Contract"));

    EXPECT_TRUE(lane.services().remove(bare));
    EXPECT_FALSE(lane.services().remove(L"NorvaleContractNeverThere"));
    listed = lane.services().list();
    ASSERT_TRUE(listed.has_value());
    EXPECT_EQ(findService(*listed, bare), nullptr);
    EXPECT_NE(findService(*listed, named), nullptr);
    EXPECT_TRUE(lane.services().remove(named));
}

#ifndef _WIN32
TEST(ServicesContract, TheSandboxListsNoDriversAndRemovesNoOtherKey)
{
    ServiceLane lane;
    const std::wstring key = platform::SandboxServices::servicesKey();
    lane.registry().setDword(Hive::LocalMachine, key + L"\\disk", L"Type", 1); // a kernel driver
    lane.registry().setString(Hive::LocalMachine, key + L"\\disk", L"ImagePath", L"System32\\drivers\\disk.sys");
    ASSERT_TRUE(lane.create(L"Plain", L"C:\\p.exe", L""));
    const auto listed = lane.services().list();
    ASSERT_TRUE(listed.has_value());
    ASSERT_EQ(listed->size(), 1u);
    EXPECT_EQ(listed->front().name, L"Plain");
    EXPECT_FALSE(lane.services().remove(L"..\\Services"));
    EXPECT_FALSE(lane.services().remove(L""));
    EXPECT_TRUE(lane.registry().keyExists(Hive::LocalMachine, key));
}
#endif

class ProtectedLocations : public ::testing::Test {
protected:
#ifdef _WIN32
    platform::WinEnvironment m_env;
#else
    platform::SandboxEnvironment m_env { L"/tmp/norvale-protected-sandbox" };
#endif
    // Backslashes, as an uninstall entry writes paths.
    static std::wstring windowsStyle(std::wstring path)
    {
        std::replace(path.begin(), path.end(), L'/', L'\\');
        return path;
    }
    static std::wstring upper(std::wstring path)
    {
        for (wchar_t& c : path)
            c = static_cast<wchar_t>(c >= L'a' && c <= L'z' ? c - 32 : c);
        return path;
    }
};

TEST_F(ProtectedLocations, EveryNamedPlaceAndItsAncestorsAreRefusedInAnySpelling)
{
    const std::wstring profile = m_env.userProfile();
    const std::wstring users = profile.substr(0, profile.find_last_of(L"/\\"));
    const std::wstring windows = m_env.windowsFolder();
    const std::pair<const char*, std::wstring> refused[] = {
        { "empty", L"" },
        { "relative", L"Vendor\\App" },
        { "drive-relative", L"C:App" },
        { "drive root", L"C:\\" },
        { "other drive root", L"D:" },
        { "share root", L"\\\\server\\share\\" },
        { "system drive", m_env.systemDriveRoot() },
        { "Windows", windows },
        { "inside Windows", windows + L"/System32/drivers" },
        { "Program Files", m_env.programFiles() },
        { "Program Files (x86)", m_env.programFilesX86() },
        { "ProgramData", m_env.programData() },
        { "Users", users },
        { "this profile", profile },
        { "another profile", users + L"/Someone" },
        { "AppData", profile + L"/AppData" },
        { "Roaming", m_env.roamingAppData() },
        { "Local", m_env.localAppData() },
        { "Desktop", m_env.userFolder(platform::UserFolder::Desktop) },
        { "Documents", m_env.userFolder(platform::UserFolder::Documents) },
        { "Downloads", m_env.userFolder(platform::UserFolder::Downloads) },
        { "temp", m_env.temp() },
        { "trailing separators", windowsStyle(m_env.programFiles()) + L"\\\\" },
        { "upper case", upper(m_env.programData()) },
        { "dot segments", m_env.programFiles() + L"/./Vendor/.." },
        { "climbing out of a program", m_env.programFiles() + L"/Vendor/App/../.." },
        { "long path prefix", L"\\\\?\\C:\\" },
    };
    for (const auto& [what, location] : refused) {
        SCOPED_TRACE(what);
        EXPECT_FALSE(location.empty() && std::string(what) != "empty") << "the lane has no such folder";
        EXPECT_TRUE(traces::isProtectedLocation(location, m_env));
        EXPECT_TRUE(traces::isProtectedLocation(windowsStyle(location), m_env));
    }

    const std::pair<const char*, std::wstring> allowed[] = {
        { "a program", m_env.programFiles() + L"/Vendor/App" },
        { "a program, backslashes and a trailing one", windowsStyle(m_env.programFilesX86()) + L"\\App\\" },
        { "a vendor folder in Roaming", m_env.roamingAppData() + L"/Vendor" },
        { "a folder in temp", m_env.temp() + L"/Setup" },
        { "another drive", L"D:\\Games\\App" },
    };
    for (const auto& [what, location] : allowed) {
        SCOPED_TRACE(what);
        EXPECT_FALSE(traces::isProtectedLocation(location, m_env));
    }
}

// A user who moved Documents to another drive: the folder that now holds it is refused too.
class MovedDocuments final : public platform::Environment {
public:
    std::wstring systemDriveRoot() const override { return L"C:/"; }
    std::wstring mapPath(const std::wstring& path) const override { return path; }
    std::optional<std::wstring> variable(const std::wstring& name) const override
    {
        return name == L"USERPROFILE" ? std::optional<std::wstring>(L"C:\\Users\\Ann") : std::nullopt;
    }
    std::wstring expand(const std::wstring& text) const override { return text; }
    std::wstring userFolder(platform::UserFolder which) const override
    {
        return which == platform::UserFolder::Documents ? L"D:\\Sync\\Ann\\Documents" : L"";
    }
    std::wstring temp() const override { return L"C:/Users/Ann/AppData/Local/Temp"; }
};

TEST(ProtectedLocationsElsewhere, AFolderHoldingAMovedKnownFolderIsRefused)
{
    const MovedDocuments env;
    EXPECT_TRUE(traces::isProtectedLocation(L"D:\\Sync\\Ann", env));
    EXPECT_TRUE(traces::isProtectedLocation(L"d:/sync/ann/documents/", env));
    EXPECT_FALSE(traces::isProtectedLocation(L"D:\\Sync\\Ann\\Documents\\Old Setup", env));
    EXPECT_FALSE(traces::isProtectedLocation(L"D:\\Sync\\Bob", env));
}

TEST(TraceRules, AppDataCandidatesAreDistinctPlainFolderNames)
{
    using List = std::vector<std::wstring>;
    const std::tuple<const char*, std::wstring, std::wstring, List> rows[] = {
        { "name, publisher word, compact name", L"Foo Bar Pro", L"Acme Software Inc",
            List { L"Foo Bar Pro", L"Acme", L"FooBarPro" } },
        { "publisher word of two letters is too short", L"Viewer", L"HP Inc", List { L"Viewer" } },
        { "publisher word equal to the name is dropped", L"Acme", L"Acme Corp", List { L"Acme" } },
        { "compact name shorter than four", L"A B", L"", List { L"A B" } },
        { "publisher word that compacts to the name is kept once", L"Foo Bar", L"FooBar Ltd",
            List { L"Foo Bar", L"FooBar" } },
        { "an empty name is no folder", L"", L"Acme Corp", List { L"Acme" } },
        { "dots and separators are no folder names", L"..", L"../.. x", List {} },
        { "a drive-like or nested name is skipped", L"C:", L"Vendor\\Sub Inc", List {} },
        { "spaces and dots only", L" . ", L"", List {} },
    };
    for (const auto& [what, name, publisher, expected] : rows) {
        SCOPED_TRACE(what);
        EXPECT_EQ(traces::appDataCandidates(name, publisher), expected);
    }
}

// The rules test what a program left by its name and folder; without either they claim nothing.
TEST(TraceRules, AnEmptyNameOrLocationClaimsNothing)
{
    EXPECT_FALSE(traces::startupValueMatches(L"C:\\Other\\bar.exe", L"", L""));
    EXPECT_FALSE(traces::shortcutMatches(L"Dropbox", L"", L""));
    EXPECT_FALSE(traces::taskLineMatches(L"\"\\Other\",\"N/A\",\"Ready\"", L"", L""));
    EXPECT_FALSE(traces::serviceMatches(L"C:\\Program Files\\Foo\\svc.exe", L""));
    EXPECT_FALSE(traces::startsWithPathNoCase(L"C:\\Program Files\\Foo\\foo.exe", L""));
}

TEST(TraceRules, RegistryLocationsSplitIntoHiveKeyAndLeaf)
{
    const std::wstring run = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    const std::tuple<std::wstring, bool, Hive, std::wstring, std::wstring> rows[] = {
        { L"HKLM\\" + run + L"\\FooTray", true, Hive::LocalMachine, run, L"FooTray" },
        { L"HKCU\\" + run + L"\\Foo Tray", true, Hive::CurrentUser, run, L"Foo Tray" },
        { L"HKLM\\SOFTWARE\\Uninstall\\{GUID}", true, Hive::LocalMachine, L"SOFTWARE\\Uninstall", L"{GUID}" },
        { L"hklm\\SOFTWARE\\Key", true, Hive::CurrentUser, L"SOFTWARE", L"Key" }, // the tag is case-sensitive
        { L"HKLM\\" + run + L"\\", false, Hive::LocalMachine, run, L"" }, // never the whole parent
        { L"HKLM\\SOFTWARE", false, Hive::LocalMachine, L"", L"" },
        { L"HKLM", false, Hive::LocalMachine, L"", L"" },
    };
    for (const auto& [text, valid, hive, parent, leaf] : rows) {
        const traces::RegistryLocation location = traces::parseRegistryLocation(text);
        EXPECT_EQ(location.valid, valid);
        if (valid) {
            EXPECT_EQ(std::tuple(location.hive, location.parent, location.leaf), std::tuple(hive, parent, leaf));
        }
    }
}

} // namespace
