#include "winplatform.h"

#include "wincounters.h"
#include "winenvironment.h"
#include "winfilesystem.h"
#include "winiconextractor.h"
#include "winlauncher.h"
#include "winpackagecatalogue.h"
#include "winprocesses.h"
#include "winregistry.h"
#include "winwindowframe.h"

namespace platform {

WinPlatform::WinPlatform()
    : m_registry(std::make_unique<WinRegistry>())
    , m_environment(std::make_unique<WinEnvironment>())
    , m_frame(std::make_unique<WinWindowFrame>())
    , m_counters(std::make_unique<WinSystemCounters>())
    , m_fileSystem(std::make_unique<WinFileSystem>())
    , m_launcher(std::make_unique<WinLauncher>())
    , m_icons(std::make_unique<WinIconExtractor>())
    , m_processes(std::make_unique<WinProcesses>())
    , m_packages(std::make_unique<WinPackageCatalogue>())
{
}

WinPlatform::~WinPlatform() = default;

Registry& WinPlatform::registry()
{
    return *m_registry;
}
Environment& WinPlatform::environment()
{
    return *m_environment;
}
WindowFrame& WinPlatform::windowFrame()
{
    return *m_frame;
}
SystemCounters& WinPlatform::counters()
{
    return *m_counters;
}
FileSystem& WinPlatform::fileSystem()
{
    return *m_fileSystem;
}
Launcher& WinPlatform::launcher()
{
    return *m_launcher;
}
IconExtractor& WinPlatform::icons()
{
    return *m_icons;
}
Processes& WinPlatform::processes()
{
    return *m_processes;
}
PackageCatalogue& WinPlatform::packages()
{
    return *m_packages;
}

} // namespace platform
