// A regedit export read into the sandbox's registry and written back.

#include "fuzztarget.h"

#include "platform/sandbox/regfile.h"

#include <tuple>

namespace {

using Entry = std::tuple<int, std::wstring, std::wstring, std::uint32_t, std::vector<std::uint8_t>>;

// Every key (as a value-less entry) and every value below the hives, in tree order.
void flatten(const platform::RegNode& node, int hive, const std::wstring& path, std::vector<Entry>& out)
{
    for (const platform::RawValue& v : node.values)
        out.emplace_back(hive, path, L"=" + v.name, v.type, v.data);
    for (const auto& [name, child] : node.children) {
        const std::wstring childPath = path + L"\\" + child->name;
        out.emplace_back(hive, childPath, std::wstring(), 0, std::vector<std::uint8_t>());
        flatten(*child, hive, childPath, out);
    }
}

std::vector<Entry> flatten(const platform::RegTree& tree)
{
    std::vector<Entry> out;
    for (const auto& [hive, root] : tree.hives)
        flatten(root, int(hive), std::wstring(), out);
    return out;
}

} // namespace

NORVALE_FUZZ_TARGET(regfile)
{
    platform::RegTree tree;
    platform::RegFile::parse(std::vector<std::uint8_t>(data, data + size), tree);
    const std::string written = platform::RegFile::serialize(tree);
    // The sandbox's registry is this file: what is written must read back key for key and byte
    // for byte.
    platform::RegTree again;
    platform::RegFile::parse(std::vector<std::uint8_t>(written.begin(), written.end()), again);
    FUZZ_CHECK(flatten(again) == flatten(tree));
    return 0;
}
