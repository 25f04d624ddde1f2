#include "winregistry.h"

#include "winhandle.h"

#include <limits>
#include <new>

namespace platform {

namespace {

HKEY rootKey(Hive hive)
{
    switch (hive) {
    case Hive::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case Hive::CurrentUser:
        return HKEY_CURRENT_USER;
    case Hive::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case Hive::Users:
        return HKEY_USERS;
    }
    return HKEY_CURRENT_USER;
}

Status toStatus(LONG error)
{
    if (error == ERROR_SUCCESS)
        return Status::Ok;
    if (isNotFound(static_cast<DWORD>(error)))
        return Status::NotFound;
    if (error == ERROR_MORE_DATA)
        return Status::MoreData;
    if (error == ERROR_ACCESS_DENIED)
        return Status::AccessDenied;
    return Status::Failed;
}

// The Win32 calls reject a leading backslash and empty parts ("A\\\\B"); the sandbox has always
// accepted them, so both implementations read such paths the same way.
std::wstring normalizedPath(const std::wstring& path)
{
    std::wstring out;
    out.reserve(path.size());
    for (wchar_t c : path) {
        if (c == L'\\' && (out.empty() || out.back() == L'\\'))
            continue;
        out += c;
    }
    if (!out.empty() && out.back() == L'\\')
        out.pop_back();
    return out;
}

DWORD clampToDword(std::size_t n)
{
    return n > std::numeric_limits<DWORD>::max() ? std::numeric_limits<DWORD>::max() : static_cast<DWORD>(n);
}

LONG openKey(Hive hive, const std::wstring& path, REGSAM access, UniqueHkey& key)
{
    return ::RegOpenKeyExW(rootKey(hive), normalizedPath(path).c_str(), 0, access, key.put());
}

LONG createOrOpenKey(Hive hive, const std::wstring& path, REGSAM access, UniqueHkey& key)
{
    return ::RegCreateKeyExW(rootKey(hive), normalizedPath(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access,
        nullptr, key.put(), nullptr);
}

// The caller's buffer, with room for at least one element: a null data pointer would tell
// Win32 that no data is wanted, and a zero-byte request must still report MoreData.
template <typename T> bool allocate(std::vector<T>& buffer, std::size_t n)
{
    try {
        buffer.assign(n == 0 ? 1 : n, T());
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace

bool WinRegistry::keyExists(Hive hive, const std::wstring& path) const
{
    UniqueHkey key;
    const LONG error = openKey(hive, path, KEY_READ, key);
    // A key this user may not read is still there.
    return error == ERROR_SUCCESS || error == ERROR_ACCESS_DENIED;
}

std::optional<std::vector<std::wstring>> WinRegistry::subKeys(
    Hive hive, const std::wstring& path, std::size_t maxNameChars) const
{
    UniqueHkey key;
    if (openKey(hive, path, KEY_READ, key) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<wchar_t> name;
    if (!allocate(name, maxNameChars))
        return std::nullopt;
    std::vector<std::wstring> names;
    for (DWORD index = 0;; ++index) {
        DWORD length = clampToDword(maxNameChars);
        if (::RegEnumKeyExW(key.get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr)
            != ERROR_SUCCESS)
            break;
        names.emplace_back(name.data(), length);
    }
    return names;
}

std::optional<std::uint32_t> WinRegistry::subKeyCount(Hive hive, const std::wstring& path) const
{
    UniqueHkey key;
    if (openKey(hive, path, KEY_READ, key) != ERROR_SUCCESS)
        return std::nullopt;
    DWORD count = 0;
    if (::RegQueryInfoKeyW(
            key.get(), nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)
        != ERROR_SUCCESS)
        return std::nullopt;
    return count;
}

std::optional<std::vector<EnumeratedValue>> WinRegistry::enumValues(
    Hive hive, const std::wstring& path, std::size_t maxNameChars, std::size_t maxDataBytes) const
{
    UniqueHkey key;
    if (openKey(hive, path, KEY_READ, key) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<wchar_t> name;
    std::vector<BYTE> data;
    if (!allocate(name, maxNameChars) || !allocate(data, maxDataBytes))
        return std::nullopt;
    std::vector<EnumeratedValue> out;
    for (DWORD index = 0;; ++index) {
        DWORD nameLength = clampToDword(maxNameChars);
        DWORD dataLength = clampToDword(maxDataBytes);
        DWORD type = REG_NONE;
        const LONG error
            = ::RegEnumValueW(key.get(), index, name.data(), &nameLength, nullptr, &type, data.data(), &dataLength);
        if (error == ERROR_NO_MORE_ITEMS)
            break;
        EnumeratedValue entry;
        entry.status = toStatus(error);
        if (error == ERROR_SUCCESS) {
            entry.value.name.assign(name.data(), nameLength);
            entry.value.type = type;
            entry.value.data.assign(data.begin(), data.begin() + dataLength);
        }
        out.push_back(std::move(entry));
        // MoreData concerns this index only; any other failure would repeat at every index
        // (a key deleted meanwhile), so the walk ends with it.
        if (error != ERROR_SUCCESS && error != ERROR_MORE_DATA)
            break;
    }
    return out;
}

Status WinRegistry::queryValue(
    Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes, RawValue& out) const
{
    UniqueHkey key;
    if (const LONG error = openKey(hive, path, KEY_READ, key); error != ERROR_SUCCESS)
        return toStatus(error);
    std::vector<BYTE> data;
    if (!allocate(data, maxDataBytes))
        return Status::Failed;
    DWORD type = REG_NONE;
    DWORD length = clampToDword(maxDataBytes);
    const LONG error = ::RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, data.data(), &length);
    if (error != ERROR_SUCCESS)
        return toStatus(error);
    out.name = name;
    out.type = type;
    out.data.assign(data.begin(), data.begin() + length);
    return Status::Ok;
}

Status WinRegistry::createKey(Hive hive, const std::wstring& path)
{
    UniqueHkey key;
    return toStatus(createOrOpenKey(hive, path, KEY_WRITE, key));
}

Status WinRegistry::setValue(Hive hive, const std::wstring& path, const RawValue& value)
{
    if (value.data.size() > std::numeric_limits<DWORD>::max())
        return Status::Failed;
    UniqueHkey key;
    if (const LONG error = createOrOpenKey(hive, path, KEY_SET_VALUE, key); error != ERROR_SUCCESS)
        return toStatus(error);
    // For string types RegSetValueExW peeks one character past the data and, when it finds a
    // zero there, stores it as the terminator the caller "forgot". Non-zero guard bytes after
    // the data make it store exactly the bytes it was given, terminated or not.
    std::vector<BYTE> bytes;
    try {
        bytes.reserve(value.data.size() + 2);
        bytes.assign(value.data.begin(), value.data.end());
        bytes.insert(bytes.end(), { 0xFF, 0xFF });
    } catch (const std::bad_alloc&) {
        return Status::Failed;
    }
    return toStatus(::RegSetValueExW(
        key.get(), value.name.c_str(), 0, value.type, bytes.data(), static_cast<DWORD>(value.data.size())));
}

Status WinRegistry::deleteTree(Hive hive, const std::wstring& path)
{
    const std::wstring subKey = normalizedPath(path);
    // An empty subkey would make RegDeleteTreeW empty the whole hive.
    if (subKey.empty())
        return Status::Failed;
    const LONG error = ::RegDeleteTreeW(rootKey(hive), subKey.c_str());
    return isNotFound(static_cast<DWORD>(error)) ? Status::Ok : toStatus(error);
}

Status WinRegistry::deleteValue(Hive hive, const std::wstring& path, const std::wstring& name)
{
    UniqueHkey key;
    LONG error = openKey(hive, path, KEY_SET_VALUE, key);
    if (error == ERROR_SUCCESS)
        error = ::RegDeleteValueW(key.get(), name.c_str());
    return isNotFound(static_cast<DWORD>(error)) ? Status::Ok : toStatus(error);
}

} // namespace platform
