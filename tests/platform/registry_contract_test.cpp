// One set of registry cases for every implementation: the sandbox natively, advapi32 under Wine.

#include "contract.h"

#include "platform/strings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using platform::EnumeratedValue;
using platform::Hive;
using platform::RawValue;
using platform::Registry;
using platform::Status;

namespace {

std::vector<std::uint8_t> utf16(const std::wstring& text, bool terminate = true)
{
    return platform::encodeRegistryString(text, terminate);
}

class RegistryContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_registry = contract::makeContractRegistry();
        ASSERT_TRUE(m_registry);
        ASSERT_EQ(reg().deleteTree(Hive::CurrentUser, base()), Status::Ok);
        ASSERT_EQ(reg().createKey(Hive::CurrentUser, base()), Status::Ok);
    }
    void TearDown() override
    {
        if (m_registry)
            m_registry->deleteTree(Hive::CurrentUser, base());
    }

    Registry& reg() { return *m_registry; }
    static std::wstring base() { return contract::contractBaseKey(); }
    static std::wstring key(const std::wstring& sub) { return base() + L"\\" + sub; }

private:
    std::unique_ptr<Registry> m_registry;
};

TEST_F(RegistryContract, CreateKeyMakesEveryMissingParent)
{
    ASSERT_EQ(reg().createKey(Hive::CurrentUser, key(L"A\\B\\C")), Status::Ok);
    EXPECT_TRUE(reg().keyExists(Hive::CurrentUser, key(L"A")));
    EXPECT_TRUE(reg().keyExists(Hive::CurrentUser, key(L"a\\b\\c"))); // names compare without case
    EXPECT_EQ(reg().subKeyCount(Hive::CurrentUser, base()), 1u);
    EXPECT_EQ(reg().subKeyCount(Hive::CurrentUser, key(L"A\\B\\C")), 0u);
    // Creating what exists changes nothing.
    ASSERT_EQ(reg().createKey(Hive::CurrentUser, key(L"A")), Status::Ok);
    EXPECT_EQ(reg().subKeyCount(Hive::CurrentUser, key(L"A")), 1u);
}

TEST_F(RegistryContract, MissingKeyIsReportedByEveryReader)
{
    const std::wstring missing = key(L"Missing\\Deeper");
    EXPECT_FALSE(reg().keyExists(Hive::CurrentUser, missing));
    EXPECT_FALSE(reg().subKeys(Hive::CurrentUser, missing).has_value());
    EXPECT_FALSE(reg().subKeyCount(Hive::CurrentUser, missing).has_value());
    EXPECT_FALSE(reg().enumValues(Hive::CurrentUser, missing, 256, 256).has_value());
    RawValue v;
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, missing, L"x", 256, v), Status::NotFound);
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, base(), L"x", 256, v), Status::NotFound);
    EXPECT_FALSE(reg().readString(Hive::CurrentUser, base(), L"x").has_value());
}

TEST_F(RegistryContract, PathsWithStraySeparatorsNameTheSameKey)
{
    ASSERT_EQ(reg().createKey(Hive::CurrentUser, L"\\" + base() + L"\\\\Odd\\"), Status::Ok);
    EXPECT_TRUE(reg().keyExists(Hive::CurrentUser, key(L"Odd")));
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, key(L"Odd\\"), L"n", 7), Status::Ok);
    EXPECT_EQ(reg().readDword(Hive::CurrentUser, key(L"Odd"), L"n"), 7u);
}

TEST_F(RegistryContract, SubKeysComeInCaseInsensitiveNameOrder)
{
    for (const wchar_t* name : { L"delta", L"Alpha", L"charlie", L"10", L"Bravo", L"alpha2", L"9" })
        ASSERT_EQ(reg().createKey(Hive::CurrentUser, key(name)), Status::Ok);
    const auto names = reg().subKeys(Hive::CurrentUser, base());
    ASSERT_TRUE(names.has_value());
    const std::vector<std::wstring> expected { L"10", L"9", L"Alpha", L"alpha2", L"Bravo", L"charlie", L"delta" };
    EXPECT_EQ(*names, expected);
}

struct SubKeyLimitRow {
    const char* name;
    std::size_t maxNameChars;
    std::vector<std::wstring> expected;
};

class SubKeyNameLimit : public RegistryContract, public ::testing::WithParamInterface<SubKeyLimitRow> { };

