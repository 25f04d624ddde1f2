#pragma once

#include "browserext.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <optional>

namespace platform {
class Processes;
}

// Removes one extension straight from the browser's profile files: its folders go, and the
// browser's preference or add-on database is patched so that it no longer loads it. Stateless;
// remove() runs on a pool thread while the browser is closed, the process helpers anywhere.
class BrowserExtRemover final {
public:
    struct Result {
        bool success = false;
        QString error; // empty on success; otherwise messages joined with "\n"
    };

    static Result remove(const BrowserExt& ext);

    static bool isBrowserRunning(const QString& browser);
    static int killBrowserProcesses(const QString& browser);
    static bool isBrowserRunning(const QString& browser, platform::Processes& processes);
    // `settleMs`: how long to wait after killing, so the browser's files are released.
    static int killBrowserProcesses(const QString& browser, platform::Processes& processes, int settleMs);

    // Marks the extension disabled in one "Preferences" or "Secure Preferences" file and unpins it.
    // False when the file cannot be read, parsed or written; a file that does not name the
    // extension is left untouched and counts as patched.
    static bool patchPreferences(const QString& path, const QString& id);
    // The text patchPreferences writes: nullopt when `text` may not be edited (not a JSON object),
    // `text` itself when it does not name the extension.
    static std::optional<QByteArray> patchedPreferences(const QByteArray& text, const QString& id);
    // An "extensions.json" without the add-on's entries; nullopt when it holds none.
    static std::optional<QByteArray> withoutFirefoxAddon(const QByteArray& text, const QString& id);

private:
    static Result removeChromium(const BrowserExt& ext);
    static Result removeFirefox(const BrowserExt& ext);
};

Q_DECLARE_METATYPE(BrowserExtRemover::Result)
