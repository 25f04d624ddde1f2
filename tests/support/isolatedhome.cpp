// Linked into every test program of the native lane. CTest gives each suite its own sandbox,
// settings and data folders; a test program run by hand gets throw-away ones instead of the
// developer's own, which a test must never create or change.

#ifndef _WIN32

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

class IsolatedHome {
public:
    IsolatedHome()
    {
        const char* sandbox = std::getenv("NORVALE_SANDBOX");
        if (sandbox && *sandbox)
            return; // placed by CTest or by the developer on purpose
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/norvale-test-XXXXXX";
        if (!::mkdtemp(pattern.data())) {
            std::perror("norvale tests: no temporary folder for the sandbox");
            std::abort(); // running on would use the developer's own sandbox
        }
        m_folder = pattern;
        ::setenv("NORVALE_SANDBOX", (m_folder + "/sandbox").c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", (m_folder + "/config").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (m_folder + "/data").c_str(), 1);
        ::setenv("XDG_CACHE_HOME", (m_folder + "/cache").c_str(), 1);
        ::setenv("XDG_STATE_HOME", (m_folder + "/state").c_str(), 1);
    }
    ~IsolatedHome()
    {
        std::error_code ignored;
        if (!m_folder.empty())
            std::filesystem::remove_all(m_folder, ignored);
    }

private:
    std::string m_folder;
};

// Static, so it is in place before main() and before any test asks for the default platform.
const IsolatedHome isolatedHome;

} // namespace

#endif
