// Contract cases for the live counters: the host's figures natively, Win32's under Wine. The
// values are the machine's own, so the cases check what must hold on any machine.

#include "platform/environment.h"
#include "platform/platform.h"
#include "platform/systemcounters.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

using platform::SystemCounters;

namespace {

class SystemCountersContract : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_platform = platform::createDefault();
        ASSERT_TRUE(m_platform);
    }

    SystemCounters& counters() { return m_platform->counters(); }
    std::wstring systemDrive() { return m_platform->environment().systemDriveRoot(); }

private:
    std::unique_ptr<platform::Platform> m_platform;
};

// Keeps a processor busy for a while, so the system times have something to count.
void spin(std::chrono::milliseconds duration)
{
    const auto end = std::chrono::steady_clock::now() + duration;
    volatile unsigned sink = 0;
    while (std::chrono::steady_clock::now() < end)
        sink = sink + 1;
}

} // namespace

TEST_F(SystemCountersContract, MemoryStatusIsConsistent)
{
    const auto mem = counters().memoryStatus();
    ASSERT_TRUE(mem.has_value());
    EXPECT_GT(mem->totalPhysBytes, 16ull << 20); // no machine that runs us has less
    EXPECT_LE(mem->availPhysBytes, mem->totalPhysBytes);
    EXPECT_LE(mem->loadPercent, 100u);
}

TEST_F(SystemCountersContract, SystemDriveSpaceIsConsistent)
{
    const auto disk = counters().diskSpace(systemDrive());
    ASSERT_TRUE(disk.has_value());
    EXPECT_GT(disk->totalBytes, 0u);
    EXPECT_LE(disk->totalFreeBytes, disk->totalBytes);
    EXPECT_LE(disk->freeToCallerBytes, disk->totalFreeBytes);
}

TEST_F(SystemCountersContract, BackslashDriveRootWorksToo)
{
    const auto disk = counters().diskSpace(L"C:\\");
    ASSERT_TRUE(disk.has_value());
    EXPECT_GT(disk->totalBytes, 0u);
}

TEST_F(SystemCountersContract, MissingFolderHasNoDiskSpace)
{
    EXPECT_FALSE(counters().diskSpace(systemDrive() + L"norvale-no-such-folder/inner/").has_value());
}

TEST_F(SystemCountersContract, ProcessorCountIsPositive)
{
    const unsigned n = counters().processorCount();
    EXPECT_GE(n, 1u);
    EXPECT_LE(n, 4096u);
}

TEST_F(SystemCountersContract, TickCountAdvancesInMilliseconds)
{
    const std::uint64_t before = counters().tickCount();
    EXPECT_GT(before, 0u);
    std::this_thread::sleep_for(std::chrono::milliseconds(120));
    const std::uint64_t after = counters().tickCount();
    // Windows' tick has a resolution of 10 to 16 ms; an upper bound catches a wrong unit.
    EXPECT_GE(after - before, 90u);
    EXPECT_LT(after - before, 60'000u);
}

TEST_F(SystemCountersContract, SystemTimesNeverDecrease)
{
    const auto first = counters().systemTimes();
    ASSERT_TRUE(first.has_value());
    // Kernel time includes idle time; busy time is what is left over.
    EXPECT_GE(first->kernel, first->idle);
    EXPECT_GT(first->kernel + first->user, 0u);

    spin(std::chrono::milliseconds(200));
    const auto second = counters().systemTimes();
    ASSERT_TRUE(second.has_value());
    EXPECT_GE(second->idle, first->idle);
    EXPECT_GE(second->kernel, first->kernel);
    EXPECT_GE(second->user, first->user);
    EXPECT_GE(second->kernel, second->idle);
    // 200 ms of spinning, counted in 100-ns units over every processor.
    const std::uint64_t elapsed = (second->kernel + second->user) - (first->kernel + first->user);
    EXPECT_GT(elapsed, 0u);
    EXPECT_LT(elapsed, std::uint64_t(counters().processorCount()) * 600'000'000ull); // < 60 s each
}
