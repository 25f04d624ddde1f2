// The process list and ending processes, in both lanes: a line of the sandbox's list natively, a
// real sleeping program under Wine.

#include "contract.h"

#include "platform/strings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::wstring normalised(std::wstring path)
{
    std::replace(path.begin(), path.end(), L'\\', L'/');
    return platform::lowerAscii(path);
}

const platform::ProcessInfo* find(const std::vector<platform::ProcessInfo>& list, std::uint32_t pid)
{
    const auto it = std::find_if(list.begin(), list.end(), [pid](const auto& p) { return p.pid == pid; });
    return it == list.end() ? nullptr : &*it;
}

TEST(ProcessesContract, SnapshotNamesAStartedProcessAndEndingItRemovesIt)
{
    platform::Processes& processes = contract::contractProcesses();
    const std::optional<contract::StartedProcess> started = contract::startLongRunningProcess();
    ASSERT_TRUE(started.has_value());

    const std::vector<platform::ProcessInfo> before = processes.snapshot();
    const platform::ProcessInfo* seen = find(before, started->pid);
    ASSERT_NE(seen, nullptr);
    EXPECT_TRUE(platform::equalsNoCase(seen->imageName, started->imageName));
    EXPECT_EQ(normalised(seen->imagePath), normalised(started->imagePath));

    EXPECT_EQ(processes.terminate(started->pid, 1), platform::Termination::Terminated);
    EXPECT_TRUE(contract::waitUntilEnded(started->pid));
    EXPECT_EQ(find(processes.snapshot(), started->pid), nullptr);
}

TEST(ProcessesContract, EndingOneProcessLeavesTheOthers)
{
    platform::Processes& processes = contract::contractProcesses();
    const std::optional<contract::StartedProcess> first = contract::startLongRunningProcess();
    const std::optional<contract::StartedProcess> second = contract::startLongRunningProcess();
    ASSERT_TRUE(first && second);

    EXPECT_EQ(processes.terminate(first->pid, 0), platform::Termination::Terminated);
    EXPECT_TRUE(contract::waitUntilEnded(first->pid));
    const std::vector<platform::ProcessInfo> after = processes.snapshot();
    EXPECT_EQ(find(after, first->pid), nullptr);
    EXPECT_NE(find(after, second->pid), nullptr);

    EXPECT_EQ(processes.terminate(second->pid, 0), platform::Termination::Terminated);
    EXPECT_TRUE(contract::waitUntilEnded(second->pid));
}

TEST(ProcessesContract, AProcessThatDoesNotExistIsNotOpened)
{
    // Windows numbers processes in multiples of four; this one is never handed out.
    EXPECT_EQ(contract::contractProcesses().terminate(0xFFFFFFF1u, 1), platform::Termination::NotOpened);
}

} // namespace
