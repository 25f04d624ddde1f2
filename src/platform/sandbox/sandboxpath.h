#pragma once

#include <cerrno>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace platform {

// Owns one file descriptor; closing keeps errno, so a failing call can be followed by cleanup
// before its error is read.
class UniqueFd {
public:
    explicit UniqueFd(int fd = -1)
        : m_fd(fd)
    {
    }
    ~UniqueFd() { reset(); }
    UniqueFd(const UniqueFd&) = delete;
    UniqueFd& operator=(const UniqueFd&) = delete;
    UniqueFd(UniqueFd&& other) noexcept
        : m_fd(other.release())
    {
    }
    UniqueFd& operator=(UniqueFd&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }

    int get() const { return m_fd; }
    bool isValid() const { return m_fd >= 0; }
    int release()
    {
        const int fd = m_fd;
        m_fd = -1;
        return fd;
    }
    void reset(int fd = -1)
    {
        if (m_fd >= 0) {
            const int saved = errno;
            ::close(m_fd);
            errno = saved;
        }
        m_fd = fd;
    }

private:
    int m_fd;
};

// The components of `path` below `folder`, after the lexical clean-up Win32 gives every path
// ("a/link/../b" names "a/b" there, whatever "link" is). nullopt unless the path lies strictly
// inside the folder.
std::optional<std::vector<std::string>> componentsBelow(const std::string& folder, const std::string& path);

// Opens the folder that holds the last of `components`, starting at `root` (trusted as given)
// and following no link on the way. Invalid when a step is missing, not a folder, or a link.
UniqueFd openParentFolder(const std::string& root, const std::vector<std::string>& components);

// Reads a regular file that `name` names in the open folder `dirFd` itself, not through a link;
// nullopt when it is anything else or larger than `maxBytes`.
std::optional<std::string> readFileAt(int dirFd, const std::string& name, std::size_t maxBytes);

} // namespace platform
