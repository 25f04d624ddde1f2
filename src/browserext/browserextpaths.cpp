#include "browserextpaths.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

namespace browserext {

std::optional<QByteArray> readSmallFile(const QString& path)
{
    // Only a regular file: opening a pipe or a device would block or never end.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > MaxJsonBytes)
        return std::nullopt;
    QByteArray bytes = file.read(MaxJsonBytes + 1);
    if (bytes.size() > MaxJsonBytes) // a file that grew, or a device without a size
        return std::nullopt;
    return bytes;
}

QJsonObject parseObject(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    return error.error == QJsonParseError::NoError && document.isObject() ? document.object() : QJsonObject();
}

bool isSafeId(const QString& id)
{
    // Windows drops a trailing dot or space from a name, so "x." would reach the folder "x".
    if (id.isEmpty() || id == QLatin1String(".") || id == QLatin1String("..") || id.endsWith(QLatin1Char('.'))
        || id.endsWith(QLatin1Char(' ')))
        return false;
    for (const QChar c : id) {
        // Separators, a drive or stream, and wildcards that a directory search would expand.
        if (c.unicode() < 0x20 || QStringView(u"/\\:*?\"<>|").contains(c))
            return false;
    }
    return true;
}

QString localDataFolder(const QString& localAppData)
{
    return localAppData.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                                  : localAppData;
}

QString executableFor(const QString& browser)
{
    if (browser == Chrome)
        return QStringLiteral("chrome.exe");
    if (browser == Edge)
        return QStringLiteral("msedge.exe");
    if (browser == Firefox)
        return QStringLiteral("firefox.exe");
    return QString();
}

} // namespace browserext
