// The counters give the machine's own figures (the host's natively, Win32's under Wine), so this
// checks what holds on any machine; the upper bounds catch a wrong unit.

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/systemcounters.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

TEST(SystemCountersContract, FiguresAreConsistentAndAdvanceInTheirUnits)
{
    const auto pf = platform::createDefault();
    ASSERT_TRUE(pf);
    const platform::SystemCounters& c = pf->counters();
    const auto mem = c.memoryStatus().value();
    EXPECT_GT(mem.totalPhysBytes, 16ull << 20); // no machine that runs us has less
    EXPECT_LE(mem.availPhysBytes, mem.totalPhysBytes);
    EXPECT_LE(mem.loadPercent, 100u);
    EXPECT_TRUE(c.processorCount() >= 1 && c.processorCount() <= 4096) << c.processorCount();

    const std::wstring systemDrive = pf->environment().systemDriveRoot();
    const auto disk = c.diskSpace(systemDrive).value();
    EXPECT_TRUE(
        disk.totalBytes > 0 && disk.freeToCallerBytes <= disk.totalFreeBytes && disk.totalFreeBytes <= disk.totalBytes);
    EXPECT_FALSE(c.diskSpace(systemDrive + L"norvale-no-such-folder/inner/").has_value());

    const std::uint64_t ticks = c.tickCount();
    const auto first = c.systemTimes().value();
    EXPECT_GE(first.kernel, first.idle); // kernel time includes idle time
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_GE(c.tickCount() - ticks, 170u); // milliseconds, at Windows' resolution of 10 to 16 ms
    EXPECT_LT(c.tickCount() - ticks, 60'000u);
    const auto second = c.systemTimes().value();
    EXPECT_TRUE(second.idle >= first.idle && second.kernel >= first.kernel && second.user >= first.user);
    // 100-ns units: some time passed on every processor, but far less than 60 s on each.
    const std::uint64_t elapsed = (second.kernel + second.user) - (first.kernel + first.user);
    EXPECT_GT(elapsed, 0u);
    EXPECT_LT(elapsed, c.processorCount() * 600'000'000ull);
}
