#include "platform/win/winhandle.h"

#include <gtest/gtest.h>

#include <utility>

using platform::UniqueHandle;
using platform::UniqueHfile;
using platform::UniqueHkey;

namespace {

bool isOpen(HANDLE handle)
{
    DWORD flags = 0;
    return ::GetHandleInformation(handle, &flags) != 0;
}

HANDLE newEvent()
{
    return ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
}

TEST(WinHandle, ClosingKeepsTheLastError)
{
    UniqueHandle event(newEvent());
    ASSERT_TRUE(event);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    event.reset();
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));

    UniqueHkey key;
    ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software", 0, KEY_READ, key.put()), ERROR_SUCCESS);
    ::SetLastError(ERROR_ACCESS_DENIED);
    key.reset();
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
}

TEST(WinHandle, OwnershipMovesAndIsClosedOnce)
{
    const HANDLE raw = newEvent();
    ASSERT_NE(raw, nullptr);
    UniqueHandle first(raw);
    UniqueHandle second(std::move(first));
    EXPECT_FALSE(first);
    EXPECT_EQ(second.get(), raw);

    UniqueHandle third;
    third = std::move(second);
    EXPECT_EQ(third.get(), raw);
    EXPECT_TRUE(isOpen(raw));
    third.reset();
    EXPECT_FALSE(isOpen(raw));
}

TEST(WinHandle, ReleaseGivesUpWithoutClosingAndPutClosesFirst)
{
    UniqueHandle owner(newEvent());
    const HANDLE raw = owner.release();
    EXPECT_FALSE(owner);
    EXPECT_TRUE(isOpen(raw));
    ::CloseHandle(raw);

    UniqueHandle slot(newEvent());
    const HANDLE old = slot.get();
    HANDLE* where = slot.put();
    EXPECT_FALSE(isOpen(old));
    EXPECT_EQ(*where, nullptr);
    *where = newEvent();
    EXPECT_TRUE(isOpen(slot.get()));
}

TEST(WinHandle, FileHandlesTreatInvalidHandleValueAsEmpty)
{
    UniqueHfile file(
        ::CreateFileW(L"C:\\norvale-no-such-file.txt", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_FALSE(file);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_TRUE(platform::isNotFound(::GetLastError()));
    file.reset(); // must not try to close INVALID_HANDLE_VALUE
}

} // namespace
