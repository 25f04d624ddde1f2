// An InstallDate value as the inventory shows and classifies it.

#include "fuzztarget.h"

#include "uninstall/uninstallmanager.h"

NORVALE_FUZZ_TARGET(install_date)
{
    const QString shown = UninstallManager::normaliseInstallDate(QString::fromUtf8(fuzz::bytes(data, size)));
    FUZZ_CHECK(shown == shown.trimmed());
    FUZZ_CHECK(UninstallManager::normaliseInstallDate(shown) == shown);
    // A date the status rules read is one the list shows in the same form.
    const QDate date = QDate::fromString(shown, QStringLiteral("yyyy-MM-dd"));
    FUZZ_CHECK(!date.isValid() || date.toString(QStringLiteral("yyyy-MM-dd")) == shown);
    return 0;
}
