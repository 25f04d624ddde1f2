#include "platform/win/winwindowframe.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>

namespace {

TEST(WinWindowFrame, WindowsThatDoNotExistAreRefused)
{
    platform::WinWindowFrame frame;
    EXPECT_FALSE(frame.applyRoundedFrame(0));
    // A handle that was real once: a message-only window, which needs no display.
    const HWND window = ::CreateWindowExW(
        0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    ASSERT_TRUE(window && ::DestroyWindow(window));
    EXPECT_FALSE(frame.applyRoundedFrame(reinterpret_cast<std::uintptr_t>(window)));
}

} // namespace
