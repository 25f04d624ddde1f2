#pragma once

#include "../windowframe.h"

namespace platform {

// Rounded corners (Windows 11) and the system drop shadow for a frameless window, through the
// Desktop Window Manager.
class WinWindowFrame final : public WindowFrame {
public:
    WinWindowFrame() = default;

    bool applyRoundedFrame(std::uintptr_t nativeWindow) override;
};

} // namespace platform
