#include "contract.h"

#include "platform/sandbox/sandboxenvironment.h"
#include "platform/sandbox/sandboxpackagecatalogue.h"
#include "platform/sandbox/sandboxregistry.h"

#include "platform/sandbox/sandboxprocesses.h"
#include "platform/strings.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace contract {

std::unique_ptr<platform::Registry> makeContractRegistry()
{
    return std::make_unique<platform::SandboxRegistry>(); // in memory; saving has its own cases
}

bool valuesComeInCreationOrder()
{
    return true;
}

std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue()
{
    // A sandbox folder that holds no catalogue file stands for a machine without the runtime.
    const auto root = std::filesystem::temp_directory_path() / "norvale-contract-no-package-runtime";
    return std::make_unique<platform::SandboxPackageCatalogue>(root.wstring());
}

namespace {

struct ProcessLane {
    std::wstring root;
    std::unique_ptr<platform::SandboxEnvironment> environment;
    std::unique_ptr<platform::SandboxProcesses> processes;
    std::uint32_t nextPid = 4240;

    ProcessLane()
    {
        char pattern[] = "/tmp/norvale-processes-XXXXXX";
        const char* made = ::mkdtemp(pattern);
        root = platform::fromUtf8(made ? made : "/nonexistent");
        environment = std::make_unique<platform::SandboxEnvironment>(root);
        processes = std::make_unique<platform::SandboxProcesses>(root, *environment);
    }
};

ProcessLane& processLane()
{
    static ProcessLane lane;
    return lane;
}

} // namespace

platform::Processes& contractProcesses()
{
    return *processLane().processes;
}

std::optional<StartedProcess> startLongRunningProcess()
{
    ProcessLane& lane = processLane();
    const std::wstring windowsPath = L"C:\\Program Files\\Norvale Test\\Sleeper.exe";
    StartedProcess started { lane.nextPid += 4, L"Sleeper.exe", lane.environment->mapPath(windowsPath) };
    std::ofstream list(platform::toUtf8(lane.root + L"/" + platform::SandboxProcesses::listFileName()),
        std::ios::app | std::ios::binary);
    list << started.pid << '\t' << platform::toUtf8(windowsPath) << '\n';
    if (!list)
        return std::nullopt;
    return started;
}

bool waitUntilEnded(std::uint32_t)
{
    return true; // a line removed is a process gone
}

std::unique_ptr<platform::Environment> makeContractEnvironment()
{
    return std::make_unique<platform::SandboxEnvironment>(L"/nonexistent/norvale-contract"); // never touched
}

void setContractVariable(
    platform::Environment& environment, const std::wstring& name, const std::optional<std::wstring>& value)
{
    static_cast<platform::SandboxEnvironment&>(environment).setVariable(name, value);
}

bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link)
{
    std::error_code error;
    std::filesystem::create_directory_symlink(target, link, error);
    return !error;
}

void removeTree(const std::filesystem::path& folder)
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

bool isLink(const std::filesystem::path& path)
{
    return std::filesystem::is_symlink(std::filesystem::symlink_status(path));
}

} // namespace contract
