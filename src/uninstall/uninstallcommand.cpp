#include "uninstallcommand.h"

namespace {

QStringList splitArguments(const QString& text)
{
    // Quoted arguments with spaces come apart here; uninstallers have always been started this
    // way, and re-quoting would change what they receive.
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

std::optional<UninstallCommand> UninstallCommand::parse(const QString& uninstallString)
{
    const QString text = uninstallString.trimmed();
    if (text.isEmpty())
        return std::nullopt;

    UninstallCommand cmd;
    const int closingQuote = text.startsWith(QLatin1Char('"')) ? text.indexOf(QLatin1Char('"'), 1) : -1;
    if (closingQuote > 0) {
        cmd.program = text.mid(1, closingQuote - 1);
        cmd.arguments = splitArguments(text.mid(closingQuote + 1).trimmed());
    } else if (text.contains(QLatin1String("msiexec"), Qt::CaseInsensitive)) {
        cmd.program = QStringLiteral("msiexec.exe");
        cmd.arguments = splitArguments(text);
        cmd.arguments.removeFirst();
    } else if (const int exe = text.indexOf(QLatin1String(".exe"), 0, Qt::CaseInsensitive); exe >= 1) {
        cmd.program = text.left(exe + 4);
        cmd.arguments = splitArguments(text.mid(exe + 4).trimmed());
    } else if (const int space = text.indexOf(QLatin1Char(' ')); space >= 1) {
        cmd.program = text.left(space);
        cmd.arguments = splitArguments(text.mid(space + 1));
    } else {
        cmd.program = text;
    }
    if (cmd.program.isEmpty())
        return std::nullopt;
    return cmd;
}

bool UninstallCommand::isWindowsInstaller() const
{
    return program.contains(QLatin1String("msiexec"), Qt::CaseInsensitive);
}

void UninstallCommand::addSilentSwitches(const QString& publisher, const QString& name)
{
    if (!isWindowsInstaller())
        return;
    static const QStringList uiSwitches
        = { QStringLiteral("/quiet"), QStringLiteral("/qn"), QStringLiteral("/passive") };
    for (const QString& arg : qAsConst(arguments)) {
        if (uiSwitches.contains(arg, Qt::CaseInsensitive))
            return;
    }
    // These vendors' packages misbehave when uninstalled without their own interface.
    static const QStringList ownInterface = { QStringLiteral("adobe"), QStringLiteral("autodesk"),
        QStringLiteral("microsoft office"), QStringLiteral("vmware"), QStringLiteral("oracle") };
    const QString lowerPublisher = publisher.toLower();
    const QString lowerName = name.toLower();
    for (const QString& vendor : ownInterface) {
        if (lowerPublisher.contains(vendor) || lowerName.contains(vendor))
            return;
    }
    arguments << QStringLiteral("/quiet") << QStringLiteral("/norestart");
}
