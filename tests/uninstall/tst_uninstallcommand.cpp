#include <uninstall/uninstallcommand.h>

#include <QTest>

class tst_UninstallCommand : public QObject {
    Q_OBJECT
private slots:
    void parse_data();
    void parse();
    void silentSwitches_data();
    void silentSwitches();
};

void tst_UninstallCommand::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("parses");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("quoted path alone") << R"("C:\Program Files\7-Zip\Uninstall.exe")" << true
                                       << R"(C:\Program Files\7-Zip\Uninstall.exe)" << QStringList();
    QTest::newRow("quoted path with a switch")
        << R"("C:\Program Files\Mozilla Firefox\uninstall\helper.exe" /S)" << true
        << R"(C:\Program Files\Mozilla Firefox\uninstall\helper.exe)" << QStringList { "/S" };
    QTest::newRow("quoted argument comes apart")
        << R"("C:\Program Files (x86)\Steam\uninstall.exe" /uninstall "My Game")" << true
        << R"(C:\Program Files (x86)\Steam\uninstall.exe)" << QStringList { "/uninstall", "\"My", "Game\"" };
    QTest::newRow("argument glued to the closing quote")
        << R"("C:\App\unins000.exe"/SILENT)" << true << R"(C:\App\unins000.exe)" << QStringList { "/SILENT" };
    QTest::newRow("msiexec product removal")
        << "MsiExec.exe /X{23170F69-40C1-2702-2301-000001000000}" << true << "msiexec.exe"
        << QStringList { "/X{23170F69-40C1-2702-2301-000001000000}" };
    QTest::newRow("msiexec /I is kept") << "MsiExec.exe /I{AC76BA86-7AD7-1033-7B44-AC0F074E4100}" << true
                                        << "msiexec.exe" << QStringList { "/I{AC76BA86-7AD7-1033-7B44-AC0F074E4100}" };
    QTest::newRow("msiexec with a full path and spaces")
        << R"(C:\Windows\System32\msiexec.exe  /x {1D8E6291-B0D5-35EC-8441-6616F567A0F7}  /qb)" << true << "msiexec.exe"
        << QStringList { "/x", "{1D8E6291-B0D5-35EC-8441-6616F567A0F7}", "/qb" };
    QTest::newRow("unquoted path with spaces") << R"(C:\Program Files\Notepad++\uninstall.exe)" << true
                                               << R"(C:\Program Files\Notepad++\uninstall.exe)" << QStringList();
    QTest::newRow("unquoted path with switches")
        << R"(C:\Program Files\VideoLAN\VLC\uninstall.exe /S  /NCRC)" << true
        << R"(C:\Program Files\VideoLAN\VLC\uninstall.exe)" << QStringList { "/S", "/NCRC" };
    QTest::newRow("upper-case extension")
        << R"(C:\GAMES\SETUP.EXE -uninstall)" << true << R"(C:\GAMES\SETUP.EXE)" << QStringList { "-uninstall" };
    QTest::newRow("rundll32 click-once") << "rundll32.exe dfshim.dll,ShArpMaintain Foo.application" << true
                                         << "rundll32.exe"
                                         << QStringList { "dfshim.dll,ShArpMaintain", "Foo.application" };
    QTest::newRow("no extension, split at the space") << R"(cmd /c rd /s /q C:\Tools\Foo)" << true << "cmd"
                                                      << QStringList { "/c", "rd", "/s", "/q", R"(C:\Tools\Foo)" };
    QTest::newRow("single word") << "uninstall" << true << "uninstall" << QStringList();
    QTest::newRow(".exe at the start is not a program end") << ".exe /S" << true << ".exe" << QStringList { "/S" };
    QTest::newRow("unmatched quote falls through to .exe")
        << R"("C:\Program Files\Foo\uninst.exe /S)" << true << R"("C:\Program Files\Foo\uninst.exe)"
        << QStringList { "/S" };
    QTest::newRow("surrounding blanks") << "  \t\"C:\\A\\u.exe\"  /x  " << true << R"(C:\A\u.exe)"
                                        << QStringList { "/x" };
    QTest::newRow("empty") << "" << false << QString() << QStringList();
    QTest::newRow("only spaces") << "    " << false << QString() << QStringList();
    QTest::newRow("empty quotes") << R"("" /S)" << false << QString() << QStringList();
}

