#include "sandboxregistry.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace platform {

namespace {

std::vector<std::uint8_t> readWholeFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return {};
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

SandboxRegistry::SandboxRegistry(std::string regFilePath)
    : m_file(std::move(regFilePath))
{
    if (!m_file.empty())
        RegFile::parse(readWholeFile(m_file), m_tree);
}

bool SandboxRegistry::keyExists(Hive hive, const std::wstring& path) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_tree.find(hive, path) != nullptr;
}

std::optional<std::vector<std::wstring>> SandboxRegistry::subKeys(
    Hive hive, const std::wstring& path, std::size_t maxNameChars) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const RegNode* node = m_tree.find(hive, path);
    if (!node)
        return std::nullopt;
    std::vector<std::wstring> names;
    for (const auto& [key, child] : node->children) {
        // The name buffer holds the terminator too; a name that does not fit ends the walk,
        // as RegEnumKeyExW's ERROR_MORE_DATA would.
        if (child->name.size() + 1 > maxNameChars)
            break;
        names.push_back(child->name);
    }
    return names;
}

std::optional<std::uint32_t> SandboxRegistry::subKeyCount(Hive hive, const std::wstring& path) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const RegNode* node = m_tree.find(hive, path);
    if (!node)
        return std::nullopt;
    return static_cast<std::uint32_t>(node->children.size());
}

std::optional<std::vector<EnumeratedValue>> SandboxRegistry::enumValues(
    Hive hive, const std::wstring& path, std::size_t maxNameChars, std::size_t maxDataBytes) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const RegNode* node = m_tree.find(hive, path);
    if (!node)
        return std::nullopt;
    std::vector<EnumeratedValue> out;
    out.reserve(node->values.size());
    for (const RawValue& v : node->values) {
        EnumeratedValue e;
        if (v.name.size() + 1 > maxNameChars || v.data.size() > maxDataBytes) {
            e.status = Status::MoreData;
        } else {
            e.status = Status::Ok;
            e.value = v;
        }
        out.push_back(std::move(e));
    }
    return out;
}

Status SandboxRegistry::queryValue(
    Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes, RawValue& out) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const RegNode* node = m_tree.find(hive, path);
    if (!node)
        return Status::NotFound;
    const RawValue* v = node->value(name);
    if (!v)
        return Status::NotFound;
    if (v->data.size() > maxDataBytes)
        return Status::MoreData;
    out = *v;
    return Status::Ok;
}

Status SandboxRegistry::createKey(Hive hive, const std::wstring& path)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_tree.ensure(hive, path);
    return save();
}

Status SandboxRegistry::setValue(Hive hive, const std::wstring& path, const RawValue& value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_tree.ensure(hive, path).setValue(value);
    return save();
}

Status SandboxRegistry::deleteTree(Hive hive, const std::wstring& path)
{
    // A path naming no key below the hive would mean the hive itself, which is never deleted;
    // reporting that as "already gone" would hide a caller's empty key name.
    if (splitKeyPath(path).empty())
        return Status::Failed;
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_tree.remove(hive, path))
        return Status::Ok;
    return save();
}

Status SandboxRegistry::deleteValue(Hive hive, const std::wstring& path, const std::wstring& name)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    RegNode* node = m_tree.find(hive, path);
    if (!node || !node->removeValue(name))
        return Status::Ok;
    return save();
}

void SandboxRegistry::importRegFile(const std::vector<std::uint8_t>& bytes)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    RegFile::parse(bytes, m_tree);
    save();
}

Status SandboxRegistry::save()
{
    if (m_file.empty())
        return Status::Ok;
    const std::string text = RegFile::serialize(m_tree);
    const std::string temp = m_file + ".saving";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out)
            return Status::Failed;
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
        out.flush();
        if (!out)
            return Status::Failed;
    }
    // rename() replaces the old file in one step, so a reader never sees half a registry.
    if (std::rename(temp.c_str(), m_file.c_str()) != 0) {
        std::remove(temp.c_str());
        return Status::Failed;
    }
    return Status::Ok;
}

} // namespace platform
