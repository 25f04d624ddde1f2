#pragma once

#include "../environment.h"

namespace platform {

// The process environment of the real machine. Paths need no mapping here: "C:/" is "C:/".
class WinEnvironment final : public Environment {
public:
    WinEnvironment() = default;

    std::wstring systemDriveRoot() const override;
    std::wstring mapPath(const std::wstring& windowsPath) const override;
    std::optional<std::wstring> variable(const std::wstring& name) const override;
    std::wstring expand(const std::wstring& text) const override;
    std::wstring temp() const override;
};

} // namespace platform
