#include "platform.h"

#include <atomic>
#include <cstdlib>
#include <mutex>

#ifdef _WIN32
#include "win/winplatform.h"
#else
#include "sandbox/sandboxplatform.h"
#include "strings.h"
#endif

namespace platform {

namespace {

std::atomic<Platform*> g_override { nullptr };

Platform& defaultPlatform()
{
    // Created on first use and kept for the process: workers may still be using it at exit.
    static Platform* instance = createDefault().release();
    return *instance;
}

} // namespace

Platform& current()
{
    if (Platform* p = g_override.load())
        return *p;
    return defaultPlatform();
}

void setCurrent(Platform* platform)
{
    g_override.store(platform);
}

std::unique_ptr<Platform> createDefault()
{
#ifdef _WIN32
    return std::make_unique<WinPlatform>();
#else
    std::string root;
    if (const char* env = std::getenv("NORVALE_SANDBOX"); env && *env) {
        root = env;
    } else {
        const char* data = std::getenv("XDG_DATA_HOME");
        const char* home = std::getenv("HOME");
        if (data && *data)
            root = std::string(data) + "/Norvale/sandbox";
        else
            root = std::string(home && *home ? home : "/tmp") + "/.local/share/Norvale/sandbox";
    }
    return std::make_unique<SandboxPlatform>(fromUtf8(root));
#endif
}

} // namespace platform
