#include "sandboxplatform.h"

#include "../strings.h"
#include "../windowframe.h"
#include "sandboxcounters.h"
#include "sandboxenvironment.h"
#include "sandboxfilesystem.h"
#include "sandboxiconextractor.h"
#include "sandboxlauncher.h"
#include "sandboxpackagecatalogue.h"
#include "sandboxprocesses.h"
#include "sandboxregistry.h"

#include <sys/stat.h>

namespace platform {

// There is no window manager to ask for rounded corners off Windows.
class NullWindowFrame final : public WindowFrame {
public:
    bool applyRoundedFrame(std::uintptr_t) override { return false; }
};

namespace {

void makeDirs(const std::string& path)
{
    std::string partial;
    for (std::size_t i = 0; i <= path.size(); ++i) {
        if (i == path.size() || path[i] == '/') {
            if (!partial.empty())
                ::mkdir(partial.c_str(), 0755);
        }
        if (i < path.size())
            partial += path[i];
    }
}

} // namespace

SandboxPlatform::SandboxPlatform(const std::wstring& root)
    : m_root(root)
{
    while (m_root.size() > 1 && m_root.back() == L'/')
        m_root.pop_back();
    makeDirs(toUtf8(m_root + L"/C"));
    m_registry = std::make_unique<SandboxRegistry>(toUtf8(m_root + L"/" + registryFileName()));
    m_environment = std::make_unique<SandboxEnvironment>(m_root);
    m_frame = std::make_unique<NullWindowFrame>();
    m_counters = std::make_unique<SandboxSystemCounters>(m_root);
    m_fileSystem = std::make_unique<SandboxFileSystem>(m_root);
    m_launcher = std::make_unique<SandboxLauncher>(m_root, m_registry.get());
    m_icons = std::make_unique<SandboxIconExtractor>(m_root);
    m_processes = std::make_unique<SandboxProcesses>(m_root, *m_environment);
    m_packages = std::make_unique<SandboxPackageCatalogue>(m_root);
}

SandboxPlatform::~SandboxPlatform() = default;

Registry& SandboxPlatform::registry()
{
    return *m_registry;
}
Environment& SandboxPlatform::environment()
{
    return *m_environment;
}
WindowFrame& SandboxPlatform::windowFrame()
{
    return *m_frame;
}
SystemCounters& SandboxPlatform::counters()
{
    return *m_counters;
}
FileSystem& SandboxPlatform::fileSystem()
{
    return *m_fileSystem;
}
Launcher& SandboxPlatform::launcher()
{
    return *m_launcher;
}
IconExtractor& SandboxPlatform::icons()
{
    return *m_icons;
}
Processes& SandboxPlatform::processes()
{
    return *m_processes;
}
PackageCatalogue& SandboxPlatform::packages()
{
    return *m_packages;
}
std::wstring SandboxPlatform::sandboxRoot() const
{
    return m_root;
}

} // namespace platform
