// The sandbox counters parse the host's /proc files; kernels differ in what those carry.

#include "platform/sandbox/sandboxcounters.h"

#include <gtest/gtest.h>

using platform::SandboxSystemCounters;

TEST(SandboxCounters, ProcStatInWindowsUnits)
{
    // user nice system idle iowait irq softirq steal guest guest_nice, in 1/100 s
    auto t = SandboxSystemCounters::parseProcStat("cpu  100 20 30 400 50 6 4 999 888 777\ncpu0 1 2 3 4\n", 100);
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->user, 120u * 100'000);
    EXPECT_EQ(t->idle, 450u * 100'000);
    EXPECT_EQ(t->kernel, (30u + 6 + 4 + 450) * 100'000); // idle inside kernel, steal left out

    t = SandboxSystemCounters::parseProcStat("cpu 10 0 5 85\n", 100); // old kernels stop after idle
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->kernel, 90u * 100'000);

    for (const char* bad : { "", "intr 1 2 3 4\n", "cpu 1 2 x 4\n", "cpu 1 2 -3 4\n" })
        EXPECT_FALSE(SandboxSystemCounters::parseProcStat(bad, 100).has_value()) << bad;
    EXPECT_FALSE(SandboxSystemCounters::parseProcStat("cpu 1 2 3 4\n", 0).has_value());
}

TEST(SandboxCounters, MeminfoLoad)
{
    auto m = SandboxSystemCounters::parseMeminfo(
        "MemTotal:       16000000 kB\nMemFree:         1000000 kB\nMemAvailable:    4000000 kB\n");
    ASSERT_TRUE(m.has_value());
    EXPECT_EQ(m->totalPhysBytes, 16'000'000ull * 1024);
    EXPECT_EQ(m->availPhysBytes, 4'000'000ull * 1024);
    EXPECT_EQ(m->loadPercent, 75u);

    // Without the kernel's estimate: free + buffers + cached, and SwapCached is not Cached.
    m = SandboxSystemCounters::parseMeminfo(
        "MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 50 kB\nCached: 250 kB\nSwapCached: 9 kB\n");
    ASSERT_TRUE(m.has_value());
    EXPECT_EQ(m->availPhysBytes, 400u * 1024);
    EXPECT_EQ(m->loadPercent, 60u);

    // More available than total would read as a negative load.
    m = SandboxSystemCounters::parseMeminfo("MemTotal: 100 kB\nMemAvailable: 500 kB\n");
    ASSERT_TRUE(m.has_value());
    EXPECT_EQ(m->loadPercent, 0u);

    for (const char* bad : { "", "MemTotal: 0 kB\n", "MemFree: 10 kB\n" })
        EXPECT_FALSE(SandboxSystemCounters::parseMeminfo(bad).has_value()) << bad;
}
