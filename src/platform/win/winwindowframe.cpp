#include "winwindowframe.h"

#include <windows.h>

#include <dwmapi.h>

namespace platform {

namespace {

// mingw-w64's dwmapi.h predates Windows 11 and lacks these two.
constexpr DWORD DwmwaWindowCornerPreference = 33; // DWMWA_WINDOW_CORNER_PREFERENCE
constexpr int DwmwcpRound = 2; // DWMWCP_ROUND

} // namespace

bool WinWindowFrame::applyRoundedFrame(std::uintptr_t nativeWindow)
{
    const HWND window = reinterpret_cast<HWND>(nativeWindow);
    if (!window || !::IsWindow(window))
        return false;
    // Windows 10 does not know the corner attribute and refuses it; its windows stay square
    // and still get the shadow below, so that refusal is not a failure.
    const int preference = DwmwcpRound;
    ::DwmSetWindowAttribute(window, DwmwaWindowCornerPreference, &preference, sizeof preference);
    // A one-pixel frame extended into the client area is what keeps the shadow on a window
    // without a caption.
    const MARGINS margins { 1, 1, 1, 1 };
    return SUCCEEDED(::DwmExtendFrameIntoClientArea(window, &margins));
}

} // namespace platform
