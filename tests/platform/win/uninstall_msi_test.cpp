// A real Windows Installer package: installed by msiexec, read back by the inventory's reader, and
// removed with the command the uninstall page prepares for it, started by the same launcher.
// The history that follows a success is Qt code and is checked by the native lane's uninstall
// test, which plays this very entry (uninstall_sample.h).

#include "uninstall_sample.h"

#include "platform/strings.h"
#include "platform/uninstallcommandline.h"
#include "platform/uninstallentries.h"
#include "platform/win/winlauncher.h"
#include "platform/win/winregistry.h"

#include <gtest/gtest.h>

namespace {

std::optional<platform::UninstallEntry> sample(platform::Registry& registry)
{
    for (auto& e : platform::readUninstallEntries(registry))
        if (e.keyPath == sample_msi::KeyPath)
            return e;
    return std::nullopt;
}

platform::ShellExecuteResult run(const platform::UninstallCommandLine& command)
{
    return platform::WinLauncher().shellExecuteAndWait(
        { L"open", command.program, command.parameters(), L"", platform::ShowNormal, {} }, 120000);
}

TEST(UninstallMsi, InstalledPackageIsReadAndRemoved)
{
#ifndef NORVALE_SAMPLE_MSI
    GTEST_SKIP() << "wixl is not installed, so there is no sample package";
#else
    const std::string msi = NORVALE_SAMPLE_MSI;
    const platform::UninstallCommandLine install { L"msiexec.exe",
        { L"/i", L"\"" + std::wstring(msi.begin(), msi.end()) + L"\"", L"/qn" } };
    const auto installed = run(install);
    ASSERT_EQ(std::tuple(installed.started, installed.exitCode), std::tuple(true, 0u)) << installed.error;
    platform::WinRegistry registry;
    const auto entry = sample(registry);
    ASSERT_TRUE(entry);
    EXPECT_EQ((std::vector<std::wstring> { entry->displayName, entry->publisher, entry->displayVersion,
                  entry->uninstallString, entry->installLocation, std::to_wstring(entry->installDate.size()) }),
        (std::vector<std::wstring> { sample_msi::DisplayName, sample_msi::Publisher, sample_msi::DisplayVersion,
            sample_msi::UninstallString, L"", L"8" }));

    const platform::PreparedUninstall prepared
        = platform::prepareUninstall(entry->uninstallString, entry->publisher, entry->displayName);
    ASSERT_TRUE(prepared.command) << platform::toUtf8(prepared.refusal);
    EXPECT_EQ(prepared.command->parameters(), sample_msi::PreparedParameters);
    const auto removal = run(*prepared.command);
    ASSERT_TRUE(removal.started) << removal.error;
    EXPECT_EQ(std::tuple(removal.waitResult, removal.exitCode), std::tuple(platform::WaitObject0, 0u));
    EXPECT_FALSE(sample(registry));
#endif
}

} // namespace
