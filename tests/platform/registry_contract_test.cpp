#include "contract.h"

#include "platform/strings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

using namespace platform;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Names = std::vector<std::wstring>;
constexpr Hive HKCU = Hive::CurrentUser;

class RegistryContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(reg().deleteTree(HKCU, base), Status::Ok);
        ASSERT_EQ(reg().createKey(HKCU, base), Status::Ok);
    }
    void TearDown() override { reg().deleteTree(HKCU, base); }

    Registry& reg() { return *m_registry; }
    std::wstring key(const std::wstring& sub) const { return base + L"\\" + sub; }

    const std::wstring base = L"Software\\Brightfen\\NorvaleContractTests"; // the tests' own
    std::unique_ptr<Registry> m_registry = contract::makeContractRegistry();
};

// The name buffer counts the terminator; the walk ends at the first name that does not fit.
TEST_F(RegistryContract, KeysAreCreatedWithParentsAndListedInNameOrderUntilANameDoesNotFit)
{
    ASSERT_EQ(reg().createKey(HKCU, L"\\" + base + L"\\\\Delta\\B\\C\\"), Status::Ok);
    EXPECT_TRUE(reg().keyExists(HKCU, key(L"delta\\b\\c")));
    for (const wchar_t* name : { L"alpha", L"CharlieLong", L"Bravo", L"DELTA" })
        ASSERT_EQ(reg().createKey(HKCU, key(name)), Status::Ok);
    EXPECT_EQ(reg().subKeys(HKCU, base, 12), (Names { L"alpha", L"Bravo", L"CharlieLong", L"Delta" }));
    EXPECT_EQ(reg().subKeys(HKCU, base, 11), (Names { L"alpha", L"Bravo" }));

    const std::wstring missing = key(L"Missing\\Deeper");
    EXPECT_FALSE(reg().subKeys(HKCU, missing).has_value());
    EXPECT_FALSE(reg().enumValues(HKCU, missing, 256, 256).has_value());
    RawValue v;
    EXPECT_EQ(reg().queryValue(HKCU, missing, L"x", 256, v), Status::NotFound);
}

// Names are created in name order here, so Wine's sorted enumeration agrees.
TEST_F(RegistryContract, ValuesReadBackExactlyAndTypedReadsCheckTheType)
{
    const std::vector<RawValue> written = { { L"", TypeExpandString, encodeRegistryString(L"%PATH%") },
        { L"Blob", TypeBinary, { 0, 0xFF, 0, 0x10 } }, { L"Dword", TypeDword, { 0xEF, 0xBE, 0xAD, 0xDE } },
        { L"Empty", TypeBinary, {} }, { L"Odd", 0x12345u, { 1, 2 } },
        { L"Qword", TypeQword, { 0xEF, 0xCD, 0xAB, 0x89, 0x67, 0x45, 0x23, 0x01 } },
        { L"Raw", TypeString, encodeRegistryString(L"abc", false) },
        { L"\u540d", TypeString, encodeRegistryString(L"\u6e05 \U0001F600") } };
    for (const RawValue& v : written)
        ASSERT_EQ(reg().setValue(HKCU, base, v), Status::Ok);
    const auto values = reg().enumValues(HKCU, base, 256, 4096);
    ASSERT_TRUE(values && values->size() == written.size());
    for (std::size_t i = 0; i < written.size(); ++i)
        EXPECT_EQ(
            std::tie((*values)[i].status, (*values)[i].value.name, (*values)[i].value.type, (*values)[i].value.data),
            std::make_tuple(Status::Ok, written[i].name, written[i].type, written[i].data));

    EXPECT_EQ(reg().readDword(HKCU, base, L"Dword"), 0xDEADBEEFu);
    EXPECT_EQ(reg().readQword(HKCU, base, L"Qword"), 0x0123456789ABCDEFull);
    EXPECT_EQ(reg().readString(HKCU, base, L""), L"%PATH%"); // never expanded here
    EXPECT_EQ(reg().readBinary(HKCU, base, L"Blob", 4), written[1].data);
    EXPECT_FALSE(reg().readDword(HKCU, base, L"Blob").has_value());
    EXPECT_FALSE(reg().readString(HKCU, base, L"Dword").has_value());
    ASSERT_EQ(reg().setDword(HKCU, base, L"dWORD", 7), Status::Ok); // overwrites: names ignore case
    EXPECT_EQ(reg().enumValues(HKCU, base, 256, 4096)->size(), written.size());
}

