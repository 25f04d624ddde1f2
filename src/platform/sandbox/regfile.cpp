#include "regfile.h"

#include "../strings.h"

#include <algorithm>
#include <cwctype>

namespace platform {

namespace {

wchar_t upper(wchar_t c)
{
    return (c >= L'a' && c <= L'z') ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

std::wstring trimmed(const std::wstring& s)
{
    std::size_t b = 0;
    std::size_t e = s.size();
    while (b < e && (s[b] == L' ' || s[b] == L'\t' || s[b] == L'\r'))
        ++b;
    while (e > b && (s[e - 1] == L' ' || s[e - 1] == L'\t' || s[e - 1] == L'\r'))
        --e;
    return s.substr(b, e - b);
}

std::wstring decodeText(const std::vector<std::uint8_t>& bytes)
{
    if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        std::wstring out;
        std::vector<std::uint8_t> body(bytes.begin() + 2, bytes.end());
        // decodeRegistryString stops at a zero; a text file has none, so decode by hand.
        for (std::size_t i = 0; i + 1 < body.size(); i += 2) {
            std::uint32_t unit = body[i] | (static_cast<std::uint32_t>(body[i + 1]) << 8);
            if (sizeof(wchar_t) == 4 && unit >= 0xD800 && unit <= 0xDBFF && i + 3 < body.size()) {
                const std::uint32_t low = body[i + 2] | (static_cast<std::uint32_t>(body[i + 3]) << 8);
                if (low >= 0xDC00 && low <= 0xDFFF) {
                    unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                    i += 2;
                }
            }
            out += static_cast<wchar_t>(unit);
        }
        return out;
    }
    std::size_t skip = 0;
    if (bytes.size() >= 3 && bytes[0] == 0xEF && bytes[1] == 0xBB && bytes[2] == 0xBF)
        skip = 3;
    return fromUtf8(std::string(bytes.begin() + static_cast<std::ptrdiff_t>(skip), bytes.end()));
}

// Reads a quoted string starting at text[pos] == '"'; leaves pos after the closing quote.
bool readQuoted(const std::wstring& text, std::size_t& pos, std::wstring& out)
{
    if (pos >= text.size() || text[pos] != L'"')
        return false;
    ++pos;
    out.clear();
    while (pos < text.size()) {
        const wchar_t c = text[pos++];
        if (c == L'\\' && pos < text.size()) {
            out += text[pos++];
        } else if (c == L'"') {
            return true;
        } else {
            out += c;
        }
    }
    return false;
}

int hexDigit(wchar_t c)
{
    if (c >= L'0' && c <= L'9')
        return c - L'0';
    c = upper(c);
    if (c >= L'A' && c <= L'F')
        return c - L'A' + 10;
    return -1;
}

bool parseHexBytes(const std::wstring& text, std::vector<std::uint8_t>& out)
{
    out.clear();
    std::wstring token;
    auto flush = [&]() {
        const std::wstring t = trimmed(token);
        token.clear();
        if (t.empty())
            return true;
        if (t.size() > 2)
            return false;
        int v = 0;
        for (wchar_t c : t) {
            const int d = hexDigit(c);
            if (d < 0)
                return false;
            v = v * 16 + d;
        }
        out.push_back(static_cast<std::uint8_t>(v));
        return true;
    };
    for (wchar_t c : text) {
        if (c == L',') {
            if (!flush())
                return false;
        } else {
            token += c;
        }
    }
    return flush();
}

bool parseValueData(const std::wstring& data, RawValue& v, bool& isDelete)
{
    isDelete = false;
    if (data == L"-") {
        isDelete = true;
        return true;
    }
    if (!data.empty() && data[0] == L'"') {
        std::size_t pos = 0;
        std::wstring s;
        if (!readQuoted(data, pos, s) || !trimmed(data.substr(pos)).empty())
            return false;
        v.type = TypeString;
        v.data = encodeRegistryString(s);
        return true;
    }
    const std::wstring lower = lowerAscii(data);
    if (lower.rfind(L"dword:", 0) == 0) {
        const std::wstring digits = trimmed(data.substr(6));
        if (digits.empty() || digits.size() > 8)
            return false;
        std::uint32_t n = 0;
        for (wchar_t c : digits) {
            const int d = hexDigit(c);
            if (d < 0)
                return false;
            n = n * 16 + static_cast<std::uint32_t>(d);
        }
        v.type = TypeDword;
        v.data.resize(4);
        for (std::size_t i = 0; i < 4; ++i)
            v.data[i] = static_cast<std::uint8_t>((n >> (8 * i)) & 0xFF);
        return true;
    }
    if (lower.rfind(L"hex:", 0) == 0) {
        v.type = TypeBinary;
        return parseHexBytes(data.substr(4), v.data);
    }
    if (lower.rfind(L"hex(", 0) == 0) {
        const std::size_t close = data.find(L"):");
        if (close == std::wstring::npos || close <= 4 || close > 12)
            return false;
        std::uint32_t type = 0;
        for (std::size_t i = 4; i < close; ++i) {
            const int d = hexDigit(data[i]);
            if (d < 0)
                return false;
            type = type * 16 + static_cast<std::uint32_t>(d);
        }
        v.type = type;
        return parseHexBytes(data.substr(close + 2), v.data);
    }
    return false;
}

std::wstring quote(const std::wstring& s)
{
    std::wstring out = L"\"";
    for (wchar_t c : s) {
        if (c == L'\\' || c == L'"')
            out += L'\\';
        out += c;
    }
    out += L'"';
    return out;
}

// A REG_SZ that regedit can write as a quoted string: exactly one terminator, at the end, and
// nothing a line-based file would mangle.
bool isPlainString(const RawValue& v)
{
    if (v.type != TypeString || v.data.size() < 2 || v.data.size() % 2 != 0)
        return false;
    const std::size_t units = v.data.size() / 2;
    for (std::size_t i = 0; i < units; ++i) {
        const std::uint32_t unit = v.data[2 * i] | (static_cast<std::uint32_t>(v.data[2 * i + 1]) << 8);
        if (i + 1 == units)
            return unit == 0;
        if (unit == 0 || unit == L'\r' || unit == L'\n')
            return false;
    }
    return false;
}

void writeHex(std::wstring& out, std::size_t prefixLength, const std::vector<std::uint8_t>& data)
{
    static const wchar_t digits[] = L"0123456789abcdef";
    std::size_t column = prefixLength;
    for (std::size_t i = 0; i < data.size(); ++i) {
        out += digits[data[i] >> 4];
        out += digits[data[i] & 0xF];
        column += 2;
        if (i + 1 < data.size()) {
            out += L',';
            ++column;
            if (column > 76) {
                out += L"\\\r\n  ";
                column = 2;
            }
        }
    }
}

void writeNode(std::wstring& out, const std::wstring& fullPath, const RegNode& node)
{
    out += L"[" + fullPath + L"]\r\n";
    for (const RawValue& v : node.values) {
        std::wstring line = v.name.empty() ? std::wstring(L"@") : quote(v.name);
        line += L'=';
        if (isPlainString(v)) {
            line += quote(decodeRegistryString(v.data.data(), v.data.size()));
        } else if (v.type == TypeDword && v.data.size() == 4) {
            const std::uint32_t n
                = v.data[0] | (v.data[1] << 8) | (v.data[2] << 16) | (static_cast<std::uint32_t>(v.data[3]) << 24);
            wchar_t buf[16];
            swprintf(buf, 16, L"dword:%08x", n);
            line += buf;
        } else {
            if (v.type == TypeBinary) {
                line += L"hex:";
            } else {
                wchar_t buf[24];
                swprintf(buf, 24, L"hex(%x):", v.type);
                line += buf;
            }
            writeHex(line, line.size(), v.data);
        }
        out += line + L"\r\n";
    }
    out += L"\r\n";
    for (const auto& [key, child] : node.children)
        writeNode(out, fullPath + L"\\" + child->name, *child);
}

} // namespace

bool KeyNameLess::operator()(const std::wstring& a, const std::wstring& b) const
{
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(), [](wchar_t x, wchar_t y) { return upper(x) < upper(y); });
}

