// The output of "schtasks /query /fo CSV /nh" as the force-remove scan reads it.

#include "fuzztarget.h"

#include "platform/tracerules.h"

NORVALE_FUZZ_TARGET(schtasks_csv)
{
    const QStringList lines
        = QString::fromLocal8Bit(fuzz::bytes(data, size)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& text : lines) {
        const std::wstring line = text.toStdWString();
        platform::traces::taskLineMatches(line, L"Contoso Updater", L"C:\\Program Files\\Contoso");
        // The name is handed to "schtasks /delete /tn" as one argument.
        const std::wstring task = platform::traces::taskName(line);
        FUZZ_CHECK(task.find(L'"') == std::wstring::npos);
        FUZZ_CHECK(text.contains(QLatin1Char('"')) || task.find(L',') == std::wstring::npos);
    }
    return 0;
}
