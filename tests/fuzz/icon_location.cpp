// A DisplayIcon value ("path,index") and the uninstaller path an icon may be taken from.

#include "fuzztarget.h"

#include "uninstall/programicon.h"

NORVALE_FUZZ_TARGET(icon_location)
{
    const QString text = QString::fromUtf8(fuzz::bytes(data, size));
    const ProgramIcon::Location location = ProgramIcon::parseLocation(text);
    FUZZ_CHECK(location.index >= 0);
    FUZZ_CHECK(!location.path.contains(QLatin1Char('"')));
    const QString uninstaller = ProgramIcon::uninstallerPath(text);
    FUZZ_CHECK(uninstaller.isEmpty() || uninstaller.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive));
    return 0;
}
