// The raw reading behind the program inventory and the usage marks, for both registries: the
// sandbox natively, advapi32 under Wine.

#include "contract.h"

#include "platform/uninstallentries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using platform::Hive;
using platform::RawValue;
using platform::Registry;
using platform::Status;

namespace {

const std::wstring Prefix = L"NorvaleContract-";

std::wstring uninstallKey(const std::wstring& sub)
{
    return L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + Prefix + sub;
}

std::vector<std::uint8_t> record(std::size_t bytes, std::uint64_t fileTime)
{
    std::vector<std::uint8_t> data(bytes, 0x5A);
    for (std::size_t i = 0; i < 8 && 16 + i < bytes; ++i)
        data[16 + i] = static_cast<std::uint8_t>(fileTime >> (8 * i));
    return data;
}

class UninstallEntriesContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_registry = contract::makeContractRegistry();
        ASSERT_TRUE(m_registry);
        removeOurs();
    }
    void TearDown() override
    {
        if (m_registry)
            removeOurs();
    }

    Registry& reg() { return *m_registry; }

    // Only what these cases wrote: the Wine lane's registry is shared by the whole prefix.
    void removeOurs()
    {
        for (const platform::UninstallRoot& root : platform::uninstallRoots()) {
            if (auto names = reg().subKeys(root.hive, root.path)) {
                for (const std::wstring& name : *names) {
                    if (name.rfind(Prefix, 0) == 0)
                        reg().deleteTree(root.hive, root.path + L"\\" + name);
                }
            }
        }
        for (const std::wstring& key : platform::userAssistCountKeys()) {
            if (auto values = reg().enumValues(Hive::CurrentUser, key, 4096, 4096)) {
                for (const auto& v : *values) {
                    if (v.status == Status::Ok && v.value.name.rfind(Prefix, 0) == 0)
                        reg().deleteValue(Hive::CurrentUser, key, v.value.name);
                }
            }
        }
    }

    std::vector<platform::UninstallEntry> ours()
    {
        std::vector<platform::UninstallEntry> out;
        for (auto& e : platform::readUninstallEntries(reg())) {
            if (e.keyPath.find(L"\\" + Prefix) != std::wstring::npos)
                out.push_back(std::move(e));
        }
        return out;
    }

    std::map<std::wstring, std::uint64_t> userAssist()
    {
        std::map<std::wstring, std::uint64_t> out;
        for (const auto& v : platform::readUserAssistValues(reg())) {
            if (v.encodedName.rfind(Prefix, 0) == 0)
                out[v.encodedName.substr(Prefix.size())] = v.lastRun;
        }
        return out;
    }

private:
    std::unique_ptr<Registry> m_registry;
};

TEST_F(UninstallEntriesContract, ReadsEveryValueOfAnEntry)
{
    const std::wstring key = uninstallKey(L"Full");
    ASSERT_EQ(reg().setString(Hive::LocalMachine, key, L"DisplayName", L" Sample Viewer "), Status::Ok);
    reg().setString(Hive::LocalMachine, key, L"Publisher", L"Brightfen Test");
    reg().setString(Hive::LocalMachine, key, L"DisplayVersion", L"1.2.3");
    reg().setString(Hive::LocalMachine, key, L"InstallDate", L"20240131");
    reg().setString(Hive::LocalMachine, key, L"UninstallString", L"MsiExec.exe /I{GUID}", platform::TypeExpandString);
    reg().setString(Hive::LocalMachine, key, L"DisplayIcon", L"C:\\App\\app.exe,-101");
    reg().setString(Hive::LocalMachine, key, L"InstallLocation", L"C:\\App\\");
    reg().setDword(Hive::LocalMachine, key, L"EstimatedSize", 2048);
    reg().setDword(Hive::LocalMachine, key, L"SystemComponent", 0);
    reg().setDword(Hive::LocalMachine, key, L"NoRemove", 1);
    reg().setString(Hive::LocalMachine, key, L"ParentKeyName", L"Suite");

    const auto entries = ours();
    ASSERT_EQ(entries.size(), 1u);
    const auto& e = entries[0];
    EXPECT_EQ(e.hive, Hive::LocalMachine);
    EXPECT_EQ(e.displayName, L" Sample Viewer "); // trimming is the inventory's business
    EXPECT_EQ(e.publisher, L"Brightfen Test");
    EXPECT_EQ(e.displayVersion, L"1.2.3");
    EXPECT_EQ(e.installDate, L"20240131");
    EXPECT_EQ(e.uninstallString, L"MsiExec.exe /I{GUID}");
    EXPECT_EQ(e.displayIcon, L"C:\\App\\app.exe,-101");
    EXPECT_EQ(e.installLocation, L"C:\\App\\");
    EXPECT_EQ(e.parentKeyName, L"Suite");
    EXPECT_EQ(e.estimatedSize, 2048u);
    EXPECT_EQ(e.systemComponent, 0u);
    EXPECT_EQ(e.noRemove, 1u);
}

