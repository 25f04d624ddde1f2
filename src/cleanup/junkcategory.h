#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// One kind of junk the cleanup page offers: where it lives and what the last scan found there.
struct JunkCategory {
    QString id; // fixed ASCII key, e.g. "win_temp"
    QString name; // display name, translated when the table is built
    QString icon; // one emoji
    QStringList paths; // folders whose contents belong to the category, absolute
    qint64 size = 0; // bytes found by the last scan
    bool selected = false; // whether the row starts ticked
};
