#include "systemfacts.h"

#include "registry.h"

namespace platform {

namespace {

constexpr wchar_t ProcessorKey[] = L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
constexpr wchar_t VersionKey[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
constexpr wchar_t PackagesKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing\\Packages";
constexpr wchar_t EvaluationCacheKey[]
    = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Component Based Servicing\\ApplicabilityEvaluationCache";

constexpr std::size_t StringBufferBytes = 512;
constexpr std::size_t PackageNameChars = 512;

bool containsKb(const std::wstring& name)
{
    for (std::size_t i = 0; i + 1 < name.size(); ++i) {
        if ((name[i] == L'K' || name[i] == L'k') && (name[i + 1] == L'B' || name[i + 1] == L'b'))
            return true;
    }
    return false;
}

} // namespace

SystemFacts SystemFacts::read(const Registry& registry)
{
    SystemFacts facts;
    facts.processorName = readProcessorName(registry);
    facts.windows = readWindowsVersion(registry);
    facts.updatesInstalled = countInstalledUpdates(registry);
    return facts;
}

std::wstring SystemFacts::readProcessorName(const Registry& registry)
{
    return registry.readString(Hive::LocalMachine, ProcessorKey, L"ProcessorNameString", StringBufferBytes)
        .value_or(std::wstring());
}

std::optional<WindowsVersion> SystemFacts::readWindowsVersion(const Registry& registry)
{
    // keyExists also answers yes for a key this user may not read; only a key that opens for
    // reading counts here, so a locked key leaves the edition and build unknown rather than blank.
    if (!registry.subKeyCount(Hive::LocalMachine, VersionKey))
        return std::nullopt;
    auto text = [&registry](const wchar_t* name) {
        return registry.readString(Hive::LocalMachine, VersionKey, name, StringBufferBytes).value_or(std::wstring());
    };
    WindowsVersion v;
    v.productName = text(L"ProductName");
    v.displayVersion = text(L"DisplayVersion");
    v.buildNumber = text(L"CurrentBuildNumber");
    v.ubr = registry.readDword(Hive::LocalMachine, VersionKey, L"UBR").value_or(0);
    return v;
}

std::uint32_t SystemFacts::countInstalledUpdates(const Registry& registry)
{
    std::uint32_t count = 0;
    if (const auto names = registry.subKeys(Hive::LocalMachine, PackagesKey, PackageNameChars)) {
        for (const std::wstring& name : *names) {
            if (containsKb(name))
                ++count;
        }
    }
    // Some machines keep their updates only as evaluation-cache entries.
    if (count == 0)
        count = registry.subKeyCount(Hive::LocalMachine, EvaluationCacheKey).value_or(0);
    return count;
}

} // namespace platform
