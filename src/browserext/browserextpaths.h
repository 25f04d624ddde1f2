#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

// What the scanner, the remover and the page agree on: browser names, the limits on the files
// they read, and which IDs may ever be joined to a folder.
namespace browserext {

inline const QString Chrome = QStringLiteral("Google Chrome");
inline const QString Edge = QStringLiteral("Microsoft Edge");
inline const QString Firefox = QStringLiteral("Mozilla Firefox");

// Chromium's install locations whose extensions the user did not install from a store: loaded
// unpacked from a developer's own folder, and components that ship with the browser.
constexpr int LocationUnpacked = 4;
constexpr int LocationExternalComponent = 10;

// Real profile files stay far below this (a large Preferences is a few MB); anything bigger is
// not read at all rather than held in memory twice while parsing.
constexpr qint64 MaxJsonBytes = 64 * 1024 * 1024;

// The whole file, or nothing when it cannot be opened or is larger than MaxJsonBytes.
std::optional<QByteArray> readSmallFile(const QString& path);
// The top-level object; a byte-order mark is allowed, anything malformed gives an empty object.
QJsonObject parseObject(QByteArray bytes);
// An ID may name one folder and nothing else: not empty, not "." or "..", no separators, drive,
// wildcards or characters Windows would drop.
bool isSafeId(const QString& id);
// LOCALAPPDATA as given, or the generic data folder when it is empty.
QString localDataFolder(const QString& localAppData);
// "chrome.exe", "msedge.exe", "firefox.exe", or empty for any other browser name.
QString executableFor(const QString& browser);

} // namespace browserext
