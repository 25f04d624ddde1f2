#include "sandboxpackagecatalogue.h"

#include "../strings.h"
#include "sandboxenvironment.h"

#include <fstream>
#include <sstream>

namespace platform {

namespace {

// A real catalogue of a few hundred packages is well below this; a larger file is not read.
constexpr std::streamoff MaxFileBytes = 8 * 1024 * 1024;

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos)
        return std::string();
    const auto last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

bool parseBool(const std::string& value)
{
    return value == "1" || value == "true" || value == "yes";
}

std::uint16_t parsePart(const std::string& text)
{
    if (text.empty() || text.size() > 5 || text.find_first_not_of("0123456789") != std::string::npos)
        return 0;
    const unsigned long n = std::stoul(text);
    return n > 0xFFFF ? 0 : std::uint16_t(n);
}

PackageVersion parseVersion(const std::string& value)
{
    std::uint16_t parts[4] = {};
    std::stringstream in(value);
    std::string part;
    for (int i = 0; i < 4 && std::getline(in, part, '.'); ++i)
        parts[i] = parsePart(trimmed(part));
    return { parts[0], parts[1], parts[2], parts[3] };
}

PackageSignature parseSignature(const std::string& value)
{
    static const std::pair<const char*, PackageSignature> names[] = { { "none", PackageSignature::None },
        { "developer", PackageSignature::Developer }, { "enterprise", PackageSignature::Enterprise },
        { "store", PackageSignature::Store }, { "system", PackageSignature::System } };
    for (const auto& [name, kind] : names) {
        if (value == name || value == std::to_string(int(kind)))
            return kind;
    }
    return PackageSignature::None;
}

bool hasParentStep(const std::wstring& path)
{
    std::wstring part;
    for (std::size_t i = 0; i <= path.size(); ++i) {
        if (i == path.size() || path[i] == L'/' || path[i] == L'\\') {
            if (part == L"..")
                return true;
            part.clear();
        } else {
            part += path[i];
        }
    }
    return false;
}

// Only system-drive paths stand for something inside the sandbox.
std::wstring mapLocation(const SandboxEnvironment& env, const std::wstring& windowsPath)
{
    const bool onSystemDrive = windowsPath.size() >= 3 && (windowsPath[0] == L'C' || windowsPath[0] == L'c')
        && windowsPath[1] == L':' && (windowsPath[2] == L'\\' || windowsPath[2] == L'/');
    if (!onSystemDrive || hasParentStep(windowsPath))
        return std::wstring();
    std::wstring mapped = env.mapPath(windowsPath);
    while (mapped.size() > 1 && mapped.back() == L'/')
        mapped.pop_back();
    return mapped;
}

void setField(PackageRecord& record, const SandboxEnvironment& env, const std::string& key, const std::string& value)
{
    if (key == "name")
        record.name = fromUtf8(value);
    else if (key == "fullName")
        record.fullName = fromUtf8(value);
    else if (key == "familyName")
        record.familyName = fromUtf8(value);
    else if (key == "publisherId")
        record.publisherId = fromUtf8(value);
    else if (key == "version")
        record.version = parseVersion(value);
    else if (key == "location")
        record.installLocation = mapLocation(env, fromUtf8(value));
    else if (key == "displayName")
        record.displayName = fromUtf8(value);
    else if (key == "publisherDisplayName")
        record.publisherDisplayName = fromUtf8(value);
    else if (key == "framework")
        record.isFramework = parseBool(value);
    else if (key == "resource")
        record.isResourcePackage = parseBool(value);
    else if (key == "bundle")
        record.isBundle = parseBool(value);
    else if (key == "signature")
        record.signature = parseSignature(value);
}

} // namespace

SandboxPackageCatalogue::SandboxPackageCatalogue(std::wstring root)
    : m_root(std::move(root))
{
}

std::optional<SandboxPackageCatalogue::Contents> SandboxPackageCatalogue::load() const
{
    std::ifstream in(toUtf8(m_root + L"/" + fileName()), std::ios::binary);
    if (!in)
        return std::nullopt;
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    if (size < 0 || size > MaxFileBytes)
        return std::nullopt;
    in.seekg(0);

    const SandboxEnvironment env(m_root);
    Contents contents;
    enum class Section { None, Package, Strings } section = Section::None;
    std::string line;
    while (std::getline(in, line)) {
        line = trimmed(line);
        if (line.empty() || line[0] == '#')
            continue;
        if (line == "[package]") {
            section = Section::Package;
            contents.packages.emplace_back();
            continue;
        }
        if (line == "[strings]") {
            section = Section::Strings;
            continue;
        }
        if (line[0] == '[') {
            section = Section::None;
            continue;
        }
        if (section == Section::Package) {
            const auto eq = line.find('=');
            if (eq != std::string::npos)
                setField(contents.packages.back(), env, trimmed(line.substr(0, eq)), trimmed(line.substr(eq + 1)));
        } else if (section == Section::Strings) {
            // The source ends at its closing brace; the value may hold anything, "=" included.
            const auto close = line.find("}=");
            if (line.compare(0, 2, "@{") == 0 && close != std::string::npos)
                contents.strings[fromUtf8(line.substr(0, close + 1))] = fromUtf8(line.substr(close + 2));
        }
    }
    return contents;
}

CatalogueStatus SandboxPackageCatalogue::forEachPackage(const Filter& wanted, const Visitor& visit)
{
    std::optional<Contents> contents = load();
    if (!contents)
        return { false, ClassNotRegistered, "activate" };
    {
        const std::lock_guard lock(m_mutex);
        m_strings = contents->strings;
        m_loaded = true;
    }
    for (const PackageRecord& full : contents->packages) {
        PackageRecord kind;
        kind.name = full.name;
        kind.isFramework = full.isFramework;
        kind.isResourcePackage = full.isResourcePackage;
        kind.isBundle = full.isBundle;
        kind.signature = full.signature;
        if (wanted(kind))
            visit(full);
    }
    return {};
}

std::optional<std::wstring> SandboxPackageCatalogue::loadIndirectString(const std::wstring& source)
{
    std::unique_lock lock(m_mutex);
    if (!m_loaded) {
        lock.unlock();
        std::optional<Contents> contents = load();
        lock.lock();
        if (contents)
            m_strings = contents->strings;
        m_loaded = true;
    }
    const auto it = m_strings.find(source);
    if (it == m_strings.end())
        return std::nullopt;
    return it->second;
}

} // namespace platform
