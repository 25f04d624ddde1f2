#pragma once

#include "registry.h"

#include <string>
#include <vector>

namespace platform {

class Environment;

// The rules that tie what a machine holds (processes, folders, registry values, shortcuts,
// scheduled tasks, services) to one program, and the places that are never anyone's program.
// Plain text rules without Qt, so that both test lanes run them against real finds.
namespace traces {

// Case folding for comparing names and paths: ASCII, Latin-1, Latin Extended-A, Greek and
// Cyrillic capitals, independent of the process locale.
std::wstring foldCase(std::wstring text);
// An empty part never matches: a program without a name must not claim everything.
bool containsNoCase(const std::wstring& text, const std::wstring& part);
// Prefix test that takes "/" and "\" as the same separator.
bool startsWithPathNoCase(const std::wstring& path, const std::wstring& prefix);

// Separators made "/", repeated ones merged (a leading "//" of a share kept), "." and ".."
// resolved, a "\\?\" prefix and trailing separators dropped, case folded. A drive root is "c:".
std::wstring normalizePath(const std::wstring& path);

// Whether a program's install location must be treated as if it were empty: anything that is
// not an absolute folder, a drive or share root, the Windows folder or anything inside it, and
// any folder that is or holds Program Files, ProgramData, the Users folder, a user's profile,
// AppData, Roaming, Local, Desktop, Documents, Downloads or temp. `location` and the
// environment's folders are compared in the same (mapped) form.
bool isProtectedLocation(const std::wstring& location, const Environment& env);

// Folder names under which a program may keep its data: its name, the publisher's first word,
// its name without spaces; duplicates dropped, and names that are not one plain folder name
// ("", ".", "..", or holding "/", "\" or ":") left out.
std::vector<std::wstring> appDataCandidates(const std::wstring& name, const std::wstring& publisher);
bool isPlainFolderName(const std::wstring& name);

// The text before the first single space (all of it when there is none).
std::wstring firstWord(const std::wstring& text);

// A start-up value's data names the install location or, failing that, the program's name.
bool startupValueMatches(const std::wstring& data, const std::wstring& installLocation, const std::wstring& name);
// A start-up shortcut's base name holds the program's name or the publisher's first word.
bool shortcutMatches(const std::wstring& baseName, const std::wstring& name, const std::wstring& publisher);
// A line of `schtasks /query /fo CSV /nh` names the program or its install location in any column.
bool taskLineMatches(const std::wstring& line, const std::wstring& name, const std::wstring& installLocation);
// The task name from such a line: its first field, quotes removed, trimmed. A quoted field keeps
// its commas, so "\Vendor, Inc\Task" is never cut down to another task's name.
std::wstring taskName(const std::wstring& line);
// A service belongs to the program when its binary lies in the install location.
bool serviceMatches(const std::wstring& binaryPath, const std::wstring& installLocation);

// "HKLM\path\leaf" or "HKCU\path\leaf": the hive from the tag (anything but "HKLM" is the current
// user), the key path and the last component (a subkey or a value name). `valid` is false when
// there is no path or no leaf to act on.
struct RegistryLocation {
    bool valid = false;
    Hive hive = Hive::CurrentUser;
    std::wstring parent;
    std::wstring leaf;
};
RegistryLocation parseRegistryLocation(const std::wstring& text);

} // namespace traces
} // namespace platform
