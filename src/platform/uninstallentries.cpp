#include "uninstallentries.h"

namespace platform {

namespace {

const wchar_t UninstallPath[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const wchar_t UninstallPath32[] = L"SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

std::wstring readText(const Registry& registry, Hive hive, const std::wstring& path, const wchar_t* name)
{
    return registry.readString(hive, path, name, UninstallValueBytes).value_or(std::wstring());
}

std::uint64_t littleEndian64(const std::vector<std::uint8_t>& data, std::size_t offset)
{
    std::uint64_t v = 0;
    for (std::size_t i = 8; i-- > 0;)
        v = (v << 8) | data[offset + i];
    return v;
}

} // namespace

const std::vector<UninstallRoot>& uninstallRoots()
{
    static const std::vector<UninstallRoot> roots = {
        { Hive::LocalMachine, UninstallPath },
        { Hive::LocalMachine, UninstallPath32 },
        { Hive::CurrentUser, UninstallPath },
        { Hive::CurrentUser, UninstallPath32 },
    };
    return roots;
}

std::optional<UninstallEntry> readUninstallEntry(const Registry& registry, Hive hive, const std::wstring& keyPath)
{
    if (!registry.keyExists(hive, keyPath))
        return std::nullopt;
    UninstallEntry e;
    e.hive = hive;
    e.keyPath = keyPath;
    e.displayName = readText(registry, hive, keyPath, L"DisplayName");
    e.systemComponent = registry.readDword(hive, keyPath, L"SystemComponent");
    e.parentKeyName = readText(registry, hive, keyPath, L"ParentKeyName");
    e.noRemove = registry.readDword(hive, keyPath, L"NoRemove");
    e.publisher = readText(registry, hive, keyPath, L"Publisher");
    e.displayVersion = readText(registry, hive, keyPath, L"DisplayVersion");
    e.installDate = readText(registry, hive, keyPath, L"InstallDate");
    e.uninstallString = readText(registry, hive, keyPath, L"UninstallString");
    e.displayIcon = readText(registry, hive, keyPath, L"DisplayIcon");
    e.installLocation = readText(registry, hive, keyPath, L"InstallLocation");
    e.estimatedSize = registry.readDword(hive, keyPath, L"EstimatedSize");
    return e;
}

std::vector<UninstallEntry> readUninstallEntries(const Registry& registry, const std::atomic<bool>* stop)
{
    std::vector<UninstallEntry> out;
    for (const UninstallRoot& root : uninstallRoots()) {
        const auto names = registry.subKeys(root.hive, root.path, UninstallKeyNameChars);
        if (!names)
            continue;
        for (const std::wstring& name : *names) {
            if (stop && stop->load())
                return out;
            if (auto entry = readUninstallEntry(registry, root.hive, root.path + L"\\" + name))
                out.push_back(std::move(*entry));
        }
    }
    return out;
}

const std::vector<std::wstring>& userAssistCountKeys()
{
    static const std::vector<std::wstring> keys = {
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\UserAssist\\"
        L"{CEBFF5CD-ACE2-4F4F-9178-9926F41749EA}\\Count",
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\UserAssist\\"
        L"{F4E57C4B-2036-45F0-A9AB-443BCFE33D9F}\\Count",
    };
    return keys;
}

std::optional<UserAssistValue> decodeUserAssistValue(const EnumeratedValue& v)
{
    if (v.status != Status::Ok || v.value.type != TypeBinary || v.value.data.size() < UserAssistMinBytes)
        return std::nullopt;
    return UserAssistValue { v.value.name, littleEndian64(v.value.data, UserAssistTimeOffset) };
}

std::vector<UserAssistValue> readUserAssistValues(const Registry& registry)
{
    std::vector<UserAssistValue> out;
    for (const std::wstring& key : userAssistCountKeys()) {
        const auto values = registry.enumValues(Hive::CurrentUser, key, UserAssistNameChars, UserAssistDataBytes);
        if (!values)
            continue;
        // A failing index (a name or record that does not fit) is passed over, not the end.
        for (const EnumeratedValue& v : *values) {
            if (std::optional<UserAssistValue> decoded = decodeUserAssistValue(v))
                out.push_back(std::move(*decoded));
        }
    }
    return out;
}

} // namespace platform
