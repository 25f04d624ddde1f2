#include "sandboxenvironment.h"

#include "../strings.h"

namespace platform {

SandboxEnvironment::SandboxEnvironment(std::wstring root)
{
    while (root.size() > 1 && (root.back() == L'/' || root.back() == L'\\'))
        root.pop_back();
    m_drive = root + L"/C";
    const std::wstring profile = m_drive + L"/Users/User";
    const std::wstring windows = m_drive + L"/Windows";
    const std::wstring local = profile + L"/AppData/Local";
    const std::pair<const wchar_t*, std::wstring> vars[] = {
        { L"SystemDrive", L"C:" },
        { L"SystemRoot", windows },
        { L"windir", windows },
        { L"USERPROFILE", profile },
        { L"USERNAME", L"User" },
        { L"COMPUTERNAME", L"NORVALE-DEMO" },
        { L"HOMEDRIVE", L"C:" },
        { L"HOMEPATH", L"\\Users\\User" },
        { L"APPDATA", profile + L"/AppData/Roaming" },
        { L"LOCALAPPDATA", local },
        { L"TEMP", local + L"/Temp" },
        { L"TMP", local + L"/Temp" },
        { L"ProgramData", m_drive + L"/ProgramData" },
        { L"ALLUSERSPROFILE", m_drive + L"/ProgramData" },
        { L"PUBLIC", m_drive + L"/Users/Public" },
        { L"ProgramFiles", m_drive + L"/Program Files" },
        { L"ProgramFiles(x86)", m_drive + L"/Program Files (x86)" },
        { L"ProgramW6432", m_drive + L"/Program Files" },
        { L"CommonProgramFiles", m_drive + L"/Program Files/Common Files" },
        { L"CommonProgramFiles(x86)", m_drive + L"/Program Files (x86)/Common Files" },
    };
    for (const auto& [name, value] : vars)
        m_vars[lowerAscii(name)] = value;
}

std::wstring SandboxEnvironment::systemDriveRoot() const
{
    return m_drive + L"/";
}

std::wstring SandboxEnvironment::mapPath(const std::wstring& windowsPath) const
{
    if (windowsPath.size() < 2 || windowsPath[1] != L':' || (windowsPath[0] != L'C' && windowsPath[0] != L'c'))
        return windowsPath;
    std::wstring rest = windowsPath.substr(2);
    for (wchar_t& c : rest) {
        if (c == L'\\')
            c = L'/';
    }
    if (rest.empty() || rest == L"/")
        return systemDriveRoot();
    if (rest[0] != L'/')
        rest.insert(rest.begin(), L'/');
    return m_drive + rest;
}

std::optional<std::wstring> SandboxEnvironment::variable(const std::wstring& name) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = m_vars.find(lowerAscii(name));
    if (it == m_vars.end())
        return std::nullopt;
    return it->second;
}

std::wstring SandboxEnvironment::expand(const std::wstring& text) const
{
    std::wstring out;
    std::size_t pos = 0;
    while (pos < text.size()) {
        const std::size_t open = text.find(L'%', pos);
        if (open == std::wstring::npos) {
            out += text.substr(pos);
            break;
        }
        const std::size_t close = text.find(L'%', open + 1);
        if (close == std::wstring::npos) {
            out += text.substr(pos);
            break;
        }
        out += text.substr(pos, open - pos);
        const auto value = variable(text.substr(open + 1, close - open - 1));
        // An unknown name stays as written, both percent signs included, and the scan goes on
        // after it: "100% %TEMP%" keeps "% %" and leaves "TEMP%" alone, as Windows does.
        out += value ? *value : text.substr(open, close - open + 1);
        pos = close + 1;
    }
    return out;
}

void SandboxEnvironment::setVariable(const std::wstring& name, const std::optional<std::wstring>& value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (value)
        m_vars[lowerAscii(name)] = *value;
    else
        m_vars.erase(lowerAscii(name));
}

std::wstring SandboxEnvironment::temp() const
{
    std::wstring folder;
    for (const wchar_t* name : { L"TMP", L"TEMP", L"USERPROFILE" }) {
        // An empty value counts as unset, as it does for Windows.
        if (const auto value = variable(name); value && !value->empty()) {
            folder = *value;
            break;
        }
    }
    if (folder.empty())
        folder = m_drive + L"/Windows";
    folder = mapPath(folder);
    for (wchar_t& c : folder) {
        if (c == L'\\')
            c = L'/';
    }
    while (folder.size() > 1 && folder.back() == L'/' && folder != systemDriveRoot())
        folder.pop_back();
    return folder;
}

} // namespace platform
