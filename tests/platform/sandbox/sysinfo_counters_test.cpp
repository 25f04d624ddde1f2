// The sandbox counters parse the host's /proc files; kernels differ in what those carry.

#include "platform/sandbox/sandboxcounters.h"

#include <gtest/gtest.h>

using platform::SandboxSystemCounters;

TEST(SandboxCounters, ProcStatInWindowsUnits)
{
    // user nice system idle iowait irq softirq steal guest guest_nice, in 1/100 s
    const auto t = SandboxSystemCounters::parseProcStat("cpu  100 20 30 400 50 6 4 999 888 777\ncpu0 1 2 3 4\n", 100);
    EXPECT_EQ(t.value().user, 120u * 100'000);
    EXPECT_EQ(t.value().idle, 450u * 100'000);
    EXPECT_EQ(t.value().kernel, (30u + 6 + 4 + 450) * 100'000); // idle inside kernel, steal left out
    // Old kernels stop after idle.
    EXPECT_EQ(SandboxSystemCounters::parseProcStat("cpu 10 0 5 85\n", 100).value().kernel, 90u * 100'000);

    for (const char* bad : { "", "intr 1 2 3 4\n", "cpu 1 2 x 4\n", "cpu 1 2 -3 4\n" })
        EXPECT_FALSE(SandboxSystemCounters::parseProcStat(bad, 100).has_value()) << bad;
    EXPECT_FALSE(SandboxSystemCounters::parseProcStat("cpu 1 2 3 4\n", 0).has_value());
}

TEST(SandboxCounters, MeminfoLoad)
{
    const auto parse = [](const char* text) { return SandboxSystemCounters::parseMeminfo(text).value(); };
    auto m = parse("MemTotal:       16000000 kB\nMemFree:         1000000 kB\nMemAvailable:    4000000 kB\n");
    EXPECT_EQ(m.totalPhysBytes, 16'000'000ull * 1024);
    EXPECT_EQ(m.availPhysBytes, 4'000'000ull * 1024);
    EXPECT_EQ(m.loadPercent, 75u);
    // Without the kernel's estimate: free + buffers + cached, and SwapCached is not Cached.
    m = parse("MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 50 kB\nCached: 250 kB\nSwapCached: 9 kB\n");
    EXPECT_EQ(m.availPhysBytes, 400u * 1024);
    EXPECT_EQ(m.loadPercent, 60u);
    EXPECT_EQ(parse("MemTotal: 100 kB\nMemAvailable: 500 kB\n").loadPercent, 0u); // never a negative load

    for (const char* bad : { "", "MemTotal: 0 kB\n", "MemFree: 10 kB\n" })
        EXPECT_FALSE(SandboxSystemCounters::parseMeminfo(bad).has_value()) << bad;
}
