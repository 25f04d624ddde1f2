#pragma once

#include "../registry.h"
#include "regfile.h"

#include <mutex>
#include <string>

namespace platform {

// The sandbox's registry: a tree in memory, loaded from a regedit export file and written back
// (atomically) after every change. An empty file name keeps it in memory only.
class SandboxRegistry final : public Registry {
public:
    explicit SandboxRegistry(std::string regFilePath = std::string());

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

    // Merges a regedit export into the tree (and the file), as importing it with regedit would.
    void importRegFile(const std::vector<std::uint8_t>& bytes);

private:
    Status save();

    std::string m_file;
    mutable std::mutex m_mutex;
    RegTree m_tree;
};

} // namespace platform
