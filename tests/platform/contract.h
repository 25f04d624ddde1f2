#pragma once

#include "platform/environment.h"
#include "platform/packagecatalogue.h"
#include "platform/processes.h"
#include "platform/registry.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace contract {

// The lane's registry: an empty sandbox natively, the Wine prefix's own registry under Wine.
std::unique_ptr<platform::Registry> makeContractRegistry();

// Windows and the sandbox enumerate values as created; Wine's registry sorts them by name.
bool valuesComeInCreationOrder();

// A process of the lane that keeps running until it is ended, and where its executable lies (as
// the lane's process service reports image paths).
struct StartedProcess {
    std::uint32_t pid = 0;
    std::wstring imageName;
    std::wstring imagePath;
};

// The lane's process service: a sandbox of its own natively, the Wine prefix's processes under Wine.
platform::Processes& contractProcesses();
// Starts a process that the service above lists; nullopt when the lane could not start one.
std::optional<StartedProcess> startLongRunningProcess();
// Waits until the process has ended (a real process takes a moment to go), and reaps it.
bool waitUntilEnded(std::uint32_t pid);

// The lane's packaged-app catalogue: a sandbox without a catalogue file natively, the real
// package manager under Wine; neither has the package runtime.
std::unique_ptr<platform::PackageCatalogue> makeContractCatalogue();

// The lane's environment: a sandbox's in a fresh folder natively, the process's own under Wine.
std::unique_ptr<platform::Environment> makeContractEnvironment();

// Sets or removes (nullopt) a variable of an environment made above.
void setContractVariable(
    platform::Environment& environment, const std::wstring& name, const std::optional<std::wstring>& value);

// A link to a folder, made as the lane can: a symbolic link natively; under Wine, which cannot
// make Windows links, a Unix link inside the prefix, which Win32 then shows as a reparse point.
bool makeLink(const std::filesystem::path& target, const std::filesystem::path& link);
// Whether the path is itself a link (a reparse point under Wine), whatever it points at.
bool isLink(const std::filesystem::path& path);
// Removes a tree that may hold links, loops among them included, without following any: natively
// std::filesystem does that; Wine can neither remove a Unix link nor walk past one, so there a
// Unix rm does it.
void removeTree(const std::filesystem::path& folder);

} // namespace contract
