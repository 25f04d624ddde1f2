#include "contract.h"

#include "platform/sandbox/sandboxregistry.h"

#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

namespace contract {

namespace {

// Removes every folder handed out when the test program ends.
class TempFolders {
public:
    ~TempFolders()
    {
        for (const std::string& dir : m_dirs) {
            std::error_code ignored;
            std::filesystem::remove_all(dir, ignored);
        }
    }

    std::string make()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "norvale-contract-XXXXXX").string();
        if (!::mkdtemp(pattern.data()))
            std::abort(); // no temporary folder: nothing in this lane can run
        std::lock_guard<std::mutex> lock(m_mutex);
        m_dirs.push_back(pattern);
        return pattern;
    }

private:
    std::mutex m_mutex;
    std::vector<std::string> m_dirs;
};

TempFolders& tempFolders()
{
    static TempFolders folders;
    return folders;
}

} // namespace

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::SandboxRegistry>(tempFolders().make() + "/registry.reg");
}

std::wstring contractBaseKey()
{
    return L"Software\\Brightfen\\NorvaleContractTests";
}

bool valuesComeInCreationOrder()
{
    return true;
}

} // namespace contract
