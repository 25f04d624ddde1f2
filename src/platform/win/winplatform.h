#pragma once

#include "../platform.h"

#include <memory>

namespace platform {

class WinRegistry;
class WinEnvironment;
class WinWindowFrame;
class WinSystemCounters;
class WinFileSystem;
class WinLauncher;
class WinIconExtractor;
class WinProcesses;
class WinPackageCatalogue;

// The real machine, through Win32.
class WinPlatform final : public Platform {
public:
    WinPlatform();
    ~WinPlatform() override;

    Registry& registry() override;
    Environment& environment() override;
    WindowFrame& windowFrame() override;
    SystemCounters& counters() override;
    FileSystem& fileSystem() override;
    Launcher& launcher() override;
    IconExtractor& icons() override;
    Processes& processes() override;
    PackageCatalogue& packages() override;
    std::wstring sandboxRoot() const override { return std::wstring(); }

private:
    std::unique_ptr<WinRegistry> m_registry;
    std::unique_ptr<WinEnvironment> m_environment;
    std::unique_ptr<WinWindowFrame> m_frame;
    std::unique_ptr<WinSystemCounters> m_counters;
    std::unique_ptr<WinFileSystem> m_fileSystem;
    std::unique_ptr<WinLauncher> m_launcher;
    std::unique_ptr<WinIconExtractor> m_icons;
    std::unique_ptr<WinProcesses> m_processes;
    std::unique_ptr<WinPackageCatalogue> m_packages;
};

} // namespace platform
