#pragma once

#include "../registry.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace platform {

// Orders key names as the Windows registry enumerates them: case-insensitively.
struct KeyNameLess {
    bool operator()(const std::wstring& a, const std::wstring& b) const;
};

// One key of an in-memory registry: values in creation order, subkeys in name order.
struct RegNode {
    std::wstring name; // as first written
    std::vector<RawValue> values;
    std::map<std::wstring, std::unique_ptr<RegNode>, KeyNameLess> children;

    RegNode* child(const std::wstring& name) const;
    RegNode& ensureChild(const std::wstring& name);
    RawValue* value(const std::wstring& name);
    const RawValue* value(const std::wstring& name) const;
    void setValue(const RawValue& v);
    bool removeValue(const std::wstring& name);
};

// A registry forest with one node per hive.
struct RegTree {
    std::map<Hive, RegNode> hives;

    RegNode* find(Hive hive, const std::wstring& path);
    const RegNode* find(Hive hive, const std::wstring& path) const;
    RegNode& ensure(Hive hive, const std::wstring& path);
    bool remove(Hive hive, const std::wstring& path);
};

// Reads and writes the regedit export format ("Windows Registry Editor Version 5.00"), in UTF-16LE
// with a byte-order mark as regedit writes it, or in UTF-8. Lines that cannot be understood are
// skipped, so a damaged file still yields everything readable in it.
class RegFile {
public:
    static void parse(const std::vector<std::uint8_t>& bytes, RegTree& into);
    static std::string serialize(const RegTree& tree);

    static bool parseHivePath(const std::wstring& full, Hive& hive, std::wstring& path);
    static std::wstring hiveName(Hive hive);
};

// Splits "A\B\\C" into its non-empty parts.
std::vector<std::wstring> splitKeyPath(const std::wstring& path);

} // namespace platform
