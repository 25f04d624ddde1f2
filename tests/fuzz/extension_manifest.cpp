// An extension's manifest.json, the messages.json that names it, and its version folder names.
// Input: the three separated by lines of "----".

#include "fuzztarget.h"

#include "browserext/browserextpaths.h"
#include "browserext/browserextscanner.h"

#include <QJsonObject>

NORVALE_FUZZ_TARGET(extension_manifest)
{
    const QList<QByteArray> input = fuzz::fields(data, size, "\n----\n", 3);
    const QJsonObject manifest = browserext::parseObject(input[0]);
    // The locale becomes one folder name below "_locales".
    const QString locale = BrowserExtScanner::manifestLocale(manifest);
    FUZZ_CHECK(!locale.isEmpty() && locale.size() <= 32);
    FUZZ_CHECK(!locale.contains(QLatin1Char('/')) && !locale.contains(QLatin1Char('\\'))
        && !locale.contains(QLatin1Char('.')));
    QString name = manifest.value(QLatin1String("name")).toString();
    if (name.startsWith(QLatin1String("__MSG_")))
        name = name.mid(6);
    BrowserExtScanner::messageIn(input[1], name);

    // Folder names of any shape (numbers beyond 64 bits, empty parts) are only ever ordered.
    QStringList versions = QString::fromUtf8(input[2]).split(QLatin1Char('\n'));
    BrowserExtScanner::sortVersionFolders(versions);
    return 0;
}
