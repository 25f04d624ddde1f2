#include "sandboxfilesystem.h"

#include "../strings.h"
#include "sandboxpath.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace platform {

namespace {

// Each level of a walk keeps its directory open; beyond this depth a folder is left alone rather
// than risking the descriptor limit or the pool thread's stack on a pathological tree.
constexpr int MaxDepth = 400;

// One large read per directory chunk: the listing is the hot path of a scan.
constexpr std::size_t ListingBufferBytes = 64 * 1024;

struct Entry {
    std::string name;
    unsigned char type;
};

// The kernel's record layout for getdents64; glibc does not name it.
struct KernelDirent64 {
    std::uint64_t ino;
    std::int64_t off;
    unsigned short reclen;
    unsigned char type;
    char name[1];
};

// Reads the whole listing first, so the caller may delete entries while it goes through them.
bool readEntries(int dirFd, std::vector<Entry>& out)
{
    out.clear();
    static thread_local std::vector<char> buffer(ListingBufferBytes);
    for (;;) {
        const ssize_t n = ::getdents64(dirFd, buffer.data(), buffer.size());
        if (n == 0)
            return true;
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        for (ssize_t pos = 0; pos < n;) {
            const auto* d = reinterpret_cast<const KernelDirent64*>(buffer.data() + pos);
            pos += d->reclen;
            const char* name = buffer.data() + (pos - d->reclen) + offsetof(KernelDirent64, name);
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
                continue;
            out.push_back({ std::string(name), d->type });
        }
    }
}

int openSubfolder(int parentFd, const char* name)
{
    int fd;
    do {
        fd = ::openat(parentFd, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

// Which mount an open folder belongs to. A folder bind-mounted from the same file system keeps
// the device number, so the kernel's id of the mount is compared as well wherever it is given:
// without it a mount of some outside folder inside a tree would be entered and emptied.
struct MountId {
    dev_t device = 0;
    std::uint64_t mount = 0; // 0 when the kernel does not say

    bool operator==(const MountId& other) const
    {
        return device == other.device && (mount == 0 || other.mount == 0 || mount == other.mount);
    }
    bool operator!=(const MountId& other) const { return !(*this == other); }
};

bool mountOf(int fd, MountId& id)
{
    struct statx sx;
    if (::statx(fd, "", AT_EMPTY_PATH, STATX_MNT_ID, &sx) == 0) {
        id.device = makedev(sx.stx_dev_major, sx.stx_dev_minor);
        id.mount = (sx.stx_mask & STATX_MNT_ID) ? sx.stx_mnt_id : 0;
        return true;
    }
    struct stat st;
    if (::fstat(fd, &st) != 0)
        return false;
    id = { st.st_dev, 0 };
    return true;
}

// The type of an entry without following it; the listing's type when the file system gives one.
unsigned char entryType(int dirFd, const Entry& e)
{
    if (e.type != DT_UNKNOWN)
        return e.type;
    struct stat st;
    if (::fstatat(dirFd, e.name.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    if (S_ISREG(st.st_mode))
        return DT_REG;
    if (S_ISDIR(st.st_mode))
        return DT_DIR;
    if (S_ISLNK(st.st_mode))
        return DT_LNK;
    return DT_UNKNOWN;
}

// The scan's hot path: files are measured straight from the listing buffer, and only the names
// of sub-folders are copied out before descending.
std::int64_t sizeBelow(int dirFd, const MountId& device, int depth)
{
    static thread_local std::vector<char> buffer(ListingBufferBytes);
    std::int64_t total = 0;
    std::vector<std::string> folders;
    for (;;) {
        const ssize_t n = ::getdents64(dirFd, buffer.data(), buffer.size());
        if (n == 0)
            break;
        if (n < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        for (ssize_t pos = 0; pos < n;) {
            const auto* d = reinterpret_cast<const KernelDirent64*>(buffer.data() + pos);
            const char* name = buffer.data() + pos + offsetof(KernelDirent64, name);
            pos += d->reclen;
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
                continue;
            if (d->type == DT_DIR) {
                folders.emplace_back(name);
            } else if (d->type == DT_REG || d->type == DT_UNKNOWN) {
                struct stat st;
                if (::fstatat(dirFd, name, &st, AT_SYMLINK_NOFOLLOW) != 0)
                    continue;
                if (S_ISREG(st.st_mode))
                    total += st.st_size;
                else if (S_ISDIR(st.st_mode))
                    folders.emplace_back(name);
            }
            // Links, sockets, pipes and devices hold no bytes of their own worth counting.
        }
    }
    if (depth >= MaxDepth)
        return total;
    for (const std::string& name : folders) {
        UniqueFd fd(openSubfolder(dirFd, name.c_str()));
        if (!fd.isValid())
            continue;
        MountId id;
        if (!mountOf(fd.get(), id) || id != device)
            continue;
        total += sizeBelow(fd.get(), device, depth + 1);
    }
    return total;
}

void noteFailure(EmptyFolderResult& result, int error)
{
    ++result.failed;
    if (result.firstError == 0)
        result.firstError = static_cast<std::uint32_t>(error);
}

bool unlinkEntry(int dirFd, const char* name, int flags, EmptyFolderResult& result)
{
    if (::unlinkat(dirFd, name, flags) == 0 || errno == ENOENT) {
        ++result.removed;
        return true;
    }
    noteFailure(result, errno);
    return false;
}

// The sandbox's read-only attribute: a file its owner may not write, the reading Wine gives the
// same mode bits. Unix would unlink such a file anyway; Windows refuses a plain delete of it, so
// the emptied folder's own read-only files stay, while inside a folder being removed they go.
bool isReadOnly(int dirFd, const char* name)
{
    struct stat st;
    return ::fstatat(dirFd, name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode) && !(st.st_mode & S_IWUSR);
}

void emptyBelow(int dirFd, const MountId& device, int depth, EmptyFolderResult& result)
{
    std::vector<Entry> entries;
    if (!readEntries(dirFd, entries)) {
        noteFailure(result, errno);
        return;
    }
    for (const Entry& e : entries) {
        const unsigned char type = entryType(dirFd, e);
        if (type != DT_DIR) {
            if (depth == 0 && type == DT_REG && isReadOnly(dirFd, e.name.c_str())) {
                noteFailure(result, EACCES);
                continue;
            }
            // Files, links and anything else go as themselves; unlinkat never follows a link.
            unlinkEntry(dirFd, e.name.c_str(), 0, result);
            continue;
        }
        UniqueFd fd(openSubfolder(dirFd, e.name.c_str()));
        if (!fd.isValid()) {
            // Swapped for a link or a file since the listing: remove what is there now, as itself.
            if (errno == ELOOP || errno == ENOTDIR)
                unlinkEntry(dirFd, e.name.c_str(), 0, result);
            else if (errno != ENOENT)
                noteFailure(result, errno);
            continue;
        }
        MountId id;
        if (!mountOf(fd.get(), id)) {
            noteFailure(result, errno);
            continue;
        }
        if (id != device) {
            // A mount point: neither entered nor removed.
            noteFailure(result, EXDEV);
            continue;
        }
        if (depth >= MaxDepth) {
            noteFailure(result, ELOOP);
            continue;
        }
        emptyBelow(fd.get(), device, depth + 1, result);
        fd.reset();
        unlinkEntry(dirFd, e.name.c_str(), AT_REMOVEDIR, result);
    }
}

} // namespace

SandboxFileSystem::SandboxFileSystem(std::wstring root)
    : m_root(toUtf8(root))
{
    while (m_root.size() > 1 && m_root.back() == '/')
        m_root.pop_back();
}

int SandboxFileSystem::openFolder(const std::wstring& path) const
{
    const std::string full = toUtf8(path);
    std::string rest;
    if (full == m_root) {
        rest.clear();
    } else if (m_root == "/" && !full.empty() && full[0] == '/') {
        rest = full.substr(1);
    } else if (full.size() > m_root.size() && full.compare(0, m_root.size(), m_root) == 0
        && full[m_root.size()] == '/') {
        rest = full.substr(m_root.size() + 1);
    } else {
        return -1;
    }

    // The root itself is trusted as given (it may sit below a linked /tmp); below it every
    // component is opened without following links, and without stepping onto another mount.
    UniqueFd fd(::open(m_root.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    MountId rootMount;
    if (!fd.isValid() || !mountOf(fd.get(), rootMount))
        return -1;
    std::size_t pos = 0;
    while (pos <= rest.size()) {
        std::size_t slash = rest.find('/', pos);
        if (slash == std::string::npos)
            slash = rest.size();
        const std::string part = rest.substr(pos, slash - pos);
        pos = slash + 1;
        if (part.empty() || part == ".")
            continue;
        if (part == "..")
            return -1;
        fd.reset(::openat(fd.get(), part.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        MountId id;
        if (!fd.isValid() || !mountOf(fd.get(), id) || id != rootMount)
            return -1;
    }
    // Reopen the last one for reading; "." of a descriptor opened without following is that folder.
    return ::openat(fd.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool SandboxFileSystem::isFolder(const std::wstring& path)
{
    UniqueFd fd(openFolder(path));
    return fd.isValid();
}

std::optional<std::vector<std::wstring>> SandboxFileSystem::subFolders(const std::wstring& folder)
{
    UniqueFd fd(openFolder(folder));
    if (!fd.isValid())
        return std::nullopt;
    std::vector<Entry> entries;
    if (!readEntries(fd.get(), entries))
        return std::nullopt;
    std::vector<std::wstring> names;
    for (const Entry& e : entries) {
        if (entryType(fd.get(), e) == DT_DIR)
            names.push_back(fromUtf8(e.name));
    }
    return names;
}

std::int64_t SandboxFileSystem::folderSize(const std::wstring& folder)
{
    UniqueFd fd(openFolder(folder));
    MountId id;
    if (!fd.isValid() || !mountOf(fd.get(), id))
        return 0;
    return sizeBelow(fd.get(), id, 0);
}

EmptyFolderResult SandboxFileSystem::emptyFolder(const std::wstring& folder)
{
    EmptyFolderResult result;
    UniqueFd fd(openFolder(folder));
    MountId id;
    if (!fd.isValid() || !mountOf(fd.get(), id))
        return result;
    result.opened = true;
    emptyBelow(fd.get(), id, 0, result);
    return result;
}

namespace {

struct Budget {
    std::uint64_t maxFiles;
    const std::atomic<bool>* stop;
    FolderMeasure measure;

    bool exhausted() const { return measure.files >= maxFiles || (stop && stop->load(std::memory_order_relaxed)); }
};

// sizeBelow with a file budget; false once the budget ran out, which ends the whole walk.
bool measureBelow(int dirFd, const MountId& device, int depth, Budget& budget)
{
    std::vector<Entry> entries;
    if (!readEntries(dirFd, entries))
        return true; // unreadable: it holds nothing we can count, and the walk goes on
    std::vector<const Entry*> folders;
    for (const Entry& e : entries) {
        if (budget.exhausted())
            return false;
        const unsigned char type = entryType(dirFd, e);
        if (type == DT_DIR) {
            folders.push_back(&e);
        } else if (type == DT_REG) {
            struct stat st;
            if (::fstatat(dirFd, e.name.c_str(), &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode)) {
                budget.measure.bytes += st.st_size;
                ++budget.measure.files;
            }
        }
    }
    if (depth >= MaxDepth)
        return true;
    for (const Entry* e : folders) {
        if (budget.exhausted())
            return false;
        UniqueFd fd(openSubfolder(dirFd, e->name.c_str()));
        MountId id;
        if (!fd.isValid() || !mountOf(fd.get(), id) || id != device)
            continue;
        if (!measureBelow(fd.get(), device, depth + 1, budget))
            return false;
    }
    return true;
}

} // namespace

FolderMeasure SandboxFileSystem::measureFolder(
    const std::wstring& folder, std::uint64_t maxFiles, const std::atomic<bool>* stop)
{
    Budget budget { maxFiles, stop, {} };
    UniqueFd fd(openFolder(folder));
    MountId id;
    if (!fd.isValid() || !mountOf(fd.get(), id))
        return budget.measure;
    budget.measure.complete = measureBelow(fd.get(), id, 0, budget);
    return budget.measure;
}

EmptyFolderResult SandboxFileSystem::removeFolder(const std::wstring& folder)
{
    EmptyFolderResult result;
    std::wstring path = folder;
    while (path.size() > 1 && path.back() == L'/')
        path.pop_back();
    const std::size_t slash = path.rfind(L'/');
    if (slash == std::wstring::npos || slash + 1 >= path.size())
        return result;
    const std::string name = toUtf8(path.substr(slash + 1));
    if (name == "." || name == "..")
        return result;
    // The parent is reached link-free below the root, so the root itself is never a candidate.
    UniqueFd parent(openFolder(slash == 0 ? std::wstring(L"/") : path.substr(0, slash)));
    if (!parent.isValid())
        return result;
    UniqueFd fd(openSubfolder(parent.get(), name.c_str()));
    MountId id, parentId;
    if (!fd.isValid() || !mountOf(fd.get(), id))
        return result;
    if (!mountOf(parent.get(), parentId) || parentId != id)
        return result; // a mount point is not ours to remove
    result.opened = true;
    emptyBelow(fd.get(), id, 0, result);
    fd.reset();
    if (result.failed == 0)
        unlinkEntry(parent.get(), name.c_str(), AT_REMOVEDIR, result);
    return result;
}

} // namespace platform
