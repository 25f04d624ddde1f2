#include "sandboxlauncher.h"

#include "../registry.h"
#include "../strings.h"
#include "regfile.h"
#include "sandboxenvironment.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace fs = std::filesystem;

namespace platform {

namespace {

constexpr std::uint32_t ErrorFileNotFound = 2;
constexpr std::uint32_t ErrorAccessDisabledByPolicy = 1260;
constexpr std::uint32_t ErrorUnknownProduct = 1605;
constexpr std::uint32_t ErrorInvalidCommandLine = 1639;

std::wstring baseName(const std::wstring& path)
{
    const std::size_t cut = path.find_last_of(L"\\/");
    return cut == std::wstring::npos ? path : path.substr(cut + 1);
}

std::string trim(const std::string& s)
{
    const std::size_t b = s.find_first_not_of(" \t\r\n");
    if (b == std::string::npos)
        return std::string();
    return s.substr(b, s.find_last_not_of(" \t\r\n") - b + 1);
}

std::vector<fs::path> parts(const fs::path& path)
{
    std::vector<fs::path> out;
    for (const fs::path& part : path.lexically_normal()) {
        if (!part.empty())
            out.push_back(part);
    }
    return out;
}

// True when the path lies strictly inside the folder, judged on the text and on every folder
// between them: a link on the way could lead anywhere, so it disqualifies the path.
bool strictlyInside(const fs::path& folder, const fs::path& path)
{
    const std::vector<fs::path> base = parts(folder);
    const std::vector<fs::path> target = parts(path);
    if (target.size() <= base.size() || !std::equal(base.begin(), base.end(), target.begin()))
        return false;
    fs::path walk = folder;
    for (std::size_t i = base.size(); i < target.size(); ++i) {
        if (target[i] == "." || target[i] == "..")
            return false;
        if (i + 1 == target.size())
            break; // the target itself may be a link: it is removed, not entered
        walk /= target[i];
        std::error_code ec;
        if (fs::is_symlink(fs::symlink_status(walk, ec)))
            return false;
    }
    return true;
}

std::optional<std::string> readText(const fs::path& file)
{
    std::error_code ec;
    if (!fs::is_regular_file(file, ec))
        return std::nullopt;
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace

SandboxLauncher::SandboxLauncher(std::wstring root, Registry* registry)
    : m_root(std::move(root))
    , m_registry(registry)
{
}

ShellExecuteResult SandboxLauncher::shellExecuteAndWait(const ShellExecuteRequest& request, std::uint32_t timeoutMs)
{
    (void)timeoutMs; // nothing really runs, so nothing is waited for
    const SandboxEnvironment env(m_root);
    const fs::path drive(toUtf8(env.systemDriveRoot()));
    ShellExecuteResult result;

    const std::wstring name = lowerAscii(baseName(request.file));
    if (name == L"msiexec.exe" || name == L"msiexec") {
        // Windows Installer itself is always there; what it does depends on the product code.
        result.started = true;
        result.waitResult = WaitObject0;
        if (request.started)
            request.started();
        const std::size_t open = request.parameters.find(L'{');
        const std::size_t close = open == std::wstring::npos ? open : request.parameters.find(L'}', open);
        if (close == std::wstring::npos) {
            result.exitCode = ErrorInvalidCommandLine;
            return result;
        }
        const std::wstring code = request.parameters.substr(open, close - open + 1);
        // A product code names a file below; nothing but a GUID may shape that name.
        const bool guidLike = code.find_first_not_of(L"{}-0123456789ABCDEFabcdef") == std::wstring::npos;
        if (!guidLike) {
            result.exitCode = ErrorUnknownProduct;
            return result;
        }
        const auto script = readText(fs::path(toUtf8(env.mapPath(L"C:/Windows/Installer/" + code + demoSuffix()))));
        if (!script) {
            result.exitCode = ErrorUnknownProduct;
            return result;
        }
        return play(*script);
    }

    const fs::path target(toUtf8(env.mapPath(request.file)));
    std::error_code ec;
    if (request.file.empty() || !strictlyInside(drive, target) || !fs::is_regular_file(target, ec)) {
        result.error = ErrorFileNotFound;
        result.message = L"The sandbox has no program at " + request.file;
        return result;
    }
    const auto script = readText(fs::path(target.native() + toUtf8(demoSuffix())));
    if (!script) {
        result.error = ErrorAccessDisabledByPolicy;
        result.message = L"The sandbox runs only demo uninstallers; " + request.file + demoSuffix() + L" is missing";
        return result;
    }
    if (request.started)
        request.started();
    return play(*script);
}

ShellExecuteResult SandboxLauncher::play(const std::string& script) const
{
    const SandboxEnvironment env(m_root);
    const fs::path drive(toUtf8(env.systemDriveRoot()));
    ShellExecuteResult result;
    result.started = true;
    result.waitResult = WaitObject0;
    result.exitCode = 0;
    bool running = false;

    std::istringstream lines(script);
    std::string line;
    while (std::getline(lines, line)) {
        line = trim(line);
        const std::size_t eq = line.find('=');
        if (line.empty() || line[0] == '#' || eq == std::string::npos)
            continue;
        const std::string key = trim(line.substr(0, eq));
        const std::string value = trim(line.substr(eq + 1));
        if (key == "exit") {
            try {
                result.exitCode = static_cast<std::uint32_t>(std::stoll(value));
            } catch (...) {
                // an unreadable code leaves the default
            }
        } else if (key == "running") {
            running = value == "1";
        } else if (key == "delete") {
            const fs::path victim(toUtf8(env.mapPath(fromUtf8(value))));
            // Only inside the sandbox's drive, never the drive itself, never through a link;
            // remove_all removes a link without entering it.
            if (strictlyInside(drive, victim)) {
                std::error_code ec;
                fs::remove_all(victim, ec);
            }
        } else if (key == "unregister" && m_registry) {
            Hive hive;
            std::wstring path;
            if (RegFile::parseHivePath(fromUtf8(value), hive, path) && !path.empty())
                m_registry->deleteTree(hive, path);
        }
    }
    if (running) {
        result.waitResult = WaitTimeout;
        result.exitCode = StillActive;
    }
    return result;
}

} // namespace platform
