// A Firefox profile's "extensions.json", listed by the scanner and edited by the remover. Input:
// the add-on ID to remove on the first line, the file after it.

#include "fuzztarget.h"

#include "browserext/browserextremover.h"
#include "browserext/browserextscanner.h"
#include "browserext/jsontext.h"

namespace {

const QString Profile = QStringLiteral("/nonexistent/Profiles/abcd1234.default-release");

} // namespace

NORVALE_FUZZ_TARGET(firefox_extensions)
{
    const QList<QByteArray> input = fuzz::fields(data, size, "\n", 2);
    const QString id = QString::fromUtf8(input[0]);
    const QByteArray& text = input[1];
    // Every add-on the page lists, the remover finds in a file it may edit.
    const bool editable = JsonText(text).isObjectDocument();
    for (const BrowserExt& ext : BrowserExtScanner::firefoxExtensions(text, Profile)) {
        FUZZ_CHECK(!ext.id.isEmpty() && !ext.name.isEmpty());
        FUZZ_CHECK(!editable || BrowserExtRemover::withoutFirefoxAddon(text, ext.id));
    }

    const std::optional<QByteArray> edited = BrowserExtRemover::withoutFirefoxAddon(text, id);
    if (!edited)
        return 0;
    FUZZ_CHECK(JsonText(*edited).isObjectDocument());
    // What the remover took out, the scanner no longer lists: the two read the same entries.
    FUZZ_CHECK(!BrowserExtRemover::withoutFirefoxAddon(*edited, id));
    for (const BrowserExt& ext : BrowserExtScanner::firefoxExtensions(*edited, Profile))
        FUZZ_CHECK(ext.id != id);
    return 0;
}
