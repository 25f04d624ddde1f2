// An uninstall command on its way to the shell. Input: the command, the publisher and the
// program's name on three lines.

#include "fuzztarget.h"

#include "platform/strings.h"
#include "platform/uninstallcommandline.h"

NORVALE_FUZZ_TARGET(uninstall_command)
{
    const QList<QByteArray> input = fuzz::fields(data, size, "\n", 3);
    const platform::PreparedUninstall prepared
        = platform::prepareUninstall(fuzz::wide(input[0]), fuzz::wide(input[1]), fuzz::wide(input[2]));
    if (!prepared.command)
        return 0;
    // Whatever the text, only a plain local .exe is ever handed to the shell.
    const std::wstring& program = prepared.command->program;
    FUZZ_CHECK(prepared.refusal.empty());
    FUZZ_CHECK(program.size() >= 4 && platform::lowerAscii(program.substr(program.size() - 4)) == L".exe");
    FUZZ_CHECK(program.find(L'"') == std::wstring::npos && !platform::isNetworkPath(program));
    for (const std::wstring& argument : prepared.command->arguments)
        FUZZ_CHECK(!argument.empty() && argument.find(L' ') == std::wstring::npos);
    return 0;
}