// The name buffer counts the terminator; the walk ends at the first name that does not fit,
// even when later names would.
TEST_P(SubKeyNameLimit, WalkStopsAtFirstNameThatDoesNotFit)
{
    for (const wchar_t* name : { L"Alpha", L"Bravo", L"CharlieLong", L"Delta" })
        ASSERT_EQ(reg().createKey(Hive::CurrentUser, key(name)), Status::Ok);
    const auto names = reg().subKeys(Hive::CurrentUser, base(), GetParam().maxNameChars);
    ASSERT_TRUE(names.has_value());
    EXPECT_EQ(*names, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SubKeyNameLimit,
    ::testing::Values(SubKeyLimitRow { "everything_fits", 12, { L"Alpha", L"Bravo", L"CharlieLong", L"Delta" } },
        SubKeyLimitRow { "no_room_for_terminator", 11, { L"Alpha", L"Bravo" } },
        SubKeyLimitRow { "short_names_exactly_fit", 6, { L"Alpha", L"Bravo" } },
        SubKeyLimitRow { "first_name_too_long", 5, {} }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(RegistryContract, ValuesComeInCreationOrderOrNameOrderUnderWine)
{
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"zeta", L"last letter"), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"Alpha", 1), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"", L"default"), Status::Ok);
    ASSERT_EQ(reg().setBinary(Hive::CurrentUser, base(), L"mid", { 1, 2, 3 }), Status::Ok);
    const auto values = reg().enumValues(Hive::CurrentUser, base(), 256, 256);
    ASSERT_TRUE(values.has_value());
    std::vector<std::wstring> names;
    for (const EnumeratedValue& e : *values) {
        EXPECT_EQ(e.status, Status::Ok);
        names.push_back(e.value.name);
    }
    if (contract::valuesComeInCreationOrder()) {
        EXPECT_EQ(names, (std::vector<std::wstring> { L"zeta", L"Alpha", L"", L"mid" }));
    } else {
        EXPECT_EQ(names, (std::vector<std::wstring> { L"", L"Alpha", L"mid", L"zeta" }));
    }
    const auto mid = std::find_if(values->begin(), values->end(), [](const auto& e) { return e.value.name == L"mid"; });
    ASSERT_NE(mid, values->end());
    EXPECT_EQ(mid->value.type, platform::TypeBinary);
    EXPECT_EQ(mid->value.data, (std::vector<std::uint8_t> { 1, 2, 3 }));
}

struct StoredValueRow {
    const char* name;
    RawValue value;
};

class StoredValue : public RegistryContract, public ::testing::WithParamInterface<StoredValueRow> { };

// Whatever is written comes back byte for byte with its type, through queryValue and through
// enumeration alike.
TEST_P(StoredValue, ReadsBackExactly)
{
    const RawValue& written = GetParam().value;
    ASSERT_EQ(reg().setValue(Hive::CurrentUser, base(), written), Status::Ok);
    RawValue read;
    ASSERT_EQ(reg().queryValue(Hive::CurrentUser, base(), written.name, 4096, read), Status::Ok);
    EXPECT_EQ(read.type, written.type);
    EXPECT_EQ(read.data, written.data);
    const auto values = reg().enumValues(Hive::CurrentUser, base(), 256, 4096);
    ASSERT_TRUE(values.has_value());
    ASSERT_EQ(values->size(), 1u);
    EXPECT_EQ(values->front().status, Status::Ok);
    EXPECT_EQ(values->front().value.name, written.name);
    EXPECT_EQ(values->front().value.type, written.type);
    EXPECT_EQ(values->front().value.data, written.data);
}

