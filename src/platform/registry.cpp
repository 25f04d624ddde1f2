#include "registry.h"

#include <cstring>

namespace platform {

std::wstring decodeRegistryString(const std::uint8_t* data, std::size_t bytes)
{
    std::wstring out;
    out.reserve(bytes / 2);
    for (std::size_t i = 0; i + 1 < bytes; i += 2) {
        std::uint32_t unit = static_cast<std::uint32_t>(data[i]) | (static_cast<std::uint32_t>(data[i + 1]) << 8);
        if (unit == 0)
            break; // the stored terminator, or the first of several
        if (sizeof(wchar_t) == 4 && unit >= 0xD800 && unit <= 0xDBFF && i + 3 < bytes) {
            const std::uint32_t low
                = static_cast<std::uint32_t>(data[i + 2]) | (static_cast<std::uint32_t>(data[i + 3]) << 8);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        out += static_cast<wchar_t>(unit);
    }
    return out;
}

std::vector<std::uint8_t> encodeRegistryString(const std::wstring& text, bool terminate)
{
    std::vector<std::uint8_t> out;
    out.reserve((text.size() + 1) * 2);
    auto put = [&out](std::uint32_t unit) {
        out.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        out.push_back(static_cast<std::uint8_t>((unit >> 8) & 0xFF));
    };
    for (wchar_t wc : text) {
        std::uint32_t c = static_cast<std::uint32_t>(wc);
        if (c >= 0x10000) {
            c -= 0x10000;
            put(0xD800 + (c >> 10));
            put(0xDC00 + (c & 0x3FF));
        } else {
            put(c);
        }
    }
    if (terminate)
        put(0);
    return out;
}

std::optional<std::wstring> Registry::readString(
    Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes) const
{
    RawValue v;
    if (queryValue(hive, path, name, maxDataBytes, v) != Status::Ok)
        return std::nullopt;
    if (v.type != TypeString && v.type != TypeExpandString)
        return std::nullopt;
    return decodeRegistryString(v.data.data(), v.data.size());
}

std::optional<std::uint32_t> Registry::readDword(Hive hive, const std::wstring& path, const std::wstring& name) const
{
    RawValue v;
    if (queryValue(hive, path, name, 4, v) != Status::Ok || v.type != TypeDword || v.data.size() != 4)
        return std::nullopt;
    std::uint32_t out = 0;
    for (int i = 3; i >= 0; --i)
        out = (out << 8) | v.data[static_cast<std::size_t>(i)];
    return out;
}

std::optional<std::uint64_t> Registry::readQword(Hive hive, const std::wstring& path, const std::wstring& name) const
{
    RawValue v;
    if (queryValue(hive, path, name, 8, v) != Status::Ok || v.type != TypeQword || v.data.size() != 8)
        return std::nullopt;
    std::uint64_t out = 0;
    for (int i = 7; i >= 0; --i)
        out = (out << 8) | v.data[static_cast<std::size_t>(i)];
    return out;
}

std::optional<std::vector<std::uint8_t>> Registry::readBinary(
    Hive hive, const std::wstring& path, const std::wstring& name, std::size_t maxDataBytes) const
{
    RawValue v;
    if (queryValue(hive, path, name, maxDataBytes, v) != Status::Ok)
        return std::nullopt;
    return v.data;
}

Status Registry::setString(
    Hive hive, const std::wstring& path, const std::wstring& name, const std::wstring& text, std::uint32_t type)
{
    return setValue(hive, path, RawValue { name, type, encodeRegistryString(text) });
}

Status Registry::setDword(Hive hive, const std::wstring& path, const std::wstring& name, std::uint32_t v)
{
    std::vector<std::uint8_t> bytes(4);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[i] = static_cast<std::uint8_t>((v >> (8 * i)) & 0xFF);
    return setValue(hive, path, RawValue { name, TypeDword, bytes });
}

Status Registry::setQword(Hive hive, const std::wstring& path, const std::wstring& name, std::uint64_t v)
{
    std::vector<std::uint8_t> bytes(8);
    for (std::size_t i = 0; i < 8; ++i)
        bytes[i] = static_cast<std::uint8_t>((v >> (8 * i)) & 0xFF);
    return setValue(hive, path, RawValue { name, TypeQword, bytes });
}

Status Registry::setBinary(
    Hive hive, const std::wstring& path, const std::wstring& name, const std::vector<std::uint8_t>& bytes)
{
    return setValue(hive, path, RawValue { name, TypeBinary, bytes });
}

} // namespace platform
