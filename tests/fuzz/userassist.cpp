// One value of a UserAssist Count key. Input: the value type in the first byte, the encoded name
// up to the first line break, the data after it.

#include "fuzztarget.h"

#include "platform/uninstallentries.h"
#include "uninstall/uninstallmanager.h"

NORVALE_FUZZ_TARGET(userassist)
{
    if (size < 1)
        return 0;
    const QList<QByteArray> input = fuzz::fields(data + 1, size - 1, "\n", 2);
    platform::EnumeratedValue value;
    value.status = platform::Status::Ok;
    value.value.type = data[0] % 12;
    value.value.name = fuzz::wide(input[0]);
    value.value.data.assign(input[1].begin(), input[1].end());

    const std::optional<platform::UserAssistValue> decoded = platform::decodeUserAssistValue(value);
    FUZZ_CHECK(decoded.has_value()
        == (value.value.type == platform::TypeBinary && value.value.data.size() >= platform::UserAssistMinBytes));
    if (!decoded)
        return 0;
    const auto mark = UninstallManager::usageMark(*decoded);
    if (!mark)
        return 0;
    // The mark is looked up by an executable's lower-case file name.
    const auto& [exe, day] = *mark;
    FUZZ_CHECK(exe.endsWith(QLatin1String(".exe")) && exe == exe.toLower() && !exe.contains(QLatin1Char('\\')));
    FUZZ_CHECK(day.isValid() && day.year() >= 1970);
    return 0;
}
