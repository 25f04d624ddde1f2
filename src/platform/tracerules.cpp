#include "tracerules.h"

#include "environment.h"

#include <algorithm>

namespace platform {
namespace traces {

namespace {

bool isSpace(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r' || c == L'\v' || c == L'\f';
}

std::wstring trimmed(const std::wstring& text)
{
    std::size_t begin = 0, end = text.size();
    while (begin < end && isSpace(text[begin]))
        ++begin;
    while (end > begin && isSpace(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

wchar_t foldChar(wchar_t c)
{
    const auto u = static_cast<std::uint32_t>(c);
    if ((u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7) || (u >= 0x391 && u <= 0x3A9 && u != 0x3A2)
        || (u >= 0x410 && u <= 0x42F))
        return static_cast<wchar_t>(u + 0x20);
    if (u >= 0x400 && u <= 0x40F)
        return static_cast<wchar_t>(u + 0x50);
    // Latin Extended-A pairs capitals with the next code point; the parity flips after U+0138.
    const bool evenCapital = (u >= 0x100 && u <= 0x12F) || (u >= 0x132 && u <= 0x137) || (u >= 0x14A && u <= 0x177);
    const bool oddCapital = (u >= 0x139 && u <= 0x148) || (u >= 0x179 && u <= 0x17E);
    if ((evenCapital && u % 2 == 0) || (oddCapital && u % 2 == 1))
        return static_cast<wchar_t>(u + 1);
    return c;
}

bool isDriveLetter(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
}

bool isAncestor(const std::wstring& ancestor, const std::wstring& path)
{
    if (ancestor.empty())
        return false;
    const std::wstring prefix = ancestor.back() == L'/' ? ancestor : ancestor + L"/";
    return path.size() > prefix.size() && path.compare(0, prefix.size(), prefix) == 0;
}

std::wstring parentOf(const std::wstring& normalized)
{
    const std::size_t slash = normalized.rfind(L'/');
    if (slash == std::wstring::npos || slash == 0)
        return std::wstring();
    if (slash == 1 && normalized[0] == L'/') // "//server": a share has no parent folder
        return std::wstring();
    return normalized.substr(0, slash);
}

} // namespace

std::wstring foldCase(std::wstring text)
{
    for (wchar_t& c : text)
        c = foldChar(c);
    return text;
}

bool containsNoCase(const std::wstring& text, const std::wstring& part)
{
    return !part.empty() && foldCase(text).find(foldCase(part)) != std::wstring::npos;
}

bool startsWithPathNoCase(const std::wstring& path, const std::wstring& prefix)
{
    if (prefix.empty() || prefix.size() > path.size())
        return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        wchar_t a = foldChar(path[i]), b = foldChar(prefix[i]);
        if (a == L'\\')
            a = L'/';
        if (b == L'\\')
            b = L'/';
        if (a != b)
            return false;
    }
    return true;
}

std::wstring normalizePath(const std::wstring& path)
{
    std::wstring p = path;
    if (p.rfind(L"\\\\?\\UNC\\", 0) == 0)
        p = L"\\\\" + p.substr(8);
    else if (p.rfind(L"\\\\?\\", 0) == 0)
        p = p.substr(4);
    std::replace(p.begin(), p.end(), L'\\', L'/');

    std::wstring head, rest;
    if (p.rfind(L"//", 0) == 0) {
        head = L"//";
        rest = p.substr(2);
    } else if (p.size() >= 2 && isDriveLetter(p[0]) && p[1] == L':') {
        head = p.substr(0, 2);
        rest = p.substr(2);
        if (!rest.empty() && rest[0] != L'/')
            head += L'.'; // "c:foo" is relative to that drive's current folder, not its root
    } else if (!p.empty() && p[0] == L'/') {
        head = L"/";
        rest = p.substr(1);
    } else {
        rest = p;
    }

    std::vector<std::wstring> parts;
    std::size_t pos = 0;
    while (pos <= rest.size()) {
        std::size_t slash = rest.find(L'/', pos);
        if (slash == std::wstring::npos)
            slash = rest.size();
        const std::wstring part = rest.substr(pos, slash - pos);
        pos = slash + 1;
        if (part.empty() || part == L".")
            continue;
        if (part == L"..") {
            if (!parts.empty())
                parts.pop_back();
            continue;
        }
        parts.push_back(part);
    }

    std::wstring out = head;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0 || (!head.empty() && head.back() != L'/'))
            out += L'/';
        out += parts[i];
    }
    return foldCase(out);
}

bool isProtectedLocation(const std::wstring& location, const Environment& env)
{
    const std::wstring n = normalizePath(trimmed(location));
    const bool absolute = n.rfind(L"/", 0) == 0
        || (n.size() >= 2 && isDriveLetter(n[0]) && n[1] == L':' && (n.size() == 2 || n[2] == L'/'));
    if (!absolute)
        return true;
    if (n == L"/" || (n.size() == 2 && n[1] == L':'))
        return true;
    if (n.rfind(L"//", 0) == 0 && std::count(n.begin() + 2, n.end(), L'/') <= 1) // "//server/share"
        return true;

    const std::wstring windows = normalizePath(env.windowsFolder());
    if (!windows.empty() && (n == windows || isAncestor(windows, n)))
        return true;

    const std::wstring profile = normalizePath(env.userProfile());
    const std::wstring roaming = normalizePath(env.roamingAppData());
    const std::wstring users = parentOf(profile);
    if (!users.empty() && parentOf(n) == users)
        return true; // someone's profile
    const std::wstring roots[] = {
        windows,
        normalizePath(env.systemDriveRoot()),
        normalizePath(env.programFiles()),
        normalizePath(env.programFilesX86()),
        normalizePath(env.variable(L"ProgramW6432").value_or(L"")),
        normalizePath(env.programData()),
        users,
        profile,
        parentOf(roaming), // AppData
        roaming,
        normalizePath(env.localAppData()),
        normalizePath(env.userFolder(UserFolder::Desktop)),
        normalizePath(env.userFolder(UserFolder::Documents)),
        normalizePath(env.userFolder(UserFolder::Downloads)),
        normalizePath(env.temp()),
    };
    for (const std::wstring& root : roots) {
        // Removing a folder that holds one of these would take it along.
        if (!root.empty() && (n == root || isAncestor(n, root)))
            return true;
    }
    return false;
}

bool isPlainFolderName(const std::wstring& name)
{
    if (name.empty())
        return false;
    // Windows drops trailing dots and spaces from a path component, so "..." or " " would name
    // the base folder itself.
    if (std::all_of(name.begin(), name.end(), [](wchar_t c) { return c == L'.' || c == L' '; }))
        return false;
    return std::none_of(name.begin(), name.end(), [](wchar_t c) {
        return c < 0x20 || c == L'/' || c == L'\\' || c == L':' || c == L'*' || c == L'?' || c == L'"' || c == L'<'
            || c == L'>' || c == L'|';
    });
}

std::wstring firstWord(const std::wstring& text)
{
    return text.substr(0, text.find(L' '));
}

std::vector<std::wstring> appDataCandidates(const std::wstring& name, const std::wstring& publisher)
{
    std::vector<std::wstring> candidates { name };
    if (!publisher.empty()) {
        const std::wstring word = trimmed(firstWord(publisher));
        if (word.size() > 2 && word != name)
            candidates.push_back(word);
    }
    std::wstring compact = name;
    compact.erase(std::remove(compact.begin(), compact.end(), L' '), compact.end());
    if (compact != name && compact.size() >= 4)
        candidates.push_back(compact);

    std::vector<std::wstring> unique;
    for (const std::wstring& c : candidates) {
        if (isPlainFolderName(c) && std::find(unique.begin(), unique.end(), c) == unique.end())
            unique.push_back(c);
    }
    return unique;
}

bool startupValueMatches(const std::wstring& data, const std::wstring& installLocation, const std::wstring& name)
{
    return containsNoCase(data, installLocation) || containsNoCase(data, name);
}

bool shortcutMatches(const std::wstring& baseName, const std::wstring& name, const std::wstring& publisher)
{
    return containsNoCase(baseName, name) || containsNoCase(baseName, firstWord(publisher));
}

bool taskLineMatches(const std::wstring& line, const std::wstring& name, const std::wstring& installLocation)
{
    return containsNoCase(line, name) || containsNoCase(line, installLocation);
}

std::wstring taskName(const std::wstring& line)
{
    std::wstring field;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const wchar_t c = line[i];
        if (c == L'"') {
            if (quoted && i + 1 < line.size() && line[i + 1] == L'"')
                ++i; // an escaped quote, dropped with the others
            else
                quoted = !quoted;
            continue;
        }
        if (c == L',' && !quoted)
            break;
        field += c;
    }
    return trimmed(field);
}

bool serviceMatches(const std::wstring& binaryPath, const std::wstring& installLocation)
{
    return containsNoCase(binaryPath, installLocation);
}

RegistryLocation parseRegistryLocation(const std::wstring& text)
{
    RegistryLocation location;
    location.hive = text.rfind(L"HKLM", 0) == 0 ? Hive::LocalMachine : Hive::CurrentUser;
    const std::size_t first = text.find(L'\\');
    if (first == std::wstring::npos)
        return location;
    const std::wstring rest = text.substr(first + 1);
    const std::size_t last = rest.rfind(L'\\');
    if (last == std::wstring::npos)
        return location;
    location.parent = rest.substr(0, last);
    location.leaf = rest.substr(last + 1);
    // An empty leaf would make a tree deletion take the parent's whole content.
    location.valid = !location.parent.empty() && !location.leaf.empty();
    return location;
}

} // namespace traces
} // namespace platform
