// Lines of "winget install" output as the package queue reads them.

#include "fuzztarget.h"

#include "uninstall/wingetmanager.h"

NORVALE_FUZZ_TARGET(winget_output)
{
    static WinGetManager* const manager = [] {
        auto* m = new WinGetManager;
        QObject::connect(
            m, &WinGetManager::packageProgress, [](const QString&, int percent) { FUZZ_CHECK(percent >= 0); });
        return m;
    }();
    for (const QByteArray& line : fuzz::bytes(data, size).split('\n'))
        manager->handleOutputLine(line);
    return 0;
}
