#include "sandboxlauncher.h"

#include "../registry.h"
#include "../strings.h"
#include "regfile.h"
#include "sandboxenvironment.h"
#include "sandboxfilesystem.h"
#include "sandboxpath.h"

#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

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

// Descriptions are a few lines; anything larger is not one.
constexpr std::size_t MaxDescriptionBytes = 64 * 1024;

// A place strictly inside the sandbox's drive, reached one folder at a time without following a
// link: the folder that holds it, opened, and its own name there.
struct Place {
    UniqueFd folder;
    std::string name;
    std::string path; // the cleaned-up path, for walks that take one
};

std::optional<Place> placeOnDrive(const std::string& root, const std::string& path)
{
    const auto components = componentsBelow(root, path);
    if (!components || components->size() < 2 || components->front() != "C")
        return std::nullopt;
    Place place { openParentFolder(root, *components), components->back(), root };
    if (!place.folder.isValid())
        return std::nullopt;
    for (const std::string& part : *components)
        place.path += "/" + part;
    return place;
}

std::optional<std::string> readDescription(const std::string& root, const std::string& path)
{
    const auto place = placeOnDrive(root, path);
    if (!place)
        return std::nullopt;
    return readFileAt(place->folder.get(), place->name, MaxDescriptionBytes);
}

bool isProgramFile(const Place& place)
{
    struct stat st;
    return ::fstatat(place.folder.get(), place.name.c_str(), &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode);
}

// Removes what the place names as itself: a file or link goes, a folder goes with all it holds.
void removePlace(const std::string& root, const Place& place)
{
    struct stat st;
    if (::fstatat(place.folder.get(), place.name.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0)
        return;
    if (S_ISDIR(st.st_mode)) {
        SandboxFileSystem(fromUtf8(root)).emptyFolder(fromUtf8(place.path));
        ::unlinkat(place.folder.get(), place.name.c_str(), AT_REMOVEDIR);
    } else {
        ::unlinkat(place.folder.get(), place.name.c_str(), 0);
    }
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
    const std::string root = toUtf8(m_root);
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
        const auto script = readDescription(root, toUtf8(env.mapPath(L"C:/Windows/Installer/" + code + demoSuffix())));
        if (!script) {
            result.exitCode = ErrorUnknownProduct;
            return result;
        }
        return play(*script);
    }

    const auto target = request.file.empty() ? std::nullopt : placeOnDrive(root, toUtf8(env.mapPath(request.file)));
    if (!target || !isProgramFile(*target)) {
        result.error = ErrorFileNotFound;
        result.message = L"The sandbox has no program at " + request.file;
        return result;
    }
    const auto script = readFileAt(target->folder.get(), target->name + toUtf8(demoSuffix()), MaxDescriptionBytes);
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
    const std::string root = toUtf8(m_root);
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
            // Only inside the sandbox's drive, never the drive itself, never through a link.
            if (const auto victim = placeOnDrive(root, toUtf8(env.mapPath(fromUtf8(value)))))
                removePlace(root, *victim);
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
