#pragma once

#include <cstdint>

namespace platform {

// The frameless main window's rounded corners and drop shadow (Desktop Window Manager).
class WindowFrame {
public:
    virtual ~WindowFrame() = default;
    // Returns false when the system could not apply it; the window works either way.
    virtual bool applyRoundedFrame(std::uintptr_t nativeWindow) = 0;
};

} // namespace platform
