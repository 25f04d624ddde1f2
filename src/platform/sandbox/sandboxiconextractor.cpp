#include "sandboxiconextractor.h"

#include "../strings.h"
#include "sandboxenvironment.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace platform {

namespace {

constexpr std::uint32_t ErrorFileNotFound = 2;
constexpr std::uint32_t ErrorResourceTypeNotFound = 1813;
// Real icon files are a few hundred kilobytes at most; anything larger is not read.
constexpr std::uintmax_t MaxIconFileBytes = 4 * 1024 * 1024;

// Judged on the resolved path: a link inside the sandbox must not lead a read out of it.
bool insideRoot(const fs::path& root, const fs::path& path)
{
    std::error_code ec;
    const fs::path base = fs::weakly_canonical(root, ec);
    const fs::path target = fs::weakly_canonical(path, ec);
    if (ec)
        return false;
    auto b = base.begin();
    auto t = target.begin();
    for (; b != base.end(); ++b, ++t) {
        if (b->empty())
            break;
        if (t == target.end() || *b != *t)
            return false;
    }
    return t != target.end();
}

bool readImageFile(const fs::path& file, std::vector<std::uint8_t>& out)
{
    std::error_code ec;
    if (!fs::is_regular_file(file, ec))
        return false;
    const std::uintmax_t size = fs::file_size(file, ec);
    if (ec || size == 0 || size > MaxIconFileBytes)
        return false;
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return false;
    out.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return !out.empty();
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
    const fs::path file(toUtf8(env.mapPath(path)));
    std::error_code ec;
    if (path.empty() || !insideRoot(fs::path(toUtf8(m_root)), file) || !fs::exists(file, ec)) {
        result.error = ErrorFileNotFound;
        return result;
    }
    const std::wstring ext = lowerAscii(fromUtf8(file.extension().string()));
    if (ext == L".ico" || ext == L".png") {
        if (!readImageFile(file, result.image.encoded))
            result.error = ErrorResourceTypeNotFound;
        return result;
    }
    const std::string base = file.string();
    const std::string candidates[] = {
        base + "." + std::to_string(index) + ".ico",
        base + "." + std::to_string(index) + ".png",
        base + ".ico",
        base + ".png",
    };
    for (const std::string& candidate : candidates) {
        if (insideRoot(fs::path(toUtf8(m_root)), fs::path(candidate))
            && readImageFile(fs::path(candidate), result.image.encoded))
            return result;
    }
    result.error = ErrorResourceTypeNotFound;
    return result;
}

} // namespace platform
