#pragma once

// A fingerprint of everything below a folder, for tests that must prove an operation left a
// region of the disk alone. Qt-free, so the platform lane can use it under Wine too.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <system_error>
#include <vector>

namespace treedigest {

// Relative path -> what is there: "D" for a folder, "L:<target>" for a link, "F<size>:<hash>" for
// a file. Nothing behind a link is read, so a link to the region does not count it twice.
using Digest = std::map<std::string, std::string>;

inline std::string fileFingerprint(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::uint64_t hash = 1469598103934665603ull; // FNV-1a
    for (const unsigned char c : bytes)
        hash = (hash ^ c) * 1099511628211ull;
    return "F" + std::to_string(bytes.size()) + ":" + std::to_string(hash);
}

// Adds what lies below `folder` (not the folder itself), skipping the entries named in `skipped`
// with all they hold.
inline void addTree(Digest& digest, const std::filesystem::path& folder,
    const std::vector<std::filesystem::path>& skipped, const std::filesystem::path& base)
{
    namespace fs = std::filesystem;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const fs::path path = it->path();
        bool skip = false;
        for (const fs::path& s : skipped)
            skip = skip || path.lexically_normal() == s.lexically_normal();
        if (skip)
            continue;
        const std::string key = path.lexically_relative(base).generic_string();
        const fs::file_status status = it->symlink_status(error);
        if (fs::is_symlink(status)) {
            digest[key] = "L:" + fs::read_symlink(path, error).generic_string();
        } else if (fs::is_directory(status)) {
            digest[key] = "D";
            addTree(digest, path, skipped, base);
        } else {
            digest[key] = fileFingerprint(path);
        }
        error.clear();
    }
}

inline Digest of(const std::filesystem::path& folder, const std::vector<std::filesystem::path>& skipped = {})
{
    Digest digest;
    addTree(digest, folder, skipped, folder);
    return digest;
}

// Entries of `before` that are gone or different in `after`: what an operation took or spoilt.
inline std::vector<std::string> lost(const Digest& before, const Digest& after)
{
    std::vector<std::string> gone;
    for (const auto& [path, fingerprint] : before) {
        const auto now = after.find(path);
        if (now == after.end() || now->second != fingerprint)
            gone.push_back(path);
    }
    return gone;
}

} // namespace treedigest
