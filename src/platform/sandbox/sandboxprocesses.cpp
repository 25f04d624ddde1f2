#include "sandboxprocesses.h"

#include "../environment.h"
#include "../strings.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// A process list is a few hundred lines; anything far larger is not one.
constexpr off_t MaxListBytes = 1 << 20;
// Paths longer than this do not fit the buffer Windows callers read image paths into.
constexpr std::size_t ImagePathChars = 260;

class Fd {
public:
    explicit Fd(int fd)
        : m_fd(fd)
    {
    }
    ~Fd()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    int get() const { return m_fd; }

private:
    int m_fd;
};

bool parsePid(const std::string& text, std::uint32_t& pid)
{
    if (text.empty() || text.size() > 10)
        return false;
    std::uint64_t value = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    if (value == 0 || value > 0xFFFFFFFFull)
        return false;
    pid = static_cast<std::uint32_t>(value);
    return true;
}

std::wstring baseName(const std::wstring& path)
{
    const std::size_t cut = path.find_last_of(L"\\/");
    return cut == std::wstring::npos ? path : path.substr(cut + 1);
}

bool writeAll(int fd, const std::string& data)
{
    std::size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.data() + done, data.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

} // namespace

SandboxProcesses::SandboxProcesses(std::wstring root, const Environment& environment)
    : m_root(std::move(root))
    , m_environment(environment)
{
}

std::vector<SandboxProcesses::Line> SandboxProcesses::readLines() const
{
    std::vector<Line> lines;
    // A planted link must not make the sandbox read a host file as its process list.
    Fd fd(::open(toUtf8(m_root + L"/" + listFileName()).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    struct stat st { };
    if (fd.get() < 0 || ::fstat(fd.get(), &st) != 0 || !S_ISREG(st.st_mode) || st.st_size > MaxListBytes)
        return lines;
    std::string text(static_cast<std::size_t>(st.st_size), '\0');
    std::size_t got = 0;
    while (got < text.size()) {
        const ssize_t n = ::read(fd.get(), text.data() + got, text.size() - got);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        got += static_cast<std::size_t>(n);
    }
    text.resize(got);

    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string raw = text.substr(start, end - start);
        start = end + 1;
        if (!raw.empty() && raw.back() == '\r')
            raw.pop_back();
        const std::size_t tab = raw.find('\t');
        Line line;
        if (tab == std::string::npos || !parsePid(raw.substr(0, tab), line.pid))
            continue; // damaged lines are not processes
        line.windowsPath = fromUtf8(raw.substr(tab + 1));
        if (line.windowsPath.empty())
            continue;
        line.raw = std::move(raw);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<ProcessInfo> SandboxProcesses::snapshot()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<ProcessInfo> out;
    for (const Line& line : readLines()) {
        ProcessInfo info;
        info.pid = line.pid;
        info.imageName = baseName(line.windowsPath);
        if (line.windowsPath.size() < ImagePathChars)
            info.imagePath = m_environment.mapPath(line.windowsPath);
        out.push_back(std::move(info));
    }
    return out;
}

Termination SandboxProcesses::terminate(std::uint32_t pid, std::uint32_t)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::string kept;
    bool found = false;
    for (const Line& line : readLines()) {
        if (line.pid == pid) {
            found = true;
            continue;
        }
        kept += line.raw;
        kept += '\n';
    }
    if (!found)
        return Termination::NotOpened;

    // Rewritten beside the list and renamed over it, so a crash leaves the old list whole. The
    // temporary name is removed first (a link there is removed as a link) and then created
    // exclusively without following links.
    const std::string list = toUtf8(m_root + L"/" + listFileName());
    const std::string temporary = list + ".saving";
    ::unlink(temporary.c_str());
    Fd fd(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644));
    if (fd.get() < 0)
        return Termination::Refused;
    if (!writeAll(fd.get(), kept) || ::fsync(fd.get()) != 0 || ::rename(temporary.c_str(), list.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return Termination::Refused;
    }
    return Termination::Terminated;
}

} // namespace platform
