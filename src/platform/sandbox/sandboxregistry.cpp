#include "sandboxregistry.h"

#include "sandboxpath.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// The registry file is read as itself: a link planted in its place leads nowhere.
std::vector<std::uint8_t> readWholeFile(const std::string& path)
{
    UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat st;
    if (!fd.isValid() || ::fstat(fd.get(), &st) != 0 || !S_ISREG(st.st_mode))
        return {};
    std::vector<std::uint8_t> bytes;
    std::uint8_t buffer[64 * 1024];
    for (;;) {
        const ssize_t n = ::read(fd.get(), buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return bytes;
        bytes.insert(bytes.end(), buffer, buffer + n);
    }
}

// A new file that nothing else named before: a link or file planted under the name is removed
// (as itself) and the name taken afresh, never written through.
UniqueFd createFresh(const std::string& path)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        UniqueFd fd(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644));
        if (fd.isValid() || errno != EEXIST || ::unlink(path.c_str()) != 0)
            return fd;
    }
    return UniqueFd();
}

bool writeAll(int fd, const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
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
        UniqueFd out = createFresh(temp);
        if (!out.isValid())
            return Status::Failed;
        if (!writeAll(out.get(), text)) {
            out.reset();
            ::unlink(temp.c_str());
            return Status::Failed;
        }
    }
    // rename() replaces the old file in one step, so a reader never sees half a registry; a link
    // in its place is replaced too, never followed.
    if (std::rename(temp.c_str(), m_file.c_str()) != 0) {
        std::remove(temp.c_str());
        return Status::Failed;
    }
    return Status::Ok;
}

} // namespace platform
