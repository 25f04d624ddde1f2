#pragma once

#include "../launcher.h"

#include <string>

namespace platform {

class Registry;

// The sandbox never runs a program named by the data it reads: the registry of a sandbox may
// come from anywhere. It plays uninstallers instead, from a small description written next to
// the target, "<target>.demo-uninstall" (for msiexec: "C:/Windows/Installer/<ProductCode>.
// demo-uninstall"), one "key=value" per line:
//   exit=<code>          the exit code to report (default 0)
//   delete=<C:\path>     a file or folder inside the sandbox's drive to remove (repeatable)
//   unregister=<HKLM\…>  a registry key to remove from the sandbox registry (repeatable)
//   running=1            the uninstaller is still running when the wait ends
// A target without a description is refused (ERROR_ACCESS_DISABLED_BY_POLICY); msiexec reports
// ERROR_UNKNOWN_PRODUCT for a product without one, as it does for a product it does not know.
class SandboxLauncher final : public Launcher {
public:
    explicit SandboxLauncher(std::wstring root, Registry* registry = nullptr);

    ShellExecuteResult shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs) override;

    static std::wstring demoSuffix() { return L".demo-uninstall"; }

private:
    ShellExecuteResult play(const std::string& script) const;

    std::wstring m_root;
    Registry* m_registry = nullptr;
};

} // namespace platform
