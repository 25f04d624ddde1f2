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

} // namespace

TEST_F(SystemCountersContract, MemoryAndProcessorsAreConsistent)
{
    const auto mem = counters().memoryStatus();
    ASSERT_TRUE(mem.has_value());
    EXPECT_GT(mem->totalPhysBytes, 16ull << 20); // no machine that runs us has less
    EXPECT_LE(mem->availPhysBytes, mem->totalPhysBytes);
    EXPECT_LE(mem->loadPercent, 100u);
    EXPECT_GE(counters().processorCount(), 1u);
    EXPECT_LE(counters().processorCount(), 4096u);
}

TEST_F(SystemCountersContract, DiskSpaceOfTheSystemDrive)
{
    for (const std::wstring& root : { systemDrive(), std::wstring(L"C:\\") }) {
        const auto disk = counters().diskSpace(root);
        ASSERT_TRUE(disk.has_value());
        EXPECT_GT(disk->totalBytes, 0u);
        EXPECT_LE(disk->totalFreeBytes, disk->totalBytes);
        EXPECT_LE(disk->freeToCallerBytes, disk->totalFreeBytes);
    }
    EXPECT_FALSE(counters().diskSpace(systemDrive() + L"norvale-no-such-folder/inner/").has_value());
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
    EXPECT_GE(first->kernel, first->idle); // kernel time includes idle time
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    const auto second = counters().systemTimes();
    ASSERT_TRUE(second.has_value());
    EXPECT_GE(second->idle, first->idle);
    EXPECT_GE(second->kernel, first->kernel);
    EXPECT_GE(second->user, first->user);
    // 200 ms on every processor, counted in 100-ns units: a wrong unit falls outside.
    const std::uint64_t elapsed = (second->kernel + second->user) - (first->kernel + first->user);
    EXPECT_GT(elapsed, 0u);
    EXPECT_LT(elapsed, std::uint64_t(counters().processorCount()) * 600'000'000ull); // < 60 s each
}
