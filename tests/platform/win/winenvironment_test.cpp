#include "platform/win/winenvironment.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

using platform::WinEnvironment;

namespace {

const std::wstring A = L"alpha \u00e9\u4e2d";
const std::wstring Long(5000, L'b'); // longer than the first buffer either lookup tries
// Nothing else in the test program reads these.
const bool variablesSet
    = ::SetEnvironmentVariableW(L"NORVALE_A", A.c_str()) && ::SetEnvironmentVariableW(L"NORVALE_B", Long.c_str());

TEST(WinEnvironment, VariablesComeFromTheProcessWhateverTheirLength)
{
    ASSERT_TRUE(variablesSet);
    const WinEnvironment env;
    EXPECT_EQ(env.variable(L"norvale_a"), A);
    EXPECT_EQ(env.variable(L"NORVALE_B"), Long);
    EXPECT_FALSE(env.variable(L"NORVALE_UNSET").has_value());
}

class WinEnvironmentExpand : public ::testing::TestWithParam<std::pair<std::wstring, std::wstring>> { };

TEST_P(WinEnvironmentExpand, ExpandsKnownNamesAndKeepsTheRest)
{
    EXPECT_EQ(WinEnvironment().expand(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Rows, WinEnvironmentExpand,
    ::testing::Values(std::make_pair(L"%norvale_a%\\x", A + L"\\x"),
        std::make_pair(L"%NORVALE_NONE%\\%NORVALE_A%", L"%NORVALE_NONE%\\" + A),
        std::make_pair(L"<%NORVALE_B%>", L"<" + Long + L">"), std::make_pair(L"", L"")));

} // namespace