INSTANTIATE_TEST_SUITE_P(Rows, StoredValue,
    ::testing::Values(StoredValueRow { "string", { L"DisplayName", platform::TypeString, utf16(L"Norvale 7.0") } },
        StoredValueRow { "expand_string", { L"UninstallString", platform::TypeExpandString, utf16(L"%TEMP%\\x.exe") } },
        StoredValueRow {
            "non_ascii_string", { L"\u540d\u79f0", platform::TypeString, utf16(L"\u6e05\u7406 \U0001F600") } },
        StoredValueRow {
            "multi_string", { L"Multi", platform::TypeMultiString, { 'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0 } } },
        StoredValueRow { "unterminated_string", { L"Raw", platform::TypeString, utf16(L"abc", false) } },
        StoredValueRow { "empty_binary", { L"Empty", platform::TypeBinary, {} } },
        StoredValueRow { "binary_with_zeros", { L"Blob", platform::TypeBinary, { 0, 0xFF, 0, 0x10, 0 } } },
        StoredValueRow { "default_value", { L"", platform::TypeString, utf16(L"default") } },
        StoredValueRow { "odd_type_number", { L"Odd", 0x12345u, { 1, 2 } } }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(RegistryContract, TypedReadsDecodeLittleEndianAndCheckTheType)
{
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"Dword", 0xDEADBEEFu), Status::Ok);
    ASSERT_EQ(reg().setQword(Hive::CurrentUser, base(), L"Qword", 0x0123456789ABCDEFull), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"Text", L"42"), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"Expand", L"%PATH%", platform::TypeExpandString), Status::Ok);
    ASSERT_EQ(reg().setBinary(Hive::CurrentUser, base(), L"FourBytes", { 1, 0, 0, 0 }), Status::Ok);

    EXPECT_EQ(reg().readDword(Hive::CurrentUser, base(), L"Dword"), 0xDEADBEEFu);
    EXPECT_EQ(reg().readQword(Hive::CurrentUser, base(), L"Qword"), 0x0123456789ABCDEFull);
    EXPECT_EQ(reg().readString(Hive::CurrentUser, base(), L"Text"), L"42");
    EXPECT_EQ(reg().readString(Hive::CurrentUser, base(), L"Expand"), L"%PATH%"); // never expanded here
    EXPECT_EQ(reg().readBinary(Hive::CurrentUser, base(), L"FourBytes", 4), (std::vector<std::uint8_t> { 1, 0, 0, 0 }));

    EXPECT_FALSE(reg().readDword(Hive::CurrentUser, base(), L"Text").has_value());
    EXPECT_FALSE(reg().readDword(Hive::CurrentUser, base(), L"FourBytes").has_value());
    EXPECT_FALSE(reg().readDword(Hive::CurrentUser, base(), L"Qword").has_value());
    EXPECT_FALSE(reg().readQword(Hive::CurrentUser, base(), L"Dword").has_value());
    EXPECT_FALSE(reg().readString(Hive::CurrentUser, base(), L"Dword").has_value());
}

TEST_F(RegistryContract, ValueNamesIgnoreCaseOnOverwrite)
{
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"Version", L"1.0"), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"VERSION", 2), Status::Ok);
    const auto values = reg().enumValues(Hive::CurrentUser, base(), 256, 256);
    ASSERT_TRUE(values.has_value());
    EXPECT_EQ(values->size(), 1u);
    EXPECT_EQ(reg().readDword(Hive::CurrentUser, base(), L"version"), 2u);
}

TEST_F(RegistryContract, StringLongerThanTheBufferIsMoreDataNotATruncatedString)
{
    const std::wstring text(100, L'x');
    const std::size_t bytes = (text.size() + 1) * 2;
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"Long", text), Status::Ok);

    EXPECT_EQ(reg().readString(Hive::CurrentUser, base(), L"Long", bytes), text); // exactly fits
    EXPECT_FALSE(reg().readString(Hive::CurrentUser, base(), L"Long", bytes - 1).has_value());
    RawValue v;
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, base(), L"Long", bytes - 1, v), Status::MoreData);
    EXPECT_EQ(reg().queryValue(Hive::CurrentUser, base(), L"Long", 0, v), Status::MoreData);
}

struct UnterminatedRow {
    const char* name;
    std::vector<std::uint8_t> data;
    std::wstring expected;
};

class UnterminatedString : public RegistryContract, public ::testing::WithParamInterface<UnterminatedRow> { };

// Registry strings need not end in a zero: a read ends at the first zero or at the data's end,
// and a buffer of exactly the stored size is enough.
TEST_P(UnterminatedString, ReadsToTheEndOfItsDataAndNoFurther)
{
    const UnterminatedRow& row = GetParam();
    ASSERT_EQ(reg().setValue(Hive::CurrentUser, base(), RawValue { L"S", platform::TypeString, row.data }), Status::Ok);
    // A neighbour whose bytes would show up if a read ran past the value's end.
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"T", L"NEIGHBOUR"), Status::Ok);
    EXPECT_EQ(
        reg().readString(Hive::CurrentUser, base(), L"S", std::max<std::size_t>(row.data.size(), 1)), row.expected);
    EXPECT_EQ(reg().readString(Hive::CurrentUser, base(), L"S"), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, UnterminatedString,
    ::testing::Values(UnterminatedRow { "no_terminator", utf16(L"abc", false), L"abc" },
        UnterminatedRow { "odd_byte_count", { 'a', 0, 'b', 0, 'c' }, L"ab" },
        UnterminatedRow { "embedded_zero", { 'a', 0, 0, 0, 'b', 0 }, L"a" }, UnterminatedRow { "empty_data", {}, L"" },
        UnterminatedRow { "several_terminators", { 'a', 0, 0, 0, 0, 0 }, L"a" }),
    [](const auto& info) { return std::string(info.param.name); });