// A string read ends at the first zero or at the data's end, whichever comes first, and needs a
// buffer of exactly the stored size.
TEST_F(RegistryContract, StringReadsEndWithTheirDataAndAreNeverCutShort)
{
    const std::pair<Bytes, std::wstring> rows[] = { { encodeRegistryString(L"abc", false), L"abc" },
        { { 'a', 0, 'b', 0, 'c' }, L"ab" }, { { 'a', 0, 0, 0, 'b', 0 }, L"a" }, { {}, L"" } };
    for (const auto& [data, expected] : rows) {
        ASSERT_EQ(reg().setValue(HKCU, base, RawValue { L"S", TypeString, data }), Status::Ok);
        EXPECT_EQ(reg().readString(HKCU, base, L"S", std::max<std::size_t>(data.size(), 1)), expected);
    }

    const std::wstring text(100, L'x');
    const std::size_t bytes = 202; // with the terminator
    ASSERT_EQ(reg().setString(HKCU, base, L"Long", text), Status::Ok);
    EXPECT_EQ(reg().readString(HKCU, base, L"Long", bytes), text);
    EXPECT_FALSE(reg().readString(HKCU, base, L"Long", bytes - 1).has_value());
    RawValue v;
    EXPECT_EQ(reg().queryValue(HKCU, base, L"Long", bytes - 1, v), Status::MoreData);
}

// Values come as created, except under Wine, which sorts them by name; a value whose name or data
// does not fit is MoreData at its own index and the walk goes on.
TEST_F(RegistryContract, EnumerationGivesValuesInOrderAndMoreDataOnlyWhereTheyDoNotFit)
{
    ASSERT_EQ(reg().setString(HKCU, base, L"zeta", L"zz"), Status::Ok);
    ASSERT_EQ(reg().setBinary(HKCU, base, L"Big", Bytes(64, 0xAB)), Status::Ok);
    ASSERT_EQ(reg().setString(HKCU, base, L"", L"def"), Status::Ok);
    ASSERT_EQ(reg().setString(HKCU, base, L"VeryLongValueName", L"x"), Status::Ok);
    ASSERT_EQ(reg().setDword(HKCU, base, L"alpha", 5), Status::Ok);

    const auto values = reg().enumValues(HKCU, base, 16, 16);
    ASSERT_TRUE(values.has_value());
    Names seen; // the data's size shows it belongs to the name beside it
    for (const EnumeratedValue& e : *values)
        seen.push_back(
            e.status == Status::MoreData ? L"<more>" : e.value.name + L"=" + std::to_wstring(e.value.data.size()));
    EXPECT_EQ(seen,
        contract::valuesComeInCreationOrder() ? (Names { L"zeta=6", L"<more>", L"=8", L"<more>", L"alpha=4" })
                                              : (Names { L"=8", L"alpha=4", L"<more>", L"<more>", L"zeta=6" }));
}

TEST_F(RegistryContract, DeletesRemoveOnlyWhatTheyNameAndDeletingWhatIsGoneSucceeds)
{
    ASSERT_EQ(reg().setString(HKCU, key(L"Gone\\Child\\Grandchild"), L"v", L"x"), Status::Ok);
    ASSERT_EQ(reg().createKey(HKCU, key(L"Gone2")), Status::Ok); // a name that starts alike
    ASSERT_EQ(reg().setString(HKCU, base, L"", L"default"), Status::Ok);
    ASSERT_EQ(reg().setDword(HKCU, base, L"a", 1), Status::Ok);
    ASSERT_EQ(reg().setDword(HKCU, base, L"b", 2), Status::Ok);

    ASSERT_EQ(reg().deleteTree(HKCU, key(L"gone")), Status::Ok);
    ASSERT_EQ(reg().deleteValue(HKCU, base, L"A"), Status::Ok);
    ASSERT_EQ(reg().deleteValue(HKCU, base, L""), Status::Ok);
    EXPECT_FALSE(reg().keyExists(HKCU, key(L"Gone\\Child")));
    EXPECT_EQ(reg().subKeys(HKCU, base), (Names { L"Gone2" }));
    EXPECT_EQ(reg().enumValues(HKCU, base, 256, 256)->size(), 1u);

    EXPECT_EQ(reg().deleteValue(HKCU, base, L"a"), Status::Ok);
    EXPECT_EQ(reg().deleteValue(HKCU, key(L"NeverThere"), L"v"), Status::Ok);
    EXPECT_EQ(reg().deleteTree(HKCU, key(L"NeverThere\\Below")), Status::Ok);
    EXPECT_FALSE(reg().keyExists(HKCU, key(L"NeverThere"))); // and nothing got created

    // A path that names no key below the hive must never empty the hive.
    for (const wchar_t* hiveItself : { L"", L"\\", L"\\\\" })
        EXPECT_NE(reg().deleteTree(HKCU, hiveItself), Status::Ok);
    EXPECT_TRUE(reg().keyExists(HKCU, base));
}

} // namespace
