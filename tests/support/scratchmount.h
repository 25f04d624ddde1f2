#pragma once

// Small file systems for tests that need a full disk or read-only media. Mounting needs a mount
// namespace of the test's own, so that nothing it mounts is seen (or left behind) outside it.
// Qt-free; Linux only.

#include <string>

namespace scratchmount {

// Moves the process into a private mount namespace: as root a plain one, otherwise inside a new
// user namespace where the caller is root. Must run while the process has one thread, i.e. first
// thing in main(). Returns why it could not, or an empty string.
std::string enterPrivateNamespace();

// A tmpfs of `kib` KiB mounted on an existing empty folder for as long as the object lives.
class Tmpfs {
public:
    Tmpfs(const std::string& folder, unsigned kib);
    ~Tmpfs();
    Tmpfs(const Tmpfs&) = delete;
    Tmpfs& operator=(const Tmpfs&) = delete;

    // Empty when mounted; otherwise why not.
    const std::string& error() const { return m_error; }

    // Takes every free block with one file, so that the next write of any size fails for space.
    bool fill();
    // Remounts the file system read-only, as a write-protected card or a read-only share is.
    bool makeReadOnly();

private:
    std::string m_folder;
    std::string m_error;
    bool m_mounted = false;
};

// `from` mounted again at `to` (a folder on a folder, a file on a file) for as long as the object
// lives: the Unix stand-in for a junction or a mounted folder in a tree being cleaned.
class Bind {
public:
    Bind(const std::string& from, const std::string& to);
    ~Bind();
    Bind(const Bind&) = delete;
    Bind& operator=(const Bind&) = delete;

    const std::string& error() const { return m_error; }

private:
    std::string m_to;
    std::string m_error;
};

} // namespace scratchmount
