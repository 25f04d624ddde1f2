#include "platform/sandbox/regfile.h"
#include "platform/strings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using platform::Hive;
using platform::RawValue;
using platform::RegFile;
using platform::RegNode;
using platform::RegTree;

namespace {

using Bytes = std::vector<std::uint8_t>;

const std::wstring Header = L"Windows Registry Editor Version 5.00\r\n\r\n";

// A file as regedit exports it: UTF-16LE with a byte-order mark.
Bytes regeditFile(const std::wstring& text)
{
    Bytes out { 0xFF, 0xFE };
    const Bytes body = platform::encodeRegistryString(text, false);
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

Bytes utf8File(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

Bytes utf16(const std::wstring& text, bool terminate = true)
{
    return platform::encodeRegistryString(text, terminate);
}

RegTree parsed(const Bytes& bytes)
{
    RegTree tree;
    RegFile::parse(bytes, tree);
    return tree;
}

// Equal names, values (in order, byte for byte) and subkeys, all the way down.
void expectSameNode(const RegNode& a, const RegNode& b, const std::wstring& where)
{
    SCOPED_TRACE(std::string(where.begin(), where.end()));
    ASSERT_EQ(a.values.size(), b.values.size());
    for (std::size_t i = 0; i < a.values.size(); ++i) {
        EXPECT_EQ(a.values[i].name, b.values[i].name);
        EXPECT_EQ(a.values[i].type, b.values[i].type);
        EXPECT_EQ(a.values[i].data, b.values[i].data);
    }
    ASSERT_EQ(a.children.size(), b.children.size());
    auto ia = a.children.begin();
    auto ib = b.children.begin();
    for (; ia != a.children.end(); ++ia, ++ib) {
        EXPECT_EQ(ia->second->name, ib->second->name);
        expectSameNode(*ia->second, *ib->second, where + L"\\" + ia->second->name);
    }
}

void expectSameTree(const RegTree& a, const RegTree& b)
{
    ASSERT_EQ(a.hives.size(), b.hives.size());
    for (const auto& [hive, root] : a.hives) {
        const auto other = b.hives.find(hive);
        ASSERT_NE(other, b.hives.end());
        expectSameNode(root, other->second, RegFile::hiveName(hive));
    }
}

struct ValueLineRow {
    const char* name;
    std::wstring line;
    RawValue expected;
};

class RegFileValueLine : public ::testing::TestWithParam<ValueLineRow> { };

TEST_P(RegFileValueLine, ParsesAsRegeditWroteIt)
{
    const ValueLineRow& row = GetParam();
    const RegTree tree = parsed(regeditFile(Header + L"[HKEY_CURRENT_USER\\Software\\T]\r\n" + row.line + L"\r\n\r\n"));
    const RegNode* key = tree.find(Hive::CurrentUser, L"Software\\T");
    ASSERT_NE(key, nullptr);
    ASSERT_EQ(key->values.size(), 1u);
    EXPECT_EQ(key->values[0].name, row.expected.name);
    EXPECT_EQ(key->values[0].type, row.expected.type);
    EXPECT_EQ(key->values[0].data, row.expected.data);
}

INSTANTIATE_TEST_SUITE_P(Rows, RegFileValueLine,
    ::testing::Values(ValueLineRow { "string", L"\"DisplayName\"=\"Norvale\"",
                          { L"DisplayName", platform::TypeString, utf16(L"Norvale") } },
        ValueLineRow { "escaped_quotes_and_backslashes", L"\"Path\"=\"C:\\\\Program Files\\\\\\\"Q\\\"\"",
            { L"Path", platform::TypeString, utf16(L"C:\\Program Files\\\"Q\"") } },
        ValueLineRow { "escaped_name", L"\"a\\\"b\\\\c\"=\"x\"", { L"a\"b\\c", platform::TypeString, utf16(L"x") } },
        ValueLineRow { "default_value", L"@=\"def\"", { L"", platform::TypeString, utf16(L"def") } },
        ValueLineRow { "empty_string", L"\"E\"=\"\"", { L"E", platform::TypeString, utf16(L"") } },
        ValueLineRow { "non_bmp_text", L"\"\u540d\"=\"\u503c \U0001F600\"",
            { L"\u540d", platform::TypeString, utf16(L"\u503c \U0001F600") } },
        ValueLineRow { "dword", L"\"D\"=dword:0000002a", { L"D", platform::TypeDword, { 0x2a, 0, 0, 0 } } },
        ValueLineRow {
            "dword_upper_hex", L"\"D\"=dword:DEADBEEF", { L"D", platform::TypeDword, { 0xef, 0xbe, 0xad, 0xde } } },
        ValueLineRow { "qword", L"\"Q\"=hex(b):ef,cd,ab,89,67,45,23,01",
            { L"Q", platform::TypeQword, { 0xef, 0xcd, 0xab, 0x89, 0x67, 0x45, 0x23, 0x01 } } },
        ValueLineRow { "expand_string", L"\"U\"=hex(2):25,00,54,00,45,00,4d,00,50,00,25,00,00,00",
            { L"U", platform::TypeExpandString, utf16(L"%TEMP%") } },
        ValueLineRow { "multi_string", L"\"M\"=hex(7):61,00,00,00,62,00,00,00,00,00",
            { L"M", platform::TypeMultiString, { 'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0 } } },
        ValueLineRow { "binary", L"\"B\"=hex:00,ff,10", { L"B", platform::TypeBinary, { 0x00, 0xff, 0x10 } } },
        ValueLineRow { "empty_binary", L"\"B\"=hex:", { L"B", platform::TypeBinary, {} } },
        ValueLineRow {
            "continued_binary", L"\"B\"=hex:01,02,\\\r\n  03,04", { L"B", platform::TypeBinary, { 1, 2, 3, 4 } } },
        ValueLineRow { "continued_over_three_lines",
            L"\"U\"=hex(2):25,00,54,00,\\\r\n  45,00,4d,00,50,00,\\\r\n  25,00,00,00",
            { L"U", platform::TypeExpandString, utf16(L"%TEMP%") } },
        ValueLineRow { "none_type", L"\"N\"=hex(0):", { L"N", platform::TypeNone, {} } }),
    [](const auto& info) { return std::string(info.param.name); });

class RegFileGarbageLine : public ::testing::TestWithParam<std::pair<const char*, std::wstring>> { };

// A line that cannot be understood is dropped alone: the values around it still load.
TEST_P(RegFileGarbageLine, IsSkippedWithoutLosingItsNeighbours)
{
    const RegTree tree = parsed(regeditFile(Header + L"[HKEY_CURRENT_USER\\T]\r\n\"before\"=dword:00000001\r\n"
        + GetParam().second + L"\r\n\"after\"=dword:00000002\r\n"));
    const RegNode* key = tree.find(Hive::CurrentUser, L"T");
    ASSERT_NE(key, nullptr);
    ASSERT_EQ(key->values.size(), 2u);
    EXPECT_EQ(key->values[0].name, L"before");
    EXPECT_EQ(key->values[1].name, L"after");
    EXPECT_EQ(key->children.size(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Rows, RegFileGarbageLine,
    ::testing::Values(std::make_pair("prose", L"this is not a value"),
        std::make_pair("unterminated_name", L"\"broken=1"), std::make_pair("no_equals", L"\"x\""),
        std::make_pair("unquoted_data", L"\"x\"=plain"), std::make_pair("text_after_string", L"\"x\"=\"a\" trailing"),
        std::make_pair("dword_not_hex", L"\"x\"=dword:zz"), std::make_pair("dword_too_long", L"\"x\"=dword:123456789"),
        std::make_pair("dword_empty", L"\"x\"=dword:"), std::make_pair("hex_bad_digit", L"\"x\"=hex:0g"),
        std::make_pair("hex_three_digits", L"\"x\"=hex:123"), std::make_pair("hex_type_unclosed", L"\"x\"=hex(2:00"),
        std::make_pair("comment", L"; \"x\"=\"commented out\"")),
    [](const auto& info) { return std::string(info.param.first); });

TEST(RegFile, DeletionsAndUnknownHivesApplyInFileOrder)
{
    const std::wstring text = Header
        + L"[HKEY_LOCAL_MACHINE\\Software\\App\\Sub]\r\n\"v\"=\"1\"\r\n\r\n"
          L"[HKEY_LOCAL_MACHINE\\Software\\App]\r\n\"keep\"=\"k\"\r\n\"drop\"=\"d\"\r\n\"DROP\"=-\r\n\r\n"
          L"[-HKEY_LOCAL_MACHINE\\Software\\App\\Sub]\r\n\"ignored\"=\"under a deleted key\"\r\n\r\n"
          L"[HKEY_NOWHERE\\X]\r\n\"lost\"=\"no such hive\"\r\n\r\n"
          L"[-HKEY_CURRENT_USER\\Never\\There]\r\n"
          L"[HKEY_CURRENT_USER\\Software\\Gone]\r\n\"g\"=\"1\"\r\n"
          L"[-HKEY_CURRENT_USER\\Software\\Gone]\r\n";
    const RegTree tree = parsed(regeditFile(text));

    const RegNode* app = tree.find(Hive::LocalMachine, L"Software\\App");
    ASSERT_NE(app, nullptr);
    ASSERT_EQ(app->values.size(), 1u);
    EXPECT_EQ(app->values[0].name, L"keep");
    EXPECT_EQ(tree.find(Hive::LocalMachine, L"Software\\App\\Sub"), nullptr);
    EXPECT_TRUE(app->children.empty());
    EXPECT_EQ(tree.find(Hive::CurrentUser, L"Software\\Gone"), nullptr);
    EXPECT_NE(tree.find(Hive::CurrentUser, L"Software"), nullptr);
}

TEST(RegFile, Utf8AndUtf16FilesReadTheSame)
{
    const std::string text = "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\\xe5\x90\x8d]\r\n"
                             "\"\xe5\x80\xbc\"=\"\xf0\x9f\x98\x80\"\r\n\"n\"=dword:00000010\r\n";
    const RegTree fromUtf8 = parsed(utf8File(text));
    const RegTree fromBom = parsed(utf8File("\xef\xbb\xbf" + text));
    const RegTree fromUtf16 = parsed(
        regeditFile(Header + L"[HKEY_CURRENT_USER\\\u540d]\r\n\"\u503c\"=\"\U0001F600\"\r\n\"n\"=dword:00000010\r\n"));
    ASSERT_NE(fromUtf16.find(Hive::CurrentUser, L"\u540d"), nullptr);
    expectSameTree(fromUtf8, fromUtf16);
    expectSameTree(fromBom, fromUtf16);
}

TEST(RegFile, RoundTripKeepsEveryValueByteForByte)
{
    RegTree original;
    RegNode& app
        = original.ensure(Hive::LocalMachine, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\App 1");
    Bytes longBinary(200);
    for (std::size_t i = 0; i < longBinary.size(); ++i)
        longBinary[i] = static_cast<std::uint8_t>(i * 7);
    const RawValue values[] = {
        { L"", platform::TypeString, utf16(L"default") },
        { L"Plain", platform::TypeString, utf16(L"C:\\Program Files\\App \"1\"") },
        { L"Say \"hi\"\\", platform::TypeString, utf16(L"x") },
        { L"Unterminated", platform::TypeString, utf16(L"abc", false) },
        { L"Lines", platform::TypeString, utf16(L"one\r\ntwo") },
        { L"EmbeddedZero", platform::TypeString, { 'a', 0, 0, 0, 'b', 0, 0, 0 } },
        { L"EmptyString", platform::TypeString, utf16(L"") },
        { L"NoData", platform::TypeString, {} },
        { L"Expand", platform::TypeExpandString, utf16(L"%ProgramFiles%\\App") },
        { L"Multi", platform::TypeMultiString, { 'a', 0, 0, 0, 0, 0 } },
        { L"Dword", platform::TypeDword, { 1, 2, 3, 4 } },
        { L"ShortDword", platform::TypeDword, { 1, 2 } },
        { L"Qword", platform::TypeQword, { 1, 2, 3, 4, 5, 6, 7, 8 } },
        { L"Long", platform::TypeBinary, longBinary },
        { L"Empty", platform::TypeBinary, {} },
        { L"Odd", 0x12345u, { 9 } },
        { L"\u4e2d\u6587", platform::TypeString, utf16(L"\u6e05\u7406 \U0001F600") },
    };
    for (const RawValue& v : values)
        app.setValue(v);
    original.ensure(Hive::CurrentUser, L"Software\\b");
    original.ensure(Hive::CurrentUser, L"Software\\A Key With Spaces [x]");
    original.ensure(Hive::CurrentUser, L"").setValue({ L"OnTheHive", platform::TypeDword, { 1, 0, 0, 0 } });

    const std::string first = RegFile::serialize(original);
    const RegTree reread = parsed(utf8File(first));
    expectSameTree(original, reread);
    EXPECT_EQ(RegFile::serialize(reread), first);

    // And through the UTF-16 form regedit itself writes.
    const RegTree fromUtf16 = parsed(regeditFile(platform::fromUtf8(first)));
    expectSameTree(original, fromUtf16);
}

} // namespace
