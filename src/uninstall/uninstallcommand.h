#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// A program's uninstall command taken apart into the program and its arguments, the way the
// shell will be asked to start it.
class UninstallCommand final {
public:
    QString program;
    QStringList arguments;

    // nullopt when the text names no program (empty or only spaces).
    static std::optional<UninstallCommand> parse(const QString& uninstallString);

    bool isWindowsInstaller() const;
    // Makes a Windows Installer uninstall run without its wizard, unless the command already
    // chooses a user interface or the vendor's package is known to need its own.
    void addSilentSwitches(const QString& publisher, const QString& name);
    QString parameters() const { return arguments.join(QLatin1Char(' ')); }
};
