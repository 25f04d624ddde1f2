#include "sandboxfilesystem.h"

#include "../strings.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

bool SandboxFileSystem::removeFolder(const std::wstring& folder)
{
    std::wstring path = folder;
    while (path.size() > 1 && path.back() == L'/')
        path.pop_back();
    const std::size_t slash = path.rfind(L'/');
    if (slash == std::wstring::npos)
        return false;
    const std::wstring leaf = path.substr(slash + 1);
    if (leaf.empty() || leaf == L"." || leaf == L"..")
        return false;
    // The parent is opened like every other folder here, so the sandbox root itself (whose parent
    // lies outside) and anything reached through a link are refused.
    const int parentFd = openFolder(slash == 0 ? std::wstring(L"/") : path.substr(0, slash));
    if (parentFd < 0)
        return false;
    bool gone = false;
    struct stat parent, self;
    const std::string name = toUtf8(leaf);
    if (::fstat(parentFd, &parent) == 0 && ::fstatat(parentFd, name.c_str(), &self, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISDIR(self.st_mode) && self.st_dev == parent.st_dev) {
        emptyFolder(path);
        gone = ::unlinkat(parentFd, name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT;
    }
    ::close(parentFd);
    return gone;
}

} // namespace platform
