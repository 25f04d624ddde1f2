#pragma once

#include <memory>
#include <string>

namespace platform {

class Environment;
class FileSystem;
class IconExtractor;
class Launcher;
class Processes;
class PackageCatalogue;
class Registry;
class SystemCounters;
class WindowFrame;

// Every operating-system service the features use. One implementation talks to Windows; the
// other is the sandbox: one folder that stands for the machine, used on every other system.
class Platform {
public:
    virtual ~Platform() = default;

    virtual Registry& registry() = 0;
    virtual Environment& environment() = 0;
    virtual WindowFrame& windowFrame() = 0;
    virtual SystemCounters& counters() = 0;
    virtual FileSystem& fileSystem() = 0;
    virtual Launcher& launcher() = 0;
    virtual IconExtractor& icons() = 0;
    virtual Processes& processes() = 0;
    virtual PackageCatalogue& packages() = 0;

    // Empty on Windows; the sandbox folder otherwise.
    virtual std::wstring sandboxRoot() const = 0;
    bool isSandbox() const { return !sandboxRoot().empty(); }
};

// The process-wide platform: the default one, created on first use, unless a test has set its own.
Platform& current();
// Tests swap in their own platform; nullptr goes back to the default. The caller keeps ownership.
void setCurrent(Platform* platform);

// Windows on Windows; elsewhere the sandbox named by NORVALE_SANDBOX, or a per-user one.
std::unique_ptr<Platform> createDefault();

} // namespace platform
