// The facts as read from the lane's registry: a fresh sandbox natively, the Wine prefix's real
// HKEY_LOCAL_MACHINE under Wine, so each case puts back what it found there.

#include "contract.h"

#include "platform/registry.h"
#include "platform/systemfacts.h"

#include <gtest/gtest.h>

#include <vector>

using platform::Hive;
using platform::Status;
using platform::SystemFacts;

namespace {

const std::wstring ProcessorKey = L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
const std::wstring VersionKey = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

// Every value the cases change, put back after each case.
const std::pair<std::wstring, const wchar_t*> Touched[]
    = { { ProcessorKey, L"ProcessorNameString" }, { VersionKey, L"ProductName" }, { VersionKey, L"DisplayVersion" },
          { VersionKey, L"CurrentBuildNumber" }, { VersionKey, L"UBR" } };

class SystemFactsContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_registry);
        for (const auto& [key, name] : Touched) {
            platform::RawValue old; // named by the query when found
            const bool found = reg().queryValue(Hive::LocalMachine, key, name, 1 << 16, old) == Status::Ok;
            m_saved.push_back(found ? std::optional(old) : std::nullopt);
        }
    }
    void TearDown() override
    {
        for (std::size_t i = 0; i < m_saved.size(); ++i)
            m_saved[i] ? reg().setValue(Hive::LocalMachine, Touched[i].first, *m_saved[i])
                       : reg().deleteValue(Hive::LocalMachine, Touched[i].first, Touched[i].second);
    }

    platform::Registry& reg() { return *m_registry; }
    std::unique_ptr<platform::Registry> m_registry = contract::makeContractRegistry();
    std::vector<std::optional<platform::RawValue>> m_saved;
};

} // namespace

TEST_F(SystemFactsContract, ProcessorAndWindowsVersionComeBackAsStored)
{
    // Untouched, and 255 characters with the terminator fill the 512-byte buffer; one more does not fit.
    const std::wstring stored = L"  Intel(R) Core(TM)  i7 " + std::wstring(231, L'x');
    ASSERT_EQ(reg().setString(Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", stored), Status::Ok);
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), stored);
    ASSERT_EQ(reg().setString(Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", stored + L"x"), Status::Ok);
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), L"");
    ASSERT_EQ(reg().setDword(Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", 7), Status::Ok);
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), L"");

    ASSERT_EQ(reg().setString(Hive::LocalMachine, VersionKey, L"ProductName", L"Windows 10 Pro"), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::LocalMachine, VersionKey, L"DisplayVersion", L" 23H2 "), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::LocalMachine, VersionKey, L"CurrentBuildNumber", L"22631"), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::LocalMachine, VersionKey, L"UBR", 4460), Status::Ok);
    const auto v = SystemFacts::readWindowsVersion(reg()).value();
    EXPECT_EQ(v.productName + L"|" + v.displayVersion + L"|" + v.buildNumber, L"Windows 10 Pro| 23H2 |22631");
    EXPECT_EQ(v.ubr, 4460u);

    // Windows 10 before 1607 had no UBR; a string where a number belongs counts as missing too.
    ASSERT_EQ(reg().deleteValue(Hive::LocalMachine, VersionKey, L"UBR"), Status::Ok);
    EXPECT_EQ(SystemFacts::readWindowsVersion(reg()).value().ubr, 0u);
    ASSERT_EQ(reg().setString(Hive::LocalMachine, VersionKey, L"UBR", L"4460"), Status::Ok);
    EXPECT_EQ(SystemFacts::readWindowsVersion(reg()).value().ubr, 0u);
}

// Installed updates: packages whose names hold "KB" in any case; with none, the evaluation cache's
// subkey count. The Wine prefix is thrown away after the run, so the case owns both keys.
TEST_F(SystemFactsContract, UpdatesCountKbPackagesElseTheEvaluationCache)
{
    const std::wstring servicing = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing";
    const std::wstring packages = servicing + L"\\Packages";
    const std::wstring cache = servicing + L"\\ApplicabilityEvaluationCache";
    reg().deleteTree(Hive::LocalMachine, packages);
    reg().deleteTree(Hive::LocalMachine, cache);
    for (const wchar_t* name : { L"Package_for_KB5031356~31bf", L"Package_for_kb890830", L"Microsoft-Windows-Foo" })
        ASSERT_EQ(reg().createKey(Hive::LocalMachine, packages + L"\\" + name), Status::Ok);
    for (const wchar_t* name : { L"A", L"B", L"C" })
        ASSERT_EQ(reg().createKey(Hive::LocalMachine, cache + L"\\" + name), Status::Ok);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 2u);

    reg().deleteTree(Hive::LocalMachine, packages + L"\\Package_for_KB5031356~31bf");
    reg().deleteTree(Hive::LocalMachine, packages + L"\\Package_for_kb890830");
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 3u); // no KB package: the cache decides
    reg().deleteTree(Hive::LocalMachine, packages);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 3u); // no Packages key at all
    reg().deleteTree(Hive::LocalMachine, cache);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 0u);
}
