#include "sandboxcounters.h"

#include "../strings.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <time.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr std::uint64_t HundredNsPerSecond = 10'000'000;

// The counters are polled every tick, so one read() into a fixed buffer rather than a stream.
// Both files carry what we need in their first few hundred bytes.
std::optional<std::string> readHead(const char* path)
{
    const int fd = ::open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    char buffer[4096];
    ssize_t n;
    do {
        n = ::read(fd, buffer, sizeof buffer);
    } while (n < 0 && errno == EINTR);
    ::close(fd);
    if (n <= 0)
        return std::nullopt;
    return std::string(buffer, static_cast<std::size_t>(n));
}

// The first number after `key` at a line start ("MemTotal:       16318480 kB").
std::optional<std::uint64_t> fieldOf(const std::string& text, const char* key)
{
    const std::size_t keyLen = std::strlen(key);
    std::size_t pos = 0;
    while (pos < text.size()) {
        if (text.compare(pos, keyLen, key) == 0) {
            const char* start = text.c_str() + pos + keyLen;
            char* end = nullptr;
            const unsigned long long v = std::strtoull(start, &end, 10);
            if (end == start)
                return std::nullopt;
            return static_cast<std::uint64_t>(v);
        }
        const std::size_t next = text.find('\n', pos);
        if (next == std::string::npos)
            break;
        pos = next + 1;
    }
    return std::nullopt;
}

} // namespace

SandboxSystemCounters::SandboxSystemCounters(std::wstring root)
    : m_root(std::move(root))
{
    while (m_root.size() > 1 && m_root.back() == L'/')
        m_root.pop_back();
}

std::optional<SystemTimes> SandboxSystemCounters::parseProcStat(const std::string& text, long ticksPerSecond)
{
    if (ticksPerSecond <= 0 || text.compare(0, 4, "cpu ") != 0)
        return std::nullopt;
    // user nice system idle iowait irq softirq; later columns (steal, guest) are left out:
    // guest time is already inside user time, and stolen time was never ours.
    // Old kernels stop after idle.
    constexpr int Required = 4;
    std::uint64_t f[7] = {};
    const char* p = text.c_str() + 4;
    for (int i = 0; i < 7; ++i) {
        while (*p == ' ')
            ++p;
        char* end = nullptr;
        f[i] = std::strtoull(p, &end, 10);
        if (end == p || (*p < '0' || *p > '9')) {
            if (i < Required)
                return std::nullopt;
            f[i] = 0;
            break;
        }
        p = end;
    }
    const std::uint64_t scale = HundredNsPerSecond / static_cast<std::uint64_t>(ticksPerSecond);
    SystemTimes t;
    t.idle = (f[3] + f[4]) * scale;
    t.kernel = (f[2] + f[5] + f[6]) * scale + t.idle;
    t.user = (f[0] + f[1]) * scale;
    return t;
}

std::optional<MemoryStatus> SandboxSystemCounters::parseMeminfo(const std::string& text)
{
    const auto totalKb = fieldOf(text, "MemTotal:");
    if (!totalKb || *totalKb == 0)
        return std::nullopt;
    std::optional<std::uint64_t> availKb = fieldOf(text, "MemAvailable:");
    if (!availKb) {
        // Kernels before 3.14 have no estimate; free plus caches comes closest.
        availKb = fieldOf(text, "MemFree:").value_or(0) + fieldOf(text, "Buffers:").value_or(0)
            + fieldOf(text, "Cached:").value_or(0);
    }
    if (*availKb > *totalKb)
        availKb = totalKb;
    MemoryStatus m;
    m.totalPhysBytes = *totalKb * 1024;
    m.availPhysBytes = *availKb * 1024;
    m.loadPercent = static_cast<std::uint32_t>((*totalKb - *availKb) * 100 / *totalKb);
    return m;
}

std::optional<SystemTimes> SandboxSystemCounters::systemTimes() const
{
    const auto text = readHead("/proc/stat");
    if (!text)
        return std::nullopt;
    return parseProcStat(*text, ::sysconf(_SC_CLK_TCK));
}

std::optional<MemoryStatus> SandboxSystemCounters::memoryStatus() const
{
    const auto text = readHead("/proc/meminfo");
    if (!text)
        return std::nullopt;
    return parseMeminfo(*text);
}

std::optional<DiskSpace> SandboxSystemCounters::diskSpace(const std::wstring& path) const
{
    // A Windows path on the system drive means the sandbox's drive folder.
    std::wstring real = path;
    if (real.size() >= 2 && real[1] == L':' && (real[0] == L'C' || real[0] == L'c')) {
        std::wstring rest = real.substr(2);
        for (wchar_t& c : rest) {
            if (c == L'\\')
                c = L'/';
        }
        real = m_root + L"/C" + (rest.empty() || rest[0] != L'/' ? L"/" : L"") + rest;
    }
    struct statvfs st { };
    if (::statvfs(toUtf8(real).c_str(), &st) != 0)
        return std::nullopt;
    const std::uint64_t unit = st.f_frsize ? st.f_frsize : st.f_bsize;
    DiskSpace d;
    d.totalBytes = static_cast<std::uint64_t>(st.f_blocks) * unit;
    d.totalFreeBytes = static_cast<std::uint64_t>(st.f_bfree) * unit;
    d.freeToCallerBytes = static_cast<std::uint64_t>(st.f_bavail) * unit;
    return d;
}

unsigned SandboxSystemCounters::processorCount() const
{
    const long n = ::sysconf(_SC_NPROCESSORS_ONLN);
    return n > 0 ? static_cast<unsigned>(n) : 1u;
}

std::uint64_t SandboxSystemCounters::tickCount() const
{
    timespec ts {};
    if (::clock_gettime(CLOCK_BOOTTIME, &ts) != 0 && ::clock_gettime(CLOCK_MONOTONIC, &ts) != 0)
        return 0;
    return static_cast<std::uint64_t>(ts.tv_sec) * 1000 + static_cast<std::uint64_t>(ts.tv_nsec) / 1'000'000;
}

} // namespace platform
