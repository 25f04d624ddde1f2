#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

enum class Hive { ClassesRoot, CurrentUser, LocalMachine, Users };

// Registry value types, with the numbers Windows gives them.
enum ValueType : std::uint32_t {
    TypeNone = 0,
    TypeString = 1,
    TypeExpandString = 2,
    TypeBinary = 3,
    TypeDword = 4,
    TypeMultiString = 7,
    TypeQword = 11,
};

// Outcome of a registry call, folded from the Win32 error codes the features tell apart.
enum class Status { Ok, NotFound, MoreData, AccessDenied, Failed };

inline bool isNotFound(Status s)
{
    return s == Status::NotFound;
}

struct RawValue {
    std::wstring name;
    std::uint32_t type = TypeNone;
    std::vector<std::uint8_t> data;
};

// One index of a value enumeration: the call's status and, when it succeeded, the value.
struct EnumeratedValue {
    Status status = Status::Failed;
    RawValue value;
};

// The registry as the features see it: keys addressed by hive and backslash path, buffers
// sized by the caller exactly as the Win32 calls would be. A value whose data does not fit
// the caller's buffer is reported as MoreData, never cut short.
class Registry {
public:
    virtual ~Registry() = default;

    virtual bool keyExists(Hive hive, const std::wstring& path) const = 0;

    // Subkey names by index until the first failing index; nullopt when the key does not open.
    virtual std::optional<std::vector<std::wstring>> subKeys(
        Hive hive, const std::wstring& path, std::size_t maxNameChars = 256) const = 0;
    virtual std::optional<std::uint32_t> subKeyCount(Hive hive, const std::wstring& path) const = 0;

    // Every index until there are no more items, failed ones included (MoreData for a name or
    // data that does not fit), so that each caller keeps its own stop-or-skip rule.
    virtual std::optional<std::vector<EnumeratedValue>> enumValues(
        Hive hive, const std::wstring& path, std::size_t maxNameChars, std::size_t maxDataBytes) const = 0;

    // An empty name is the key's default value.
    virtual Status queryValue(Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes,
        RawValue& out) const = 0;

    virtual Status createKey(Hive hive, const std::wstring& path) = 0;
    // Creates the key when needed.
    virtual Status setValue(Hive hive, const std::wstring& path, const RawValue& value) = 0;
    // Removing what is already gone succeeds, for keys and values alike.
    virtual Status deleteTree(Hive hive, const std::wstring& path) = 0;
    virtual Status deleteValue(Hive hive, const std::wstring& path, const std::wstring& name) = 0;

    // Typed reads over queryValue.
    // A string read: REG_SZ or REG_EXPAND_SZ, ended at the first zero or at the data's end when
    // the terminator is missing. Data longer than maxDataBytes fails.
    std::optional<std::wstring> readString(
        Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes = 2048) const;
    std::optional<std::uint32_t> readDword(Hive hive, const std::wstring& path, const std::wstring& name) const;
    std::optional<std::uint64_t> readQword(Hive hive, const std::wstring& path, const std::wstring& name) const;
    std::optional<std::vector<std::uint8_t>> readBinary(
        Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes) const;

    // Writers used by tests and demo data.
    Status setString(Hive hive, const std::wstring& path, const std::wstring& name, const std::wstring& text,
        std::uint32_t type = TypeString);
    Status setDword(Hive hive, const std::wstring& path, const std::wstring& name, std::uint32_t v);
    Status setQword(Hive hive, const std::wstring& path, const std::wstring& name, std::uint64_t v);
    Status setBinary(
        Hive hive, const std::wstring& path, const std::wstring& name, const std::vector<std::uint8_t>& bytes);
};

// UTF-16LE registry bytes <-> wide strings (wchar_t is 32 bits off Windows).
std::wstring decodeRegistryString(const std::uint8_t* data, std::size_t bytes);
std::vector<std::uint8_t> encodeRegistryString(const std::wstring& text, bool terminate = true);

} // namespace platform
