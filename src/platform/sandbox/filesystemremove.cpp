#include "sandboxfilesystem.h"

#include "../strings.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

struct FdCloser {
    int fd = -1;
    ~FdCloser()
    {
        if (fd >= 0)
            ::close(fd);
    }
};

void noteFailure(RemoveTreeResult& result, int error)
{
    ++result.failed;
    if (result.firstError == 0)
        result.firstError = static_cast<std::uint32_t>(error);
}

} // namespace

RemoveTreeResult SandboxFileSystem::removeTree(const std::wstring& path)
{
    RemoveTreeResult result;
    std::string full = toUtf8(path);
    while (full.size() > 1 && full.back() == '/')
        full.pop_back();
    const std::size_t slash = full.rfind('/');
    if (slash == std::string::npos) {
        result.firstError = EINVAL;
        return result;
    }
    const std::string leaf = full.substr(slash + 1);
    if (leaf.empty() || leaf == "." || leaf == "..") {
        result.firstError = EINVAL;
        return result;
    }

    // The parent is reached one component at a time below the root without following links, so
    // the root itself and anything outside it can never be the entry removed here.
    errno = 0;
    FdCloser parent { openFolder(fromUtf8(slash == 0 ? std::string("/") : full.substr(0, slash))) };
    if (parent.fd < 0) {
        result.firstError = errno ? errno : ENOENT;
        return result;
    }
    struct stat st;
    if (::fstatat(parent.fd, leaf.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0) {
        if (errno != ENOENT)
            result.firstError = errno;
        return result;
    }
    result.existed = true;

    if (S_ISDIR(st.st_mode)) {
        struct stat parentSt;
        if (::fstat(parent.fd, &parentSt) != 0 || parentSt.st_dev != st.st_dev) {
            // A mounted volume is neither entered nor removed, as the walks never leave their device.
            noteFailure(result, EXDEV);
            return result;
        }
        const EmptyFolderResult emptied = emptyFolder(fromUtf8(full));
        result.failed += emptied.failed;
        if (result.firstError == 0)
            result.firstError = emptied.firstError;
    }
    // unlinkat never follows a link: a link (to a folder or a file) goes as itself.
    if (::unlinkat(parent.fd, leaf.c_str(), S_ISDIR(st.st_mode) ? AT_REMOVEDIR : 0) == 0 || errno == ENOENT)
        result.removed = true;
    else
        noteFailure(result, errno);
    return result;
}

} // namespace platform
