#include "platform/win/winhandle.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(WinHandle, OwnershipMovesAndTheHandleIsClosedOnceKeepingTheLastError)
{
    const HANDLE raw = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    platform::UniqueHandle first(raw);
    platform::UniqueHandle second(std::move(first));
    EXPECT_FALSE(first);
    first = std::move(second);
    ::SetLastError(ERROR_FILE_NOT_FOUND); // callers report it after their handles are gone
    first.reset();
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    DWORD flags = 0;
    EXPECT_FALSE(::GetHandleInformation(raw, &flags)); // closed

    // A failed CreateFileW gives INVALID_HANDLE_VALUE, which holds nothing.
    EXPECT_FALSE(platform::UniqueHfile(
        ::CreateFileW(L"C:\\norvale-no-such-file.txt", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)));
}

} // namespace
