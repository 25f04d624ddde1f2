// Contract cases for reading the static system facts: seeded into a fresh sandbox registry
// natively, into the Wine prefix's real HKEY_LOCAL_MACHINE under Wine. Each case owns a set of
// keys no other case touches, because the lane may run cases side by side, and puts back what it
// found there.

#include "contract.h"

#include "platform/registry.h"
#include "platform/systemfacts.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using platform::Hive;
using platform::RawValue;
using platform::Registry;
using platform::Status;
using platform::SystemFacts;

namespace {

const std::wstring ProcessorKey = L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
const std::wstring VersionKey = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
const std::wstring ServicingKey = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing";
const std::wstring PackagesKey = ServicingKey + L"\\Packages";
const std::wstring CacheKey = ServicingKey + L"\\ApplicabilityEvaluationCache";

class SystemFactsContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_registry = contract::makeContractRegistry();
        ASSERT_TRUE(m_registry);
    }

    void TearDown() override
    {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it) {
            if (it->existed)
                reg().setValue(Hive::LocalMachine, it->key, it->value);
            else
                reg().deleteValue(Hive::LocalMachine, it->key, it->value.name);
        }
        for (const std::wstring& key : m_createdKeys)
            reg().deleteTree(Hive::LocalMachine, key);
    }

    Registry& reg() { return *m_registry; }

    // Remembers a value before the case changes it.
    void save(const std::wstring& key, const std::wstring& name)
    {
        Saved s { key, {}, false };
        s.existed = reg().queryValue(Hive::LocalMachine, key, name, 1 << 16, s.value) == Status::Ok;
        s.value.name = name;
        m_saved.push_back(s);
    }
    void setString(const std::wstring& key, const std::wstring& name, const std::wstring& text)
    {
        save(key, name);
        ASSERT_EQ(reg().setString(Hive::LocalMachine, key, name, text), Status::Ok);
    }
    // A key the case creates and removes again; false when it was there before the case.
    bool createOwnKey(const std::wstring& key)
    {
        if (reg().keyExists(Hive::LocalMachine, key))
            return false;
        m_createdKeys.push_back(key);
        return reg().createKey(Hive::LocalMachine, key) == Status::Ok;
    }

private:
    struct Saved {
        std::wstring key;
        RawValue value;
        bool existed;
    };
    std::unique_ptr<Registry> m_registry;
    std::vector<Saved> m_saved;
    std::vector<std::wstring> m_createdKeys;
};

} // namespace

TEST_F(SystemFactsContract, ProcessorNameComesBackAsStored)
{
    const std::wstring stored = L"  Intel(R) Core(TM)  i7-8700K CPU @ 3.70GHz ";
    setString(ProcessorKey, L"ProcessorNameString", stored);
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), stored);

    // 255 characters and the terminator fill the 512-byte buffer exactly; one more does not fit.
    setString(ProcessorKey, L"ProcessorNameString", std::wstring(255, L'x'));
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), std::wstring(255, L'x'));
    setString(ProcessorKey, L"ProcessorNameString", std::wstring(256, L'x'));
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), L"");

    save(ProcessorKey, L"ProcessorNameString");
    ASSERT_EQ(reg().setDword(Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", 7), Status::Ok);
    EXPECT_EQ(SystemFacts::readProcessorName(reg()), L"");
}

TEST_F(SystemFactsContract, WindowsVersionComesBackAsStored)
{
    setString(VersionKey, L"ProductName", L"Windows 10 Pro");
    setString(VersionKey, L"DisplayVersion", L" 23H2 ");
    setString(VersionKey, L"CurrentBuildNumber", L"22631");
    save(VersionKey, L"UBR");
    ASSERT_EQ(reg().setDword(Hive::LocalMachine, VersionKey, L"UBR", 4460), Status::Ok);

    auto v = SystemFacts::readWindowsVersion(reg());
    ASSERT_TRUE(v.has_value());
    EXPECT_EQ(v->productName, L"Windows 10 Pro");
    EXPECT_EQ(v->displayVersion, L" 23H2 ");
    EXPECT_EQ(v->buildNumber, L"22631");
    EXPECT_EQ(v->ubr, 4460u);

    // Windows 10 before 1607 had no UBR; a string where a number belongs counts as missing too.
    ASSERT_EQ(reg().deleteValue(Hive::LocalMachine, VersionKey, L"UBR"), Status::Ok);
    v = SystemFacts::readWindowsVersion(reg());
    ASSERT_TRUE(v.has_value());
    EXPECT_EQ(v->ubr, 0u);
    ASSERT_EQ(reg().setString(Hive::LocalMachine, VersionKey, L"UBR", L"4460"), Status::Ok);
    EXPECT_EQ(SystemFacts::readWindowsVersion(reg())->ubr, 0u);
}

TEST_F(SystemFactsContract, InstalledUpdatesFromServicingPackages)
{
    if (reg().keyExists(Hive::LocalMachine, ServicingKey))
        GTEST_SKIP() << "the machine has servicing data of its own, so counts cannot be chosen";
    ASSERT_TRUE(createOwnKey(ServicingKey));
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 0u);

    for (const wchar_t* name : { L"Package_for_KB5031356~31bf3856ad364e35~amd64~~22621.2428.1.0",
             L"package_for_kb5032007~31bf3856ad364e35~amd64~~22621.2500.1.1",
             L"Package_for_ServicingStack_Kb5031005~31bf3856ad364e35~amd64~~22621.2423.1.0",
             L"Microsoft-Windows-Foundation-Package~31bf3856ad364e35~amd64~~10.0.22621.1",
             L"Package_for_RollupFix~31bf3856ad364e35~amd64~~22621.2715.1.12" })
        ASSERT_EQ(reg().createKey(Hive::LocalMachine, PackagesKey + L"\\" + name), Status::Ok);
    for (int i = 0; i < 4; ++i)
        ASSERT_EQ(reg().createKey(Hive::LocalMachine, CacheKey + L"\\Entry" + std::to_wstring(i)), Status::Ok);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 3u);

    // Without a single KB package the evaluation cache stands in.
    ASSERT_EQ(reg().deleteTree(Hive::LocalMachine, PackagesKey), Status::Ok);
    ASSERT_EQ(reg().createKey(Hive::LocalMachine, PackagesKey + L"\\Package_for_RollupFix"), Status::Ok);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 4u);
    ASSERT_EQ(reg().deleteTree(Hive::LocalMachine, PackagesKey), Status::Ok);
    EXPECT_EQ(SystemFacts::countInstalledUpdates(reg()), 4u);
}
