#include "platform/win/winwindowframe.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>

namespace {

TEST(WinWindowFrame, WindowsThatDoNotExistAreRefused)
{
    platform::WinWindowFrame frame;
    EXPECT_FALSE(frame.applyRoundedFrame(0));
    EXPECT_FALSE(frame.applyRoundedFrame(0x12345678));
    EXPECT_FALSE(frame.applyRoundedFrame(static_cast<std::uintptr_t>(-1)));

    // A handle that was real once: a message-only window, which needs no display.
    const HWND window = ::CreateWindowExW(
        0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(::DestroyWindow(window));
    EXPECT_FALSE(frame.applyRoundedFrame(reinterpret_cast<std::uintptr_t>(window)));
}

} // namespace
