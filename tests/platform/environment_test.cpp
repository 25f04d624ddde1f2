// The user's temporary folder is chosen from the variables in the same order by both lanes.

#include "contract.h"

#include <gtest/gtest.h>

#include <cctype>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct TempCase {
    const char* what;
    std::optional<std::wstring> tmp, temp;
    std::wstring expected; // a Windows path, mapped by the lane
};

void PrintTo(const TempCase& c, std::ostream* os)
{
    *os << c.what;
}

class TempFolder : public ::testing::TestWithParam<TempCase> {
protected:
    void SetUp() override
    {
        m_env = contract::makeContractEnvironment();
        for (const wchar_t* name : { L"TMP", L"TEMP" })
            m_saved.push_back(m_env->variable(name));
    }
    void TearDown() override
    {
        contract::setContractVariable(*m_env, L"TMP", m_saved[0]);
        contract::setContractVariable(*m_env, L"TEMP", m_saved[1]);
    }

    std::unique_ptr<platform::Environment> m_env;
    std::vector<std::optional<std::wstring>> m_saved;
};

TEST_P(TempFolder, TmpComesBeforeTempAndTheResultHasForwardSlashesAndNoTrailingOne)
{
    const TempCase& c = GetParam();
    contract::setContractVariable(*m_env, L"TMP", c.tmp);
    contract::setContractVariable(*m_env, L"TEMP", c.temp);
    EXPECT_EQ(m_env->temp(), m_env->mapPath(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Variables, TempFolder,
    ::testing::Values(TempCase { "both set", L"C:\\NorvaleTmp\\", L"C:\\NorvaleTemp", L"C:/NorvaleTmp" },
        TempCase { "only TEMP", std::nullopt, L"C:\\NorvaleTemp\\", L"C:/NorvaleTemp" },
        TempCase { "TMP empty", L"", L"C:\\NorvaleTemp", L"C:/NorvaleTemp" },
        TempCase { "drive root", L"C:\\", std::nullopt, L"C:/" }),
    [](const ::testing::TestParamInfo<TempCase>& info) {
        std::string name = info.param.what;
        for (char& c : name)
            c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
        return name;
    });

// With neither variable set there is still a folder, written the same way.
TEST_F(TempFolder, NeitherVariableFallsBackToAFolderOnTheDrive)
{
    contract::setContractVariable(*m_env, L"TMP", std::nullopt);
    contract::setContractVariable(*m_env, L"TEMP", std::nullopt);
    const std::wstring folder = m_env->temp();
    EXPECT_FALSE(folder.empty());
    EXPECT_EQ(folder.find(L'\\'), std::wstring::npos);
    EXPECT_NE(folder.back(), L'/');
    EXPECT_EQ(folder.rfind(m_env->systemDriveRoot(), 0), 0u);
}

} // namespace
