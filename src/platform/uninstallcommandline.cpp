#include "uninstallcommandline.h"

#include "strings.h"

#include <algorithm>

namespace platform {

namespace {

// The blanks a registry value may be padded with, Unicode spaces included.
bool isBlank(wchar_t c)
{
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680
        || (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

std::wstring trimmed(const std::wstring& text)
{
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), text.rend(), isBlank).base();
    return first < last ? std::wstring(first, last) : std::wstring();
}

std::vector<std::wstring> splitArguments(const std::wstring& text)
{
    // Quoted arguments with spaces come apart here; uninstallers have always been started this
    // way, and re-quoting would change what they receive.
    std::vector<std::wstring> parts;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t space = text.find(L' ', start);
        if (space == std::wstring::npos)
            space = text.size();
        if (space > start)
            parts.push_back(text.substr(start, space - start));
        start = space + 1;
    }
    return parts;
}

bool containsNoCase(const std::wstring& text, const std::wstring& lowerNeedle)
{
    return lowerAscii(text).find(lowerNeedle) != std::wstring::npos;
}

bool endsWithNoCase(const std::wstring& text, const std::wstring& lowerSuffix)
{
    return text.size() >= lowerSuffix.size()
        && lowerAscii(text.substr(text.size() - lowerSuffix.size())) == lowerSuffix;
}

bool isSeparator(wchar_t c)
{
    return c == L'\\' || c == L'/';
}

bool isProductCode(const std::wstring& text)
{
    return text.size() > 2 && text.front() == L'{' && text.back() == L'}';
}

// msiexec takes "/" or "-" before a switch, in any case.
bool isSwitch(const std::wstring& lowerArgument, const wchar_t* name)
{
    return lowerArgument.size() > 1 && (lowerArgument[0] == L'/' || lowerArgument[0] == L'-')
        && lowerArgument.compare(1, std::wstring::npos, name) == 0;
}

} // namespace

bool UninstallCommandLine::isWindowsInstaller() const
{
    return containsNoCase(program, L"msiexec");
}

std::wstring UninstallCommandLine::parameters() const
{
    std::wstring joined;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i > 0)
            joined += L' ';
        joined += arguments[i];
    }
    return joined;
}

std::optional<UninstallCommandLine> parseUninstallCommand(const std::wstring& uninstallString)
{
    const std::wstring text = trimmed(uninstallString);
    if (text.empty())
        return std::nullopt;

    UninstallCommandLine cmd;
    const std::size_t closingQuote = text.front() == L'"' ? text.find(L'"', 1) : std::wstring::npos;
    const std::size_t exe = lowerAscii(text).find(L".exe");
    const std::size_t space = text.find(L' ');
    if (closingQuote != std::wstring::npos) {
        cmd.program = text.substr(1, closingQuote - 1);
        cmd.arguments = splitArguments(trimmed(text.substr(closingQuote + 1)));
    } else if (containsNoCase(text, L"msiexec")) {
        // Whatever folder it is written with, Windows Installer is the system's own.
        cmd.program = L"msiexec.exe";
        cmd.arguments = splitArguments(text);
        cmd.arguments.erase(cmd.arguments.begin());
    } else if (exe != std::wstring::npos && exe >= 1) {
        cmd.program = text.substr(0, exe + 4);
        cmd.arguments = splitArguments(trimmed(text.substr(exe + 4)));
    } else if (space != std::wstring::npos && space >= 1) {
        cmd.program = text.substr(0, space);
        cmd.arguments = splitArguments(text.substr(space + 1));
    } else {
        cmd.program = text;
    }
    if (cmd.program.empty())
        return std::nullopt;
    return cmd;
}

bool makeInstallerRemove(UninstallCommandLine& command)
{
    if (!command.isWindowsInstaller())
        return false;
    bool rewritten = false;
    std::vector<std::wstring>& args = command.arguments;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::wstring lower = lowerAscii(args[i]);
        const bool prefixed = lower.size() > 1 && (lower[0] == L'/' || lower[0] == L'-');
        if (!prefixed)
            continue;
        if (isSwitch(lower, L"i") || isSwitch(lower, L"package")) {
            // The product code or package follows as the next argument.
            if (i + 1 < args.size()) {
                args[i] = L"/X";
                rewritten = true;
            }
        } else if (lower[1] == L'i' && isProductCode(args[i].substr(2))) {
            args[i] = L"/X" + args[i].substr(2);
            rewritten = true;
        }
    }
    return rewritten;
}

void addSilentSwitches(UninstallCommandLine& command, const std::wstring& publisher, const std::wstring& name)
{
    if (!command.isWindowsInstaller())
        return;
    for (const std::wstring& arg : command.arguments) {
        const std::wstring lower = lowerAscii(arg);
        if (lower == L"/quiet" || lower == L"/qn" || lower == L"/passive")
            return;
    }
    // These vendors' packages misbehave when uninstalled without their own interface.
    static const wchar_t* const ownInterface[] = { L"adobe", L"autodesk", L"microsoft office", L"vmware", L"oracle" };
    const std::wstring lowerPublisher = lowerAscii(publisher);
    const std::wstring lowerName = lowerAscii(name);
    for (const wchar_t* vendor : ownInterface) {
        if (lowerPublisher.find(vendor) != std::wstring::npos || lowerName.find(vendor) != std::wstring::npos)
            return;
    }
    command.arguments.push_back(L"/quiet");
    command.arguments.push_back(L"/norestart");
}

bool isNetworkPath(const std::wstring& path)
{
    std::wstring text = trimmed(path);
    text.erase(std::remove(text.begin(), text.end(), L'"'), text.end());
    text = trimmed(text);
    return text.size() >= 2 && isSeparator(text[0]) && isSeparator(text[1]);
}

std::wstring refusalReason(const std::wstring& program)
{
    if (isNetworkPath(program))
        return L"the program is on a network path: " + program;
    if (program.find(L'"') != std::wstring::npos)
        return L"not a program file name (a quote without its partner): " + program;
    // A colon anywhere but after a drive letter makes a URL, a protocol handler or a file's
    // alternate stream of it, none of which is a program file.
    const std::size_t colon = program.find(L':');
    const bool driveLetter
        = colon == 1 && ((program[0] >= L'A' && program[0] <= L'Z') || (program[0] >= L'a' && program[0] <= L'z'));
    if (colon != std::wstring::npos && (!driveLetter || program.find(L':', 2) != std::wstring::npos))
        return L"not a program file but a URL or protocol: " + program;
    if (!endsWithNoCase(program, L".exe"))
        return L"not a program (no .exe), the shell would pick a handler for it: " + program;
    return std::wstring();
}

PreparedUninstall prepareUninstall(
    const std::wstring& uninstallString, const std::wstring& publisher, const std::wstring& name)
{
    PreparedUninstall prepared;
    std::optional<UninstallCommandLine> command = parseUninstallCommand(uninstallString);
    if (!command)
        return prepared;
    makeInstallerRemove(*command);
    addSilentSwitches(*command, publisher, name);
    prepared.refusal = refusalReason(command->program);
    if (prepared.refusal.empty())
        prepared.command = std::move(command);
    return prepared;
}

} // namespace platform
