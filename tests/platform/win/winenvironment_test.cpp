#include "platform/win/winenvironment.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

using platform::WinEnvironment;

namespace {

// Sets a process variable for one case and removes it afterwards.
class ScopedVariable {
public:
    ScopedVariable(const wchar_t* name, const wchar_t* value)
        : m_name(name)
    {
        ::SetEnvironmentVariableW(name, value);
    }
    ~ScopedVariable() { ::SetEnvironmentVariableW(m_name.c_str(), nullptr); }

private:
    std::wstring m_name;
};

TEST(WinEnvironment, FoldersAreTheMachinesOwn)
{
    WinEnvironment env;
    EXPECT_EQ(env.systemDriveRoot(), L"C:/");
    EXPECT_EQ(env.mapPath(L"C:/Windows/Temp"), L"C:/Windows/Temp");
    EXPECT_EQ(env.mapPath(L"D:\\Data"), L"D:\\Data");
}

TEST(WinEnvironment, VariablesRoundTripThroughTheProcessEnvironment)
{
    WinEnvironment env;
    const ScopedVariable set(L"NORVALE_TEST_VAR", L"value \u00e9\u4e2d");
    const std::wstring longValue(5000, L'v'); // longer than the first buffer
    const ScopedVariable setLong(L"NORVALE_TEST_LONG", longValue.c_str());
    const ScopedVariable setEmpty(L"NORVALE_TEST_EMPTY", L"");

    EXPECT_EQ(env.variable(L"NORVALE_TEST_VAR"), L"value \u00e9\u4e2d");
    EXPECT_EQ(env.variable(L"norvale_test_var"), L"value \u00e9\u4e2d"); // names ignore case
    EXPECT_EQ(env.variable(L"NORVALE_TEST_LONG"), longValue);
    EXPECT_FALSE(env.variable(L"NORVALE_TEST_UNSET").has_value());
    EXPECT_FALSE(env.userProfile().empty());
    EXPECT_FALSE(env.temp().empty());
}

struct ExpandRow {
    const char* name;
    std::wstring input;
    std::wstring expected;
};

class WinEnvironmentExpand : public ::testing::TestWithParam<ExpandRow> { };

TEST_P(WinEnvironmentExpand, ExpandsKnownNamesAndKeepsTheRest)
{
    const ScopedVariable a(L"NORVALE_A", L"alpha");
    const ScopedVariable b(L"NORVALE_B", std::wstring(3000, L'b').c_str());
    EXPECT_EQ(WinEnvironment().expand(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WinEnvironmentExpand,
    ::testing::Values(ExpandRow { "plain_text", L"C:\\x", L"C:\\x" },
        ExpandRow { "one_name", L"%NORVALE_A%\\x", L"alpha\\x" },
        ExpandRow { "name_ignores_case", L"%norvale_a%", L"alpha" },
        ExpandRow { "unknown_name_stays", L"%NORVALE_NONE%\\%NORVALE_A%", L"%NORVALE_NONE%\\alpha" },
        ExpandRow { "result_longer_than_first_buffer", L"<%NORVALE_B%>", L"<" + std::wstring(3000, L'b') + L">" },
        ExpandRow { "empty", L"", L"" }),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
