// Reading the inventory and usage marks, and running uninstallers, in both lanes. Under Wine the
// uninstaller is a real stand-in program; in the sandbox it is played.

#include "contract.h"

#include "platform/launcher.h"
#include "platform/uninstallentries.h"

#ifdef _WIN32
#include "platform/win/winlauncher.h"
#include <windows.h>
#else
#include "platform/sandbox/sandboxlauncher.h"
#include <cstdlib>
#endif

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <map>

namespace fs = std::filesystem;
using platform::Hive;
using platform::Status;

namespace {

const std::wstring Prefix = L"NorvaleContract-";
const std::wstring Long(2100, L'n'); // a value name longer than the 2,048-character buffer

class UninstallEntriesContract : public ::testing::Test {
protected:
    // Only what these cases wrote: the Wine lane's registry is shared by the whole prefix.
    void TearDown() override
    {
        for (const platform::UninstallRoot& root : platform::uninstallRoots())
            for (const wchar_t* name : { L"Full", L"B", L"Odd", L"S" })
                reg().deleteTree(root.hive, root.path + L"\\" + Prefix + name);
        for (const std::wstring& key : platform::userAssistCountKeys())
            for (const std::wstring& name :
                std::vector<std::wstring> { L"min", L"max", L"modern", L"short", L"zero", L"second", L"text", Long })
                reg().deleteValue(Hive::CurrentUser, key, Prefix + name);
    }
    platform::Registry& reg() { return *m_registry; }

