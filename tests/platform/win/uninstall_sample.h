#pragma once

// The sample package of uninstall_sample.wxs as Windows Installer registers it. The Wine lane
// installs and removes the real package; the native lane's uninstall test plays the same entry, so
// both prepare and run the very same command.

namespace sample_msi {

inline constexpr wchar_t ProductCode[] = L"{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}";
inline constexpr wchar_t KeyPath[]
    = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}";
inline constexpr wchar_t DisplayName[] = L"Norvale Sample Viewer";
inline constexpr wchar_t Publisher[] = L"Brightfen Test";
inline constexpr wchar_t DisplayVersion[] = L"1.2.3";
// msiexec registers a maintenance command ("/I"), with an empty install location.
inline constexpr wchar_t UninstallString[] = L"MsiExec.exe /I{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}";
// What the inventory runs for it.
inline constexpr wchar_t PreparedParameters[] = L"/X{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90} /quiet /norestart";

} // namespace sample_msi
