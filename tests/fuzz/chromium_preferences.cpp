// A "Preferences" or "Secure Preferences" file patched to disable one extension. Input: the
// extension ID on the first line, the file after it.

#include "fuzztarget.h"

#include "browserext/browserextpaths.h"
#include "browserext/browserextremover.h"
#include "browserext/jsontext.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

// Every member and element the text editor finds holds the value a browser's parser reads there,
// at every level the patch may reach.
void checkAgainstParser(const JsonText& json, JsonText::Span object, const QJsonObject& parsed, int depth = 0)
{
    for (auto it = parsed.begin(); it != parsed.end(); ++it) {
        const JsonText::Span span = json.member(object, it.key());
        const QJsonObject wrapped = browserext::parseObject("{\"v\":" + json.bytes(span) + "}");
        FUZZ_CHECK(wrapped.contains(QLatin1String("v")) && wrapped.value(QLatin1String("v")) == it.value());
        if (it.value().isArray())
            FUZZ_CHECK(json.elements(span).size() == it.value().toArray().size());
        else if (it.value().isObject() && depth < 4)
            checkAgainstParser(json, span, it.value().toObject(), depth + 1);
    }
}

} // namespace

NORVALE_FUZZ_TARGET(chromium_preferences)
{
    const QList<QByteArray> input = fuzz::fields(data, size, "\n", 2);
    const QString id = QString::fromUtf8(input[0]);
    const QByteArray& text = input[1];
    if (const JsonText json(text); json.isObjectDocument())
        checkAgainstParser(json, json.root(), browserext::parseObject(text));
    const std::optional<QByteArray> patched = BrowserExtRemover::patchedPreferences(text, id);
    if (!patched || *patched == text)
        return 0;
    // The writer refuses a text that is not a whole object: that would be a patch never applied.
    const JsonText json(*patched);
    FUZZ_CHECK(json.isObjectDocument());
    const JsonText::Span entry = json.member(
        json.member(json.member(json.root(), QStringLiteral("extensions")), QStringLiteral("settings")), id);
    FUZZ_CHECK(json.isObject(entry));
    FUZZ_CHECK(json.bytes(json.member(entry, QStringLiteral("state"))) == "0");
    FUZZ_CHECK(json.bytes(json.member(entry, QStringLiteral("disable_reasons"))) == "1");
    // A browser reads the file with its own parser: it must see the same entry turned off and
    // the extension unpinned.
    const QJsonObject extensions = browserext::parseObject(*patched).value(QLatin1String("extensions")).toObject();
    const QJsonObject seen = extensions.value(QLatin1String("settings")).toObject().value(id).toObject();
    FUZZ_CHECK(seen.value(QLatin1String("state")) == 0 && seen.value(QLatin1String("disable_reasons")) == 1);
    FUZZ_CHECK(!extensions.value(QLatin1String("pinned_extensions")).toArray().contains(id));
    // Patching twice changes nothing more, so a retried removal leaves the file alone.
    FUZZ_CHECK(BrowserExtRemover::patchedPreferences(*patched, id) == patched);
    return 0;
}