    std::unique_ptr<platform::Registry> m_registry = contract::makeContractRegistry();
};

TEST_F(UninstallEntriesContract, ReadsEveryRootInOrderAndOddValuesAsMissing)
{
    const std::wstring root = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + Prefix;
    const std::wstring key = root + L"Full";
    ASSERT_EQ(reg().setString(Hive::LocalMachine, key, L"DisplayName", L" Sample Viewer "), Status::Ok);
    reg().setString(Hive::LocalMachine, key, L"DisplayVersion", L"1.2.3");
    reg().setString(Hive::LocalMachine, key, L"UninstallString", L"MsiExec.exe /I{GUID}", platform::TypeExpandString);
    reg().setDword(Hive::LocalMachine, key, L"EstimatedSize", 2048);
    reg().setDword(Hive::LocalMachine, key, L"SystemComponent", 0);
    reg().setDword(Hive::LocalMachine, key, L"NoRemove", 1);
    reg().setString(Hive::LocalMachine,
        L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + Prefix + L"B", L"DisplayName",
        L"32");
    const std::wstring odd = root + L"Odd";
    // A name that fills the 2,048-byte buffer exactly, with no terminator, still reads.
    const std::wstring full(1024, L'N');
    reg().setValue(
        Hive::CurrentUser, odd, { L"DisplayName", platform::TypeString, platform::encodeRegistryString(full, false) });
    reg().setString(Hive::CurrentUser, odd, L"Publisher", std::wstring(1024, L'P')); // 2,050 bytes: too long
    reg().setDword(Hive::CurrentUser, odd, L"DisplayVersion", 7); // not a string
    reg().setString(Hive::CurrentUser, odd, L"SystemComponent", L"1"); // not a DWORD
    reg().setQword(Hive::CurrentUser, odd, L"EstimatedSize", 5); // wider than a DWORD
    reg().setBinary(Hive::CurrentUser, odd, L"NoRemove", { 1, 0 }); // shorter than a DWORD

    std::vector<platform::UninstallEntry> entries;
    for (auto& e : platform::readUninstallEntries(reg()))
        if (e.keyPath.find(L"\\" + Prefix) != std::wstring::npos)
            entries.push_back(std::move(e));
    ASSERT_EQ(entries.size(), 3u);
    const auto& e = entries[0];
    // Trimming is the inventory's business.
    EXPECT_EQ(
        (std::vector<std::wstring> { e.displayName, e.displayVersion, e.uninstallString, entries[1].displayName }),
        (std::vector<std::wstring> { L" Sample Viewer ", L"1.2.3", L"MsiExec.exe /I{GUID}", L"32" }));
    EXPECT_EQ(std::tuple(e.estimatedSize, e.systemComponent, e.noRemove), std::tuple(2048u, 0u, 1u));
    const auto& o = entries[2];
    EXPECT_EQ(std::tuple(e.hive, o.hive), std::tuple(Hive::LocalMachine, Hive::CurrentUser));
    EXPECT_EQ(o.displayName, full);
    EXPECT_EQ(o.publisher + o.displayVersion + o.uninstallString, L"");
    EXPECT_FALSE(o.systemComponent || o.estimatedSize || o.noRemove);
}

TEST_F(UninstallEntriesContract, StopEndsTheReadingAtTheNextEntry)
{
    const std::wstring root = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + Prefix;
    reg().setString(Hive::LocalMachine, root + L"S", L"DisplayName", L"Stopped");
    const auto ours = [](const std::vector<platform::UninstallEntry>& entries) {
        return std::count_if(entries.begin(), entries.end(),
            [](const platform::UninstallEntry& e) { return e.keyPath.find(L"\\" + Prefix) != std::wstring::npos; });
    };
    std::atomic<bool> stop { false };
    EXPECT_EQ(ours(platform::readUninstallEntries(reg(), &stop)), 1);
    stop = true;
    EXPECT_EQ(platform::readUninstallEntries(reg(), &stop).size(), 0u);
}

TEST_F(UninstallEntriesContract, UserAssistKeepsOnlyRecordsThatFitTheBuffer)
{
    const std::uint64_t t = 133500000000000000ULL; // early 2024
    const std::wstring key0 = platform::userAssistCountKeys()[0];
    auto put = [&](int key, const std::wstring& name, std::size_t bytes, std::uint64_t fileTime) {
        std::vector<std::uint8_t> data(bytes, 0x5A);
        for (std::size_t i = 0; i < 8 && 16 + i < bytes; ++i)
            data[16 + i] = std::uint8_t(fileTime >> (8 * i));
        return reg().setBinary(Hive::CurrentUser, platform::userAssistCountKeys()[key], Prefix + name, data);
    };
    ASSERT_EQ(put(0, L"min", 24, t), Status::Ok);
    put(0, L"max", 64, t + 1);
    put(0, L"modern", 72, t); // does not fit 64 bytes
    put(0, L"short", 23, t);
    put(0, L"zero", 64, 0);
    put(0, Long, 64, t);
    put(1, L"second", 40, t + 2);
    reg().setString(Hive::CurrentUser, key0, Prefix + L"text", std::wstring(20, L'x'));

    std::map<std::wstring, std::uint64_t> values;
    for (const auto& v : platform::readUserAssistValues(reg()))
        if (v.encodedName.rfind(Prefix, 0) == 0)
            values[v.encodedName.substr(Prefix.size())] = v.lastRun;
    EXPECT_EQ(values,
        (std::map<std::wstring, std::uint64_t> {
            { L"min", t }, { L"max", t + 1 }, { L"zero", 0 }, { L"second", t + 2 } }));
    // The oversized record is really there: it is the buffer, not the writer, that drops it.
    platform::RawValue raw;
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, key0, Prefix + L"modern", 64, raw), Status::MoreData);
}

struct Uninstaller {
    const char* name;
    std::uint32_t exitCode;
    bool removesFolder, outlastsTheWait;
};

