// A real Windows Installer package: installed by msiexec, read back the way the inventory reads
// it, and removed with the command line the inventory builds for it.

#include "platform/uninstallentries.h"
#include "platform/win/winlauncher.h"
#include "platform/win/winregistry.h"

#include <gtest/gtest.h>

namespace {

platform::ShellExecuteResult msiexec(const std::wstring& parameters)
{
    return platform::WinLauncher().shellExecuteAndWait(
        { L"open", L"msiexec.exe", parameters, L"", platform::ShowNormal, {} }, 120000);
}

std::optional<platform::UninstallEntry> sample(platform::Registry& registry)
{
    for (auto& e : platform::readUninstallEntries(registry))
        if (e.keyPath.find(L"\\{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}") != std::wstring::npos)
            return e;
    return std::nullopt;
}

TEST(UninstallMsi, InstalledPackageIsReadAndRemoved)
{
#ifndef NORVALE_SAMPLE_MSI
    GTEST_SKIP() << "wixl is not installed, so there is no sample package";
#else
    const std::string msi = NORVALE_SAMPLE_MSI;
    const auto install = msiexec(L"/i \"" + std::wstring(msi.begin(), msi.end()) + L"\" /qn");
    ASSERT_EQ(std::tuple(install.started, install.exitCode), std::tuple(true, 0u)) << install.error;
    platform::WinRegistry registry;
    const auto entry = sample(registry);
    ASSERT_TRUE(entry);
    EXPECT_EQ((std::vector<std::wstring> { entry->displayName, entry->publisher, entry->displayVersion,
                  entry->uninstallString, std::to_wstring(entry->installDate.size()) }),
        (std::vector<std::wstring> { L"Norvale Sample Viewer", L"Brightfen Test", L"1.2.3",
            L"MsiExec.exe /I{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}", L"8" }));

    // What the inventory runs for it: the product switch kept, the silent switches added.
    const auto removal = msiexec(L"/X{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90} /quiet /norestart");
    ASSERT_TRUE(removal.started) << removal.error;
    EXPECT_EQ(std::tuple(removal.waitResult, removal.exitCode), std::tuple(platform::WaitObject0, 0u));
    EXPECT_FALSE(sample(registry));
#endif
}

} // namespace
