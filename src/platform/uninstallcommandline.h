#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform {

// A program's uninstall command taken apart into the program and its arguments, the way the shell
// will be asked to start it. Kept free of Qt so that the Windows lane runs exactly what the
// uninstall page runs.
struct UninstallCommandLine {
    std::wstring program;
    std::vector<std::wstring> arguments;

    bool isWindowsInstaller() const;
    // The arguments joined by single spaces, as the shell receives them.
    std::wstring parameters() const;
};

// nullopt when the text names no program (empty or only blanks). Arguments are split at spaces
// and never re-quoted.
std::optional<UninstallCommandLine> parseUninstallCommand(const std::wstring& uninstallString);

// A Windows Installer "/I" (or "/package") of a product code or package asks for an install or a
// maintenance pass, which leaves the product in place and still exits 0; it becomes "/X" of the
// same product. True when a switch was rewritten.
bool makeInstallerRemove(UninstallCommandLine& command);

// Makes a Windows Installer uninstall run without its wizard, unless the command already chooses
// a user interface or the vendor's package is known to need its own.
void addSilentSwitches(UninstallCommandLine& command, const std::wstring& publisher, const std::wstring& name);

// "\\server\share", "//server/share" and the "\\?\" / "\\.\" namespaces (which reach UNC shares
// and devices): opening such a path may contact another machine. Quotes and leading blanks are
// ignored.
bool isNetworkPath(const std::wstring& path);

// Empty when the program may be started; otherwise why not, in words for the log. Only a file
// ending in ".exe" on this machine is started: never a URL, a protocol handler, a script or a
// document, whose handler the shell would pick.
std::wstring refusalReason(const std::wstring& program);

struct PreparedUninstall {
    // nullopt when nothing may be started.
    std::optional<UninstallCommandLine> command;
    // Why nothing may be started; empty when the command names no program at all.
    std::wstring refusal;
};

// Everything between the registry's uninstall text and the shell: parsing, the Windows Installer
// product switch, the silent switches and the check that a program is what gets started.
PreparedUninstall prepareUninstall(
    const std::wstring& uninstallString, const std::wstring& publisher, const std::wstring& name);

} // namespace platform
