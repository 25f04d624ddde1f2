// A real Windows Installer package: installed by msiexec, read back the way the inventory reads
// it, and removed with the command line the inventory builds for it.

#include "platform/uninstallentries.h"
#include "platform/win/winlauncher.h"
#include "platform/win/winregistry.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

const std::wstring ProductCode = L"{5F0C1E2A-8B7D-4C3E-9A61-2D4B8E7F1A90}";

std::wstring widen(const char* text)
{
    return std::wstring(text, text + std::char_traits<char>::length(text));
}

std::wstring todayAsInstallDate()
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    wchar_t text[16] = {};
    std::swprintf(text, 16, L"%04u%02u%02u", now.wYear, now.wMonth, now.wDay);
    return text;
}

platform::ShellExecuteResult msiexec(const std::wstring& parameters)
{
    platform::WinLauncher launcher;
    platform::ShellExecuteRequest request;
    request.file = L"msiexec.exe";
    request.parameters = parameters;
    return launcher.shellExecuteAndWait(request, 120000);
}

const platform::UninstallEntry* findSample(const std::vector<platform::UninstallEntry>& entries)
{
    for (const auto& e : entries) {
        if (e.keyPath.size() >= ProductCode.size()
            && e.keyPath.compare(e.keyPath.size() - ProductCode.size(), ProductCode.size(), ProductCode) == 0)
            return &e;
    }
    return nullptr;
}

TEST(UninstallMsi, InstalledPackageIsReadAndRemoved)
{
#ifndef NORVALE_SAMPLE_MSI
    GTEST_SKIP() << "wixl is not installed, so there is no sample package";
#else
    const std::wstring msi = widen(NORVALE_SAMPLE_MSI);
    const auto install = msiexec(L"/i \"" + msi + L"\" /qn");
    ASSERT_TRUE(install.started) << install.error;
    ASSERT_EQ(install.exitCode, 0u);

    platform::WinRegistry registry;
    const auto entries = platform::readUninstallEntries(registry);
    const platform::UninstallEntry* sample = findSample(entries);
    ASSERT_NE(sample, nullptr);
    EXPECT_EQ(sample->hive, platform::Hive::LocalMachine);
    EXPECT_EQ(sample->displayName, L"Norvale Sample Viewer");
    EXPECT_EQ(sample->publisher, L"Brightfen Test");
    EXPECT_EQ(sample->displayVersion, L"1.2.3");
    EXPECT_EQ(sample->installDate, todayAsInstallDate());
    EXPECT_EQ(sample->uninstallString, L"MsiExec.exe /I" + ProductCode);
    EXPECT_FALSE(sample->systemComponent.value_or(0) == 1);
    EXPECT_TRUE(sample->parentKeyName.empty());

    // What the inventory runs for it: the product switch kept, the silent switches added.
    const auto removal = msiexec(L"/X" + ProductCode + L" /quiet /norestart");
    ASSERT_TRUE(removal.started) << removal.error;
    EXPECT_EQ(removal.waitResult, platform::WaitObject0);
    EXPECT_EQ(removal.exitCode, 0u);
    EXPECT_EQ(findSample(platform::readUninstallEntries(registry)), nullptr);
    EXPECT_FALSE(platform::readUninstallEntry(registry, sample->hive, sample->keyPath).has_value());
#endif
}

} // namespace
