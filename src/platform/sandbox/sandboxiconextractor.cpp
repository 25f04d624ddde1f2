#include "sandboxiconextractor.h"

#include "../strings.h"
#include "sandboxenvironment.h"

#include "sandboxpath.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace platform {

namespace {

constexpr std::uint32_t ErrorFileNotFound = 2;
constexpr std::uint32_t ErrorResourceTypeNotFound = 1813;
// Real icon files are a few hundred kilobytes at most; anything larger is not read.
constexpr std::uintmax_t MaxIconFileBytes = 4 * 1024 * 1024;

// Reads a file at or below the sandbox folder, reached one folder at a time without following a
// link, so a link inside the sandbox cannot lead a read out of it.
std::optional<std::vector<std::uint8_t>> readInside(const std::string& root, const std::string& path)
{
    const auto components = componentsBelow(root, path);
    if (!components)
        return std::nullopt;
    const UniqueFd folder = openParentFolder(root, *components);
    if (!folder.isValid())
        return std::nullopt;
    const auto bytes = readFileAt(folder.get(), components->back(), MaxIconFileBytes);
    if (!bytes || bytes->empty())
        return std::nullopt;
    return std::vector<std::uint8_t>(bytes->begin(), bytes->end());
}

bool existsInside(const std::string& root, const std::string& path)
{
    const auto components = componentsBelow(root, path);
    if (!components)
        return false;
    const UniqueFd folder = openParentFolder(root, *components);
    struct stat st;
    return folder.isValid() && ::fstatat(folder.get(), components->back().c_str(), &st, AT_SYMLINK_NOFOLLOW) == 0;
}

} // namespace

SandboxIconExtractor::SandboxIconExtractor(std::wstring root)
    : m_root(std::move(root))
{
}

IconResult SandboxIconExtractor::extract(const std::wstring& path, int index)
{
    IconResult result;
    const SandboxEnvironment env(m_root);
    const std::string root = toUtf8(m_root);
    const std::string file = toUtf8(env.mapPath(path));
    if (path.empty() || !existsInside(root, file)) {
        result.error = ErrorFileNotFound;
        return result;
    }
    const std::wstring ext = lowerAscii(fromUtf8(fs::path(file).extension().string()));
    if (ext == L".ico" || ext == L".png") {
        if (auto bytes = readInside(root, file))
            result.image.encoded = std::move(*bytes);
        else
            result.error = ErrorResourceTypeNotFound;
        return result;
    }
    const std::string candidates[] = {
        file + "." + std::to_string(index) + ".ico",
        file + "." + std::to_string(index) + ".png",
        file + ".ico",
        file + ".png",
    };
    for (const std::string& candidate : candidates) {
        if (auto bytes = readInside(root, candidate)) {
            result.image.encoded = std::move(*bytes);
            return result;
        }
    }
    result.error = ErrorResourceTypeNotFound;
    return result;
}

} // namespace platform