RegNode* RegNode::child(const std::wstring& n) const
{
    const auto it = children.find(n);
    return it == children.end() ? nullptr : it->second.get();
}

RegNode& RegNode::ensureChild(const std::wstring& n)
{
    auto& slot = children[n];
    if (!slot) {
        slot = std::make_unique<RegNode>();
        slot->name = n;
    }
    return *slot;
}

RawValue* RegNode::value(const std::wstring& n)
{
    for (RawValue& v : values) {
        if (equalsNoCase(v.name, n))
            return &v;
    }
    return nullptr;
}

const RawValue* RegNode::value(const std::wstring& n) const
{
    return const_cast<RegNode*>(this)->value(n);
}

void RegNode::setValue(const RawValue& v)
{
    if (RawValue* existing = value(v.name)) {
        existing->type = v.type;
        existing->data = v.data;
    } else {
        values.push_back(v);
    }
}

bool RegNode::removeValue(const std::wstring& n)
{
    const auto it
        = std::find_if(values.begin(), values.end(), [&](const RawValue& v) { return equalsNoCase(v.name, n); });
    if (it == values.end())
        return false;
    values.erase(it);
    return true;
}

std::vector<std::wstring> splitKeyPath(const std::wstring& path)
{
    std::vector<std::wstring> parts;
    std::wstring part;
    for (wchar_t c : path) {
        if (c == L'\\') {
            if (!part.empty())
                parts.push_back(part);
            part.clear();
        } else {
            part += c;
        }
    }
    if (!part.empty())
        parts.push_back(part);
    return parts;
}

RegNode* RegTree::find(Hive hive, const std::wstring& path)
{
    auto it = hives.find(hive);
    if (it == hives.end())
        return nullptr;
    RegNode* node = &it->second;
    for (const std::wstring& part : splitKeyPath(path)) {
        node = node->child(part);
        if (!node)
            return nullptr;
    }
    return node;
}