// Names in creation order are also in name order here, so the indexes agree under Wine too.
TEST_F(RegistryContract, EnumerationReportsEachOversizedValueAndGoesOn)
{
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"a1Small", 5), Status::Ok);
    ASSERT_EQ(reg().setBinary(Hive::CurrentUser, base(), L"b2Big", std::vector<std::uint8_t>(64, 0xAB)), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"c3VeryLongValueName", L"x"), Status::Ok);
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"d4Last", L"ok"), Status::Ok);

    const auto values = reg().enumValues(Hive::CurrentUser, base(), 16, 16);
    ASSERT_TRUE(values.has_value());
    ASSERT_EQ(values->size(), 4u);
    EXPECT_EQ((*values)[0].status, Status::Ok);
    EXPECT_EQ((*values)[0].value.name, L"a1Small");
    EXPECT_EQ((*values)[1].status, Status::MoreData); // data does not fit
    EXPECT_EQ((*values)[2].status, Status::MoreData); // name does not fit
    EXPECT_EQ((*values)[3].status, Status::Ok);
    EXPECT_EQ((*values)[3].value.name, L"d4Last");
    EXPECT_EQ((*values)[3].value.data, utf16(L"ok"));

    const auto none = reg().enumValues(Hive::CurrentUser, base(), 256, 0);
    ASSERT_TRUE(none.has_value());
    ASSERT_EQ(none->size(), 4u);
    for (const EnumeratedValue& e : *none)
        EXPECT_EQ(e.status, Status::MoreData);
}

TEST_F(RegistryContract, DeleteTreeRemovesTheKeyWithEverythingBelowAndNothingElse)
{
    ASSERT_EQ(reg().setString(Hive::CurrentUser, key(L"Gone\\Child\\Grandchild"), L"v", L"x"), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, key(L"Gone"), L"n", 1), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, key(L"Gone2"), L"n", 2), Status::Ok); // a name that starts alike
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"kept", 3), Status::Ok);

    ASSERT_EQ(reg().deleteTree(Hive::CurrentUser, key(L"gone")), Status::Ok);
    EXPECT_FALSE(reg().keyExists(Hive::CurrentUser, key(L"Gone")));
    EXPECT_FALSE(reg().keyExists(Hive::CurrentUser, key(L"Gone\\Child")));
    EXPECT_EQ(reg().readDword(Hive::CurrentUser, key(L"Gone2"), L"n"), 2u);
    EXPECT_EQ(reg().readDword(Hive::CurrentUser, base(), L"kept"), 3u);
    EXPECT_EQ(reg().subKeys(Hive::CurrentUser, base()), (std::vector<std::wstring> { L"Gone2" }));
}

TEST_F(RegistryContract, DeletingWhatIsGoneSucceeds)
{
    EXPECT_EQ(reg().deleteTree(Hive::CurrentUser, key(L"NeverThere")), Status::Ok);
    EXPECT_EQ(reg().deleteTree(Hive::CurrentUser, key(L"NeverThere\\Below")), Status::Ok);
    EXPECT_EQ(reg().deleteValue(Hive::CurrentUser, base(), L"NeverThere"), Status::Ok);
    EXPECT_EQ(reg().deleteValue(Hive::CurrentUser, key(L"NeverThere"), L"v"), Status::Ok);
    EXPECT_FALSE(reg().keyExists(Hive::CurrentUser, key(L"NeverThere"))); // and nothing got created
}

TEST_F(RegistryContract, DeleteValueRemovesOnlyThatValue)
{
    ASSERT_EQ(reg().setString(Hive::CurrentUser, base(), L"", L"default"), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"a", 1), Status::Ok);
    ASSERT_EQ(reg().setDword(Hive::CurrentUser, base(), L"b", 2), Status::Ok);

    ASSERT_EQ(reg().deleteValue(Hive::CurrentUser, base(), L"A"), Status::Ok);
    EXPECT_FALSE(reg().readDword(Hive::CurrentUser, base(), L"a").has_value());
    EXPECT_EQ(reg().readDword(Hive::CurrentUser, base(), L"b"), 2u);
    EXPECT_EQ(reg().readString(Hive::CurrentUser, base(), L""), L"default");
    EXPECT_EQ(reg().deleteValue(Hive::CurrentUser, base(), L"a"), Status::Ok); // again

    ASSERT_EQ(reg().deleteValue(Hive::CurrentUser, base(), L""), Status::Ok);
    EXPECT_FALSE(reg().readString(Hive::CurrentUser, base(), L"").has_value());
    EXPECT_TRUE(reg().keyExists(Hive::CurrentUser, base()));
}

// A path that names no key below the hive must never empty the hive.
TEST_F(RegistryContract, DeleteTreeRefusesAHiveItself)
{
    for (const wchar_t* path : { L"", L"\\", L"\\\\" }) {
        SCOPED_TRACE(platform::toUtf8(path));
        EXPECT_NE(reg().deleteTree(Hive::CurrentUser, path), Status::Ok);
        EXPECT_TRUE(reg().keyExists(Hive::CurrentUser, base()));
    }
}

} // namespace
