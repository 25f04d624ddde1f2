#include "platform/sandbox/regfile.h"
#include "platform/strings.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <tuple>
#include <vector>

using namespace platform;

namespace {

using Bytes = std::vector<std::uint8_t>;

const std::wstring Header = L"Windows Registry Editor Version 5.00\r\n\r\n";

// Parses text written as regedit exports it, UTF-16LE with a byte-order mark, or else as UTF-8.
RegTree parsed(const std::wstring& text, bool asRegedit = true)
{
    const std::string utf8 = toUtf8(text);
    RegTree tree;
    RegFile::parse(asRegedit ? encodeRegistryString(L"\uFEFF" + text, false) : Bytes(utf8.begin(), utf8.end()), tree);
    return tree;
}

auto fields(const RawValue& v)
{
    return std::make_tuple(v.name, v.type, v.data);
}

struct ValueLineRow {
    const char* name;
    std::wstring line;
    std::vector<RawValue> expected; // none for a line that cannot be understood
};

class RegFileValueLine : public ::testing::TestWithParam<ValueLineRow> { };

// A line that cannot be understood is dropped alone: the value after it still loads.
TEST_P(RegFileValueLine, ParsesAsRegeditWroteIt)
{
    const RegTree tree
        = parsed(Header + L"[HKEY_CURRENT_USER\\T]\r\n" + GetParam().line + L"\r\n\"next\"=dword:00000002\r\n");
    const RegNode* key = tree.find(Hive::CurrentUser, L"T");
    ASSERT_NE(key, nullptr);
    std::vector<RawValue> expected = GetParam().expected;
    expected.push_back({ L"next", TypeDword, { 2, 0, 0, 0 } });
    ASSERT_EQ(key->values.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(fields(key->values[i]), fields(expected[i]));
}

INSTANTIATE_TEST_SUITE_P(Rows, RegFileValueLine,
    ::testing::Values(
        ValueLineRow { "escapes_in_name_and_data", L"\"a\\\"b\\\\c\"=\"C:\\\\Program Files\\\\\\\"Q\\\"\"",
            { { L"a\"b\\c", TypeString, encodeRegistryString(L"C:\\Program Files\\\"Q\"") } } },
        ValueLineRow { "default_value", L"@=\"def\"", { { L"", TypeString, encodeRegistryString(L"def") } } },
        ValueLineRow { "dword", L"\"D\"=dword:DEADbeef", { { L"D", TypeDword, { 0xef, 0xbe, 0xad, 0xde } } } },
        ValueLineRow { "expand_string_continued_over_three_lines",
            L"\"U\"=hex(2):25,00,54,00,\\\r\n  45,00,4d,00,50,00,\\\r\n  25,00,00,00",
            { { L"U", TypeExpandString, encodeRegistryString(L"%TEMP%") } } },
        ValueLineRow { "garbage_is_dropped",
            L"\"x\"=\"a\" trailing\r\n\"x\"=dword:123456789\r\n\"x\"=hex:123\r\n"
            L"\"x\"=hex(2:00\r\n; \"x\"=\"commented out\"\r\n\"broken=1",
            {} }),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RegFile, RoundTripKeepsEveryValueByteForByteInEveryEncoding)
{
    Bytes longBinary(200);
    std::iota(longBinary.begin(), longBinary.end(), 0);
    const std::vector<RawValue> values = { { L"", TypeString, encodeRegistryString(L"default") },
        { L"Say \"hi\"\\", TypeString, encodeRegistryString(L"C:\\Program Files\\App \"1\"") },
        { L"Unterminated", TypeString, encodeRegistryString(L"abc", false) },
        { L"Lines", TypeString, encodeRegistryString(L"one\r\ntwo") },
        { L"EmbeddedZero", TypeString, { 'a', 0, 0, 0, 'b', 0, 0, 0 } }, { L"NoData", TypeString, {} },
        { L"ShortDword", TypeDword, { 1, 2 } }, { L"Long", TypeBinary, longBinary }, { L"Odd", 0x12345u, { 9 } },
        { L"\u4e2d\u6587", TypeString, encodeRegistryString(L"\u6e05\u7406 \U0001F600") } };
    const std::wstring path = L"Software\\A Key With Spaces [x]\\App 1";
    RegTree original;
    for (const RawValue& v : values)
        original.ensure(Hive::LocalMachine, path).setValue(v);
    original.ensure(Hive::CurrentUser, L"").setValue({ L"OnTheHive", TypeDword, { 1, 0, 0, 0 } });

    const std::string text = RegFile::serialize(original);
    for (const bool asRegedit : { true, false }) {
        const RegTree reread = parsed(fromUtf8(text), asRegedit);
        const RegNode* app = reread.find(Hive::LocalMachine, path);
        ASSERT_NE(app, nullptr);
        ASSERT_EQ(app->values.size(), values.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(fields(app->values[i]), fields(values[i]));
        EXPECT_EQ(RegFile::serialize(reread), text);
    }
}

} // namespace
