#include "scratchmount.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#include <vector>

namespace scratchmount {

namespace {

std::string why(const char* step)
{
    return std::string(step) + ": " + std::strerror(errno);
}

bool writeText(const char* path, const std::string& text)
{
    const int fd = ::open(path, O_WRONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool ok = ::write(fd, text.data(), text.size()) == ssize_t(text.size());
    ::close(fd);
    return ok;
}

} // namespace

std::string enterPrivateNamespace()
{
    const uid_t uid = ::geteuid();
    const gid_t gid = ::getegid();
    if (uid == 0) {
        if (::unshare(CLONE_NEWNS) != 0)
            return why("unshare(CLONE_NEWNS)");
    } else {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return why("unshare(CLONE_NEWUSER | CLONE_NEWNS)");
        if (!writeText("/proc/self/setgroups", "deny")
            || !writeText("/proc/self/uid_map", "0 " + std::to_string(uid) + " 1")
            || !writeText("/proc/self/gid_map", "0 " + std::to_string(gid) + " 1"))
            return why("user namespace id maps");
    }
    // Without this a mount made here would show up in the namespace the test was started from.
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return why("making mounts private");
    return {};
}

Tmpfs::Tmpfs(const std::string& folder, unsigned kib)
    : m_folder(folder)
{
    const std::string options = "size=" + std::to_string(kib) + "k,mode=0755";
    if (::mount("tmpfs", folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, options.c_str()) != 0)
        m_error = why("mount -t tmpfs");
    else
        m_mounted = true;
}

Tmpfs::~Tmpfs()
{
    if (m_mounted)
        ::umount2(m_folder.c_str(), MNT_DETACH);
}

bool Tmpfs::fill()
{
    const int fd = ::open((m_folder + "/.filler").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const std::vector<char> block(4096, 'f');
    ssize_t n;
    while ((n = ::write(fd, block.data(), block.size())) > 0) { }
    const bool full = n < 0 && errno == ENOSPC;
    // Partial pages: one byte at a time until not even that fits.
    while (full && ::write(fd, block.data(), 1) == 1) { }
    ::close(fd);
    return full;
}

bool Tmpfs::makeReadOnly()
{
    return m_mounted
        && ::mount(nullptr, m_folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY | MS_NOSUID | MS_NODEV, nullptr) == 0;
}

Bind::Bind(const std::string& from, const std::string& to)
    : m_to(to)
{
    if (::mount(from.c_str(), to.c_str(), nullptr, MS_BIND, nullptr) != 0)
        m_error = why("mount --bind");
}

Bind::~Bind()
{
    if (m_error.empty())
        ::umount2(m_to.c_str(), MNT_DETACH);
}

} // namespace scratchmount
