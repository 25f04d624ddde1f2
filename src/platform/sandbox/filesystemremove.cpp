#include "sandboxfilesystem.h"

#include "../strings.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

bool SandboxFileSystem::removeFile(const std::wstring& path)
{
    std::string full = toUtf8(path);
    while (full.size() > 1 && full.back() == '/')
        full.pop_back();
    const std::size_t slash = full.rfind('/');
    if (slash == std::string::npos)
        return false;
    const std::string leaf = full.substr(slash + 1);
    if (leaf.empty() || leaf == "." || leaf == "..")
        return false;

    // The parent is reached one component at a time below the root without following links, so
    // nothing outside the root can be the entry removed here.
    const int parent = openFolder(fromUtf8(slash == 0 ? std::string("/") : full.substr(0, slash)));
    if (parent < 0)
        return false;
    struct stat st;
    bool gone;
    if (::fstatat(parent, leaf.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0)
        gone = errno == ENOENT;
    else if (S_ISDIR(st.st_mode))
        gone = false;
    else // unlinkat never follows a link: the link goes, its target stays
        gone = ::unlinkat(parent, leaf.c_str(), 0) == 0 || errno == ENOENT;
    ::close(parent);
    return gone;
}

} // namespace platform
