#pragma once

#include "../registry.h"

namespace platform {

// The machine's registry through advapi32. Keys are opened without a view flag, so a 64-bit
// build sees the 64-bit view as any 64-bit program does. Buffers have exactly the sizes the
// caller asks for; data that does not fit comes back as MoreData, never cut short.
class WinRegistry final : public Registry {
public:
    WinRegistry() = default;

    bool keyExists(Hive hive, const std::wstring& path) const override;
    std::optional<std::vector<std::wstring>> subKeys(
        Hive hive, const std::wstring& path, std::size_t maxNameChars) const override;
    std::optional<std::uint32_t> subKeyCount(Hive hive, const std::wstring& path) const override;
    std::optional<std::vector<EnumeratedValue>> enumValues(
        Hive hive, const std::wstring& path, std::size_t maxNameChars, std::size_t maxDataBytes) const override;
    Status queryValue(Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes,
        RawValue& out) const override;
    Status createKey(Hive hive, const std::wstring& path) override;
    Status setValue(Hive hive, const std::wstring& path, const RawValue& value) override;
    Status deleteTree(Hive hive, const std::wstring& path) override;
    Status deleteValue(Hive hive, const std::wstring& path, const std::wstring& name) override;
};

} // namespace platform
