// The links file: its metadata and every address looked up in every language it declares.

#include "fuzztarget.h"

#include "links/linkmanager.h"

NORVALE_FUZZ_TARGET(links_json)
{
    const std::optional<LinkManager::Catalogue> links = LinkManager::parseLinks(fuzz::bytes(data, size));
    if (!links)
        return 0;
    const QStringList languages = links->languages + QStringList { links->fallback, QStringLiteral("xx") };
    for (auto category = links->root.begin(); category != links->root.end(); ++category) {
        const QJsonObject keys = category.value().toObject();
        for (auto key = keys.begin(); key != keys.end(); ++key) {
            for (const QString& language : languages)
                LinkManager::linkIn(links->root, category.key(), key.key(), language, links->fallback);
        }
    }
    return 0;
}