class ProgramsContract : public ::testing::TestWithParam<Uninstaller> {
protected:
    void SetUp() override
    {
#ifdef _WIN32
        wchar_t temp[MAX_PATH] = {};
        ASSERT_GT(GetTempPathW(MAX_PATH, temp), 0u);
        m_base = m_folder = fs::path(temp) / L"Norvale Fake App";
        m_launcher = std::make_unique<platform::WinLauncher>();
#else
        std::string pattern = (fs::temp_directory_path() / "norvale-programs-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_base = pattern;
        m_folder = m_base / "C" / "Fake App";
        m_launcher = std::make_unique<platform::SandboxLauncher>(m_base.wstring());
#endif
        fs::create_directories(m_folder);
        std::ofstream(m_folder / "app.exe") << "MZ";
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(m_base, ignored);
    }

    platform::ShellExecuteResult run(const std::wstring& file, const std::wstring& parameters, std::uint32_t timeoutMs)
    {
        // The caller logs that it waits from here: the uninstaller must not have done its work yet.
        auto started = [this] { m_startedWithFolder.push_back(fs::exists(m_folder)); };
        return m_launcher->shellExecuteAndWait(
            { L"open", file, parameters, L"", platform::ShowNormal, started }, timeoutMs);
    }

    std::vector<bool> m_startedWithFolder;
    fs::path m_base, m_folder;
    std::unique_ptr<platform::Launcher> m_launcher;
};

TEST_P(ProgramsContract, ReportsWhatTheUninstallerDid)
{
    const Uninstaller& u = GetParam();
#ifdef _WIN32
    const std::wstring folder = u.removesFolder ? L"--delete \"" + m_folder.wstring() + L"\" " : L"";
    const std::string helper = NORVALE_HELPER_FAKE_UNINSTALLER;
    const auto result = run(std::wstring(helper.begin(), helper.end()),
        (u.outlastsTheWait ? L"--sleep 3000 " : L"--sleep 300 ") + folder + L"--exit " + std::to_wstring(u.exitCode),
        u.outlastsTheWait ? 200 : 60000);
#else
    std::ofstream(m_folder / "unins.exe") << "MZ";
    std::ofstream(m_folder / "unins.exe.demo-uninstall")
        << (u.outlastsTheWait ? "running=1\n" : "") << "exit=" << u.exitCode
        << (u.removesFolder ? "\ndelete=C:\\Fake App" : "");
    const auto result = run(L"C:\\Fake App\\unins.exe", L"/S", 1000);
#endif
    ASSERT_TRUE(result.started) << result.error;
    EXPECT_EQ(m_startedWithFolder, std::vector<bool> { true });
    EXPECT_EQ(result.waitResult, u.outlastsTheWait ? platform::WaitTimeout : platform::WaitObject0);
    EXPECT_EQ(result.exitCode, u.outlastsTheWait ? platform::StillActive : u.exitCode);
    EXPECT_EQ(fs::exists(m_folder), !u.removesFolder);
}

INSTANTIATE_TEST_SUITE_P(Uninstallers, ProgramsContract,
    ::testing::Values(Uninstaller { "RemovesItsFolderAndExitsWithOne", 1, true, false },
        Uninstaller { "ExitsWithOneAndLeavesItsFolder", 1, false, false },
        Uninstaller { "OutlastsTheWait", 0, false, true }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ProgramsContract, MissingProgramIsNeverASuccessNorAnUnknownProduct)
{
    const auto missing = run(L"C:\\NorvaleNoSuchFolder\\uninstall.exe", L"/S", 60000);
    EXPECT_FALSE(missing.started);
    // Not always ERROR_FILE_NOT_FOUND: Wine reports failing to show its error box without a window.
    EXPECT_NE(missing.error, 0u);
    EXPECT_EQ(missing.exitCode, 1u); // never mistaken for success
    const auto msi = run(L"msiexec.exe", L"/X{4E5A1C0B-0000-4000-8000-00000000B0B0} /quiet /norestart", 60000);
    ASSERT_TRUE(msi.started);
    EXPECT_EQ(std::tuple(msi.waitResult, msi.exitCode), std::tuple(platform::WaitObject0, 1605u)); // unknown product
}

} // namespace