void tst_UninstallCommand::parse()
{
    QFETCH(QString, text);
    QFETCH(bool, parses);
    const auto command = UninstallCommand::parse(text);
    QCOMPARE(command.has_value(), parses);
    if (!parses)
        return;
    QTEST(command->program, "program");
    QTEST(command->arguments, "arguments");
}

void tst_UninstallCommand::silentSwitches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("publisher");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("arguments");

    const QString guid = "{23170F69-40C1-2702-2301-000001000000}";
    const QStringList silent { "/X" + guid, "/quiet", "/norestart" };
    QTest::newRow("plain msi gets both switches") << "MsiExec.exe /X" + guid << "Igor Pavlov"
                                                  << "7-Zip 23.01" << silent;
    QTest::newRow("/QN already chosen") << "MsiExec.exe /X" + guid + " /QN"
                                        << ""
                                        << "App" << QStringList { "/X" + guid, "/QN" };
    QTest::newRow("/passive already chosen") << "MsiExec.exe /X" + guid + " /passive"
                                             << ""
                                             << "App" << QStringList { "/X" + guid, "/passive" };
    QTest::newRow("/Quiet already chosen") << "msiexec /x " + guid + " /Quiet"
                                           << ""
                                           << "App" << QStringList { "/x", guid, "/Quiet" };
    QTest::newRow("/qb is not silent") << "MsiExec.exe /X" + guid + " /qb"
                                       << ""
                                       << "App" << QStringList { "/X" + guid, "/qb", "/quiet", "/norestart" };
    QTest::newRow("/quiet inside a word does not count")
        << "MsiExec.exe /X" + guid + " /quieter"
        << ""
        << "App" << QStringList { "/X" + guid, "/quieter", "/quiet", "/norestart" };
    QTest::newRow("Autodesk publisher") << "MsiExec.exe /X" + guid << "Autodesk, Inc."
                                        << "AutoCAD 2024" << QStringList { "/X" + guid };
    QTest::newRow("Adobe in the name") << "MsiExec.exe /X" + guid << ""
                                       << "Adobe Acrobat Reader DC" << QStringList { "/X" + guid };
    QTest::newRow("Microsoft Office product")
        << "MsiExec.exe /X" + guid << "Microsoft Corporation"
        << "Microsoft Office Professional Plus 2019" << QStringList { "/X" + guid };
    QTest::newRow("VMware") << "MsiExec.exe /X" + guid << "VMware, Inc."
                            << "VMware Workstation" << QStringList { "/X" + guid };
    QTest::newRow("Oracle") << "MsiExec.exe /X" + guid << "Oracle Corporation"
                            << "VirtualBox" << QStringList { "/X" + guid };
    QTest::newRow("other Microsoft product is silenced") << "MsiExec.exe /X" + guid << "Microsoft Corporation"
                                                         << "Microsoft Teams" << silent;
    QTest::newRow("quoted msiexec path") << "\"C:\\Windows\\System32\\msiexec.exe\" /X" + guid << ""
                                         << "App" << silent;
    QTest::newRow("not an msi: nothing added") << R"("C:\Program Files\App\unins000.exe" /S)"
                                               << ""
                                               << "App" << QStringList { "/S" };
}

void tst_UninstallCommand::silentSwitches()
{
    QFETCH(QString, text);
    QFETCH(QString, publisher);
    QFETCH(QString, name);
    auto command = UninstallCommand::parse(text);
    QVERIFY(command);
    command->addSilentSwitches(publisher, name);
    QTEST(command->arguments, "arguments");
}

QTEST_GUILESS_MAIN(tst_UninstallCommand)
#include "tst_uninstallcommand.moc"
