#include "sandboxpath.h"

#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform {

namespace {

std::optional<std::vector<std::string>> lexicalComponents(const std::string& path)
{
    std::vector<std::string> out;
    std::size_t pos = 0;
    while (pos <= path.size()) {
        std::size_t slash = path.find('/', pos);
        if (slash == std::string::npos)
            slash = path.size();
        const std::string part = path.substr(pos, slash - pos);
        pos = slash + 1;
        if (part.empty() || part == ".")
            continue;
        if (part == "..") {
            if (out.empty())
                return std::nullopt;
            out.pop_back();
            continue;
        }
        out.push_back(part);
    }
    return out;
}

} // namespace

std::optional<std::vector<std::string>> componentsBelow(const std::string& folder, const std::string& path)
{
    const auto base = lexicalComponents(folder);
    const auto target = lexicalComponents(path);
    if (!base || !target || target->size() <= base->size())
        return std::nullopt;
    for (std::size_t i = 0; i < base->size(); ++i) {
        if ((*base)[i] != (*target)[i])
            return std::nullopt;
    }
    return std::vector<std::string>(target->begin() + static_cast<std::ptrdiff_t>(base->size()), target->end());
}

UniqueFd openParentFolder(const std::string& root, const std::vector<std::string>& components)
{
    UniqueFd fd(::open(root.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    for (std::size_t i = 0; fd.isValid() && i + 1 < components.size(); ++i)
        fd.reset(::openat(fd.get(), components[i].c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    return fd;
}

std::optional<std::string> readFileAt(int dirFd, const std::string& name, std::size_t maxBytes)
{
    UniqueFd fd(::openat(dirFd, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat st;
    if (!fd.isValid() || ::fstat(fd.get(), &st) != 0 || !S_ISREG(st.st_mode)
        || static_cast<std::uint64_t>(st.st_size) > maxBytes)
        return std::nullopt;
    std::string text;
    char buffer[4096];
    for (;;) {
        const ssize_t n = ::read(fd.get(), buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return std::nullopt;
        if (n == 0)
            return text;
        text.append(buffer, static_cast<std::size_t>(n));
        if (text.size() > maxBytes)
            return std::nullopt;
    }
}

} // namespace platform
