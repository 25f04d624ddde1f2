#include "appxmanifest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Real manifests are tens of kilobytes; the values read sit near the top of even the largest.
constexpr qint64 MaxManifestBytes = 4 * 1024 * 1024;

// The order in which Windows itself falls back to a scale it was not asked for.
const char* const ScaleQualifiers[] = { "scale-100", "scale-150", "scale-200", "scale-125", "scale-400" };
const char* const LogoAttributes[] = { "Square44x44Logo", "Square30x30Logo", "Square150x150Logo" };

// The value as a path under the folder, or empty when it names something outside it: manifests
// are data, and "..\..\" must not send the page reading images elsewhere.
QString pathInside(const QString& folder, QString relative)
{
    relative.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (relative.isEmpty() || QDir::isAbsolutePath(relative) || relative.startsWith(QLatin1Char('/'))
        || (relative.size() > 1 && relative.at(1) == QLatin1Char(':')))
        return QString();
    const QString base = QDir::cleanPath(folder);
    const QString joined = QDir::cleanPath(base + QLatin1Char('/') + relative);
    return joined.startsWith(base + QLatin1Char('/')) ? joined : QString();
}

QString scaled(const QString& path, const char* qualifier)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    const int at = dot > slash ? dot : path.size();
    return path.left(at) + QLatin1Char('.') + QLatin1String(qualifier) + path.mid(at);
}

} // namespace

AppxManifest::AppxManifest(QByteArray text)
    : m_text(std::move(text))
{
}

AppxManifest AppxManifest::load(const QString& installFolder)
{
    if (installFolder.isEmpty())
        return AppxManifest();
    QString path = installFolder + QLatin1String("/AppxManifest.xml");
    if (!QFileInfo::exists(path))
        path = installFolder + QLatin1String("/AppxMetadata/AppxBundleManifest.xml");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return AppxManifest();
    return AppxManifest(file.read(MaxManifestBytes));
}

QString AppxManifest::element(const char* tag) const
{
    const QByteArray open = QByteArray("<") + tag + '>';
    const QByteArray close = QByteArray("</") + tag + '>';
    const qsizetype start = m_text.indexOf(open);
    if (start < 0)
        return QString();
    const qsizetype from = start + open.size();
    const qsizetype end = m_text.indexOf(close, from);
    if (end < 0)
        return QString();
    return QString::fromUtf8(m_text.mid(from, end - from)).trimmed();
}

QString AppxManifest::attribute(const char* name) const
{
    const QByteArray key = QByteArray(name) + "=\"";
    const qsizetype start = m_text.indexOf(key);
    if (start < 0)
        return QString();
    const qsizetype from = start + key.size();
    const qsizetype end = m_text.indexOf('"', from);
    if (end < 0)
        return QString();
    return QString::fromUtf8(m_text.mid(from, end - from));
}

QString AppxManifest::logoPath(const QString& installFolder) const
{
    if (installFolder.isEmpty())
        return QString();
    for (const char* name : LogoAttributes) {
        const QString plain = pathInside(installFolder, attribute(name));
        if (plain.isEmpty())
            continue;
        if (QFileInfo(plain).isFile())
            return plain;
        for (const char* qualifier : ScaleQualifiers) {
            const QString candidate = scaled(plain, qualifier);
            if (QFileInfo(candidate).isFile())
                return candidate;
        }
    }
    return QString();
}
