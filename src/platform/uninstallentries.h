#pragma once

#include "registry.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// Raw reading of the registry data behind the program inventory and the usage marks. The rules
// that decide what to show (skipping, trimming, dates, status) belong to the feature; this part
// only reads, with the buffer sizes the inventory has always used, so both implementations of
// the registry can be checked against the same expectations.

struct UninstallRoot {
    Hive hive;
    std::wstring path;
};

// The four places where programs register their uninstallers, in reading order.
const std::vector<UninstallRoot>& uninstallRoots();

constexpr std::size_t UninstallKeyNameChars = 256;
// Strings are read into a 2,048-byte buffer; a longer value counts as missing.
constexpr std::size_t UninstallValueBytes = 2048;

// One subkey of an Uninstall key. A string that is missing, too long or not a string is empty;
// a DWORD that is missing or not a DWORD is nullopt.
struct UninstallEntry {
    Hive hive = Hive::LocalMachine;
    std::wstring keyPath; // the subkey's full path below the hive
    std::wstring displayName;
    std::wstring parentKeyName;
    std::wstring publisher;
    std::wstring displayVersion;
    std::wstring installDate;
    std::wstring uninstallString;
    std::wstring displayIcon;
    std::wstring installLocation;
    std::optional<std::uint32_t> systemComponent;
    std::optional<std::uint32_t> noRemove;
    std::optional<std::uint32_t> estimatedSize; // kibibytes
};

// nullopt when the subkey does not open.
std::optional<UninstallEntry> readUninstallEntry(const Registry& registry, Hive hive, const std::wstring& keyPath);

// Every readable subkey of the four roots, root by root in order; roots that do not open are
// skipped, and a root's subkeys are taken until the first name that cannot be read. Reading ends
// early, with what was read so far, once `stop` (when not null) reads true.
std::vector<UninstallEntry> readUninstallEntries(const Registry& registry, const std::atomic<bool>* stop = nullptr);

// Explorer's per-user run counters ("UserAssist"): the two Count keys that hold executables.
const std::vector<std::wstring>& userAssistCountKeys();

constexpr std::size_t UserAssistNameChars = 2048;
// The data buffer is 64 bytes on purpose: the 72-byte records current Windows writes do not fit
// and are skipped, which keeps the usage marks conservative.
constexpr std::size_t UserAssistDataBytes = 64;
constexpr std::size_t UserAssistMinBytes = 24;
constexpr std::size_t UserAssistTimeOffset = 16;

struct UserAssistValue {
    std::wstring encodedName; // ROT13, as stored
    std::uint64_t lastRun = 0; // FILETIME: 100 ns units since 1601
};

// One enumerated value as a usage record: nullopt unless it was read, is binary and holds at
// least 24 bytes.
std::optional<UserAssistValue> decodeUserAssistValue(const EnumeratedValue& value);

// The usable values of both Count keys, in key and index order: enumerated successfully, binary,
// and at least 24 bytes long.
std::vector<UserAssistValue> readUserAssistValues(const Registry& registry);

} // namespace platform