const RegNode* RegTree::find(Hive hive, const std::wstring& path) const
{
    return const_cast<RegTree*>(this)->find(hive, path);
}

RegNode& RegTree::ensure(Hive hive, const std::wstring& path)
{
    RegNode* node = &hives[hive];
    for (const std::wstring& part : splitKeyPath(path))
        node = &node->ensureChild(part);
    return *node;
}

bool RegTree::remove(Hive hive, const std::wstring& path)
{
    std::vector<std::wstring> parts = splitKeyPath(path);
    if (parts.empty())
        return false; // a hive itself is never deleted
    const std::wstring leaf = parts.back();
    parts.pop_back();
    std::wstring parentPath;
    for (const std::wstring& p : parts)
        parentPath += p + L"\\";
    RegNode* parent = find(hive, parentPath);
    return parent && parent->children.erase(leaf) > 0;
}

bool RegFile::parseHivePath(const std::wstring& full, Hive& hive, std::wstring& path)
{
    const std::size_t slash = full.find(L'\\');
    const std::wstring root = lowerAscii(trimmed(full.substr(0, slash)));
    path = slash == std::wstring::npos ? std::wstring() : full.substr(slash + 1);
    if (root == L"hkey_local_machine" || root == L"hklm")
        hive = Hive::LocalMachine;
    else if (root == L"hkey_current_user" || root == L"hkcu")
        hive = Hive::CurrentUser;
    else if (root == L"hkey_classes_root" || root == L"hkcr")
        hive = Hive::ClassesRoot;
    else if (root == L"hkey_users" || root == L"hku")
        hive = Hive::Users;
    else
        return false;
    return true;
}

std::wstring RegFile::hiveName(Hive hive)
{
    switch (hive) {
    case Hive::ClassesRoot:
        return L"HKEY_CLASSES_ROOT";
    case Hive::CurrentUser:
        return L"HKEY_CURRENT_USER";
    case Hive::LocalMachine:
        return L"HKEY_LOCAL_MACHINE";
    case Hive::Users:
        return L"HKEY_USERS";
    }
    return std::wstring();
}

void RegFile::parse(const std::vector<std::uint8_t>& bytes, RegTree& into)
{
    const std::wstring text = decodeText(bytes);

    // Logical lines: a trailing backslash outside a quoted string continues the line.
    std::vector<std::wstring> lines;
    std::wstring current;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find(L'\n', start);
        if (end == std::wstring::npos)
            end = text.size();
        std::wstring line = text.substr(start, end - start);
        if (!line.empty() && line.back() == L'\r')
            line.pop_back();
        current += current.empty() ? line : trimmed(line);
        const std::wstring t = trimmed(current);
        const bool inHex = t.find(L"=hex") != std::wstring::npos;
        if (inHex && !t.empty() && t.back() == L'\\') {
            current = t.substr(0, t.size() - 1);
        } else {
            lines.push_back(current);
            current.clear();
        }
        start = end + 1;
    }
    if (!current.empty())
        lines.push_back(current);

    RegNode* key = nullptr;
    for (const std::wstring& raw : lines) {
        const std::wstring line = trimmed(raw);
        if (line.empty() || line[0] == L';')
            continue;
        if (line[0] == L'[') {
            key = nullptr;
            const std::size_t close = line.rfind(L']');
            if (close == std::wstring::npos)
                continue;
            std::wstring full = line.substr(1, close - 1);
            const bool remove = !full.empty() && full[0] == L'-';
            if (remove)
                full = full.substr(1);
            Hive hive;
            std::wstring path;
            if (!parseHivePath(full, hive, path))
                continue;
            if (remove)
                into.remove(hive, path);
            else
                key = &into.ensure(hive, path);
            continue;
        }
        if (!key)
            continue;
        RawValue v;
        std::size_t pos = 0;
        if (line[0] == L'@') {
            pos = 1;
        } else if (!readQuoted(line, pos, v.name)) {
            continue;
        }
        while (pos < line.size() && (line[pos] == L' ' || line[pos] == L'\t'))
            ++pos;
        if (pos >= line.size() || line[pos] != L'=')
            continue;
        bool isDelete = false;
        if (!parseValueData(trimmed(line.substr(pos + 1)), v, isDelete))
            continue;
        if (isDelete)
            key->removeValue(v.name);
        else
            key->setValue(v);
    }
}

std::string RegFile::serialize(const RegTree& tree)
{
    std::wstring out = L"Windows Registry Editor Version 5.00\r\n\r\n";
    for (const auto& [hive, root] : tree.hives) {
        // Values may sit on a hive's root key too; only then is the bare hive written.
        if (!root.values.empty()) {
            writeNode(out, hiveName(hive), root);
            continue;
        }
        for (const auto& [name, child] : root.children)
            writeNode(out, hiveName(hive) + L"\\" + child->name, *child);
    }
    return toUtf8(out);
}

} // namespace platform
