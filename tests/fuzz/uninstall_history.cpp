// The uninstall history file, read and written back.

#include "fuzztarget.h"

#include "uninstall/uninstallmanager.h"

NORVALE_FUZZ_TARGET(uninstall_history)
{
    const std::optional<QList<UninstalledApp>> history = UninstallManager::parseHistory(fuzz::bytes(data, size));
    if (!history)
        return 0;
    // Saving what was read and reading it again must not drift from one save to the next.
    const QByteArray saved = UninstallManager::historyText(*history);
    const std::optional<QList<UninstalledApp>> again = UninstallManager::parseHistory(saved);
    FUZZ_CHECK(again && again->size() == history->size());
    FUZZ_CHECK(UninstallManager::historyText(*again) == saved);
    return 0;
}
