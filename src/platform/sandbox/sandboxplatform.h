#pragma once

#include "../platform.h"

#include <memory>
#include <string>

namespace platform {

class SandboxRegistry;
class SandboxEnvironment;
class SandboxSystemCounters;
class SandboxFileSystem;
class SandboxLauncher;
class SandboxIconExtractor;
class SandboxProcesses;
class SandboxPackageCatalogue;
class NullWindowFrame;

// A machine in one folder: "<root>/C" is the system drive and "<root>/registry.reg" the registry.
// Nothing outside the folder is read as the machine or deleted; only live counters come from
// the host, because they only read.
class SandboxPlatform final : public Platform {
public:
    explicit SandboxPlatform(const std::wstring& root);
    ~SandboxPlatform() override;

    Registry& registry() override;
    Environment& environment() override;
    WindowFrame& windowFrame() override;
    SystemCounters& counters() override;
    FileSystem& fileSystem() override;
    Launcher& launcher() override;
    IconExtractor& icons() override;
    Processes& processes() override;
    PackageCatalogue& packages() override;
    std::wstring sandboxRoot() const override;

    static std::wstring registryFileName() { return L"registry.reg"; }

private:
    std::wstring m_root;
    std::unique_ptr<SandboxRegistry> m_registry;
    std::unique_ptr<SandboxEnvironment> m_environment;
    std::unique_ptr<NullWindowFrame> m_frame;
    std::unique_ptr<SandboxSystemCounters> m_counters;
    std::unique_ptr<SandboxFileSystem> m_fileSystem;
    std::unique_ptr<SandboxLauncher> m_launcher;
    std::unique_ptr<SandboxIconExtractor> m_icons;
    std::unique_ptr<SandboxProcesses> m_processes;
    std::unique_ptr<SandboxPackageCatalogue> m_packages;
};

} // namespace platform
