#pragma once

#include <optional>
#include <string>

namespace platform {

// Where the machine's well-known places are. On Windows these are the real ones ("C:/" and the
// process environment); the sandbox maps them into its own tree so nothing outside it is touched.
// Paths use forward slashes and folders end without a slash, except the drive root ("C:/").
class Environment {
public:
    virtual ~Environment() = default;

    // The system drive's root: "C:/" on Windows.
    virtual std::wstring systemDriveRoot() const = 0;
    // Maps a Windows path written with the system drive ("C:/Windows/Temp", "C:\\Users") to the
    // place that stands for it; other paths come back unchanged.
    virtual std::wstring mapPath(const std::wstring& windowsPath) const = 0;

    virtual std::optional<std::wstring> variable(const std::wstring& name) const = 0;
    // %NAME% expansion as ExpandEnvironmentStringsW does it: unknown names stay as written.
    virtual std::wstring expand(const std::wstring& text) const = 0;

    std::wstring userProfile() const { return variable(L"USERPROFILE").value_or(std::wstring()); }
    std::wstring roamingAppData() const { return variable(L"APPDATA").value_or(std::wstring()); }
    std::wstring localAppData() const { return variable(L"LOCALAPPDATA").value_or(std::wstring()); }
    std::wstring programData() const { return variable(L"ProgramData").value_or(std::wstring()); }
    // The user's temporary folder, found as GetTempPath2W finds it: TMP, else TEMP, else the
    // user's profile, else the Windows folder.
    virtual std::wstring temp() const = 0;
};

} // namespace platform
