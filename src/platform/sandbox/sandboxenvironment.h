#pragma once

#include "../environment.h"

#include <map>
#include <mutex>

namespace platform {

// The sandbox's machine: "C:/" is the folder C inside the sandbox, and the environment variables
// point into it, for one user named "User".
class SandboxEnvironment final : public Environment {
public:
    explicit SandboxEnvironment(std::wstring root);

    std::wstring systemDriveRoot() const override;
    std::wstring mapPath(const std::wstring& windowsPath) const override;
    std::optional<std::wstring> variable(const std::wstring& name) const override;
    std::wstring expand(const std::wstring& text) const override;
    std::wstring temp() const override;

    // Sets a variable for this environment alone, or removes it (nullopt), as
    // SetEnvironmentVariableW does for a process.
    void setVariable(const std::wstring& name, const std::optional<std::wstring>& value);

private:
    std::wstring m_drive; // "<root>/C"
    mutable std::mutex m_mutex; // guards m_vars: the variables are read from worker threads
    std::map<std::wstring, std::wstring> m_vars; // keyed by lower-case name
};

} // namespace platform