TEST_F(UninstallEntriesContract, OddValuesReadAsMissing)
{
    const std::wstring key = uninstallKey(L"Odd");
    // A name that fills the 2,048-byte buffer exactly, with no terminator, still reads.
    const std::wstring full(1024, L'N');
    reg().setValue(Hive::CurrentUser, key,
        RawValue { L"DisplayName", platform::TypeString, platform::encodeRegistryString(full, false) });
    reg().setString(Hive::CurrentUser, key, L"Publisher", std::wstring(1024, L'P')); // 2,050 bytes: too long
    reg().setDword(Hive::CurrentUser, key, L"DisplayVersion", 7); // not a string
    reg().setValue(Hive::CurrentUser, key,
        RawValue { L"InstallDate", platform::TypeString, platform::encodeRegistryString(L"2024", false) });
    reg().setString(Hive::CurrentUser, key, L"SystemComponent", L"1"); // not a DWORD
    reg().setQword(Hive::CurrentUser, key, L"EstimatedSize", 5); // wider than a DWORD
    reg().setBinary(Hive::CurrentUser, key, L"NoRemove", { 1, 0 }); // shorter than a DWORD

    const auto entries = ours();
    ASSERT_EQ(entries.size(), 1u);
    const auto& e = entries[0];
    EXPECT_EQ(e.hive, Hive::CurrentUser);
    EXPECT_EQ(e.displayName, full);
    EXPECT_EQ(e.publisher, L"");
    EXPECT_EQ(e.displayVersion, L"");
    EXPECT_EQ(e.installDate, L"2024");
    EXPECT_EQ(e.uninstallString, L"");
    EXPECT_FALSE(e.systemComponent.has_value());
    EXPECT_FALSE(e.estimatedSize.has_value());
    EXPECT_FALSE(e.noRemove.has_value());
}

TEST_F(UninstallEntriesContract, RootsAreReadInOrder)
{
    reg().setString(Hive::CurrentUser, uninstallKey(L"C"), L"DisplayName", L"user");
    reg().setString(Hive::LocalMachine,
        L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + Prefix + L"B", L"DisplayName",
        L"machine 32");
    reg().setString(Hive::LocalMachine, uninstallKey(L"A"), L"DisplayName", L"machine");
    const auto entries = ours();
    std::vector<std::wstring> names;
    for (const auto& e : entries)
        names.push_back(e.displayName);
    EXPECT_EQ(names, (std::vector<std::wstring> { L"machine", L"machine 32", L"user" }));
}

TEST_F(UninstallEntriesContract, UserAssistKeepsOnlyRecordsThatFitTheBuffer)
{
    const std::wstring key = platform::userAssistCountKeys()[0];
    const std::uint64_t t = 133500000000000000ULL; // early 2024
    ASSERT_EQ(reg().setBinary(Hive::CurrentUser, key, Prefix + L"min", record(24, t)), Status::Ok);
    reg().setBinary(Hive::CurrentUser, key, Prefix + L"max", record(64, t + 1));
    reg().setBinary(Hive::CurrentUser, key, Prefix + L"modern", record(72, t)); // does not fit 64 bytes
    reg().setBinary(Hive::CurrentUser, key, Prefix + L"short", record(23, t));
    reg().setBinary(Hive::CurrentUser, key, Prefix + L"zero", record(64, 0));
    reg().setString(Hive::CurrentUser, key, Prefix + L"text", std::wstring(20, L'x'));
    reg().setBinary(Hive::CurrentUser, key, Prefix + std::wstring(2100, L'n'), record(64, t)); // name too long
    reg().setBinary(Hive::CurrentUser, platform::userAssistCountKeys()[1], Prefix + L"second", record(40, t + 2));

    const auto values = userAssist();
    const std::map<std::wstring, std::uint64_t> expected
        = { { L"min", t }, { L"max", t + 1 }, { L"zero", 0 }, { L"second", t + 2 } };
    EXPECT_EQ(values, expected);

    // The oversized record is really there: it is the buffer, not the writer, that drops it.
    RawValue raw;
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, key, Prefix + L"modern", 72, raw), Status::Ok);
    EXPECT_EQ(raw.data.size(), 72u);
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, key, Prefix + L"modern", 64, raw), Status::MoreData);
}

} // namespace
