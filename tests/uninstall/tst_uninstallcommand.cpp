#include <uninstall/uninstallcommand.h>

#include <QTest>

class tst_UninstallCommand : public QObject {
    Q_OBJECT
private slots:
    void parseAndSilence_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("publisher");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("program"); // empty: the text does not parse
        QTest::addColumn<QStringList>("arguments"); // once the silent switches are added
        auto row = [](const char* what, const QString& text, const QString& program, const QStringList& arguments,
                       const QString& publisher = "", const QString& name = "App") {
            QTest::newRow(what) << text << publisher << name << program << arguments;
        };
        row("quoted path with a switch", R"("C:\Program Files\Firefox\helper.exe" /S)",
            R"(C:\Program Files\Firefox\helper.exe)", { "/S" });
        row("quoted argument comes apart", R"("C:\Steam\uninstall.exe" /uninstall "My Game")",
            R"(C:\Steam\uninstall.exe)", { "/uninstall", "\"My", "Game\"" });
        row("unquoted path with spaces, upper case", R"(C:\Program Files\VLC\UNINSTALL.EXE /S  /NCRC)",
            R"(C:\Program Files\VLC\UNINSTALL.EXE)", { "/S", "/NCRC" });
        row("rundll32 click-once", "rundll32.exe dfshim.dll,ShArpMaintain Foo.application", "rundll32.exe",
            { "dfshim.dll,ShArpMaintain", "Foo.application" });
        row("unmatched quote falls through to .exe", R"("C:\Foo\uninst.exe /S)", R"("C:\Foo\uninst.exe)", { "/S" });
        row("empty quotes", R"("" /S)", "", {});

        const QString guid = "{23170F69-40C1-2702-2301-000001000000}";
        const QString msi = "MsiExec.exe /X" + guid;
        const QStringList silent { "/X" + guid, "/quiet", "/norestart" };
        row("msi gets both switches", msi, "msiexec.exe", silent, "Igor Pavlov", "7-Zip 23.01");
        row("msiexec full path, blanks, /qb is not silent", "C:\\Windows\\System32\\msiexec.exe  /x " + guid + "  /qb",
            "msiexec.exe", { "/x", guid, "/qb", "/quiet", "/norestart" });
        row("/QN already chosen", msi + " /QN", "msiexec.exe", { "/X" + guid, "/QN" });
        row("Autodesk publisher", msi, "msiexec.exe", { "/X" + guid }, "Autodesk, Inc.", "AutoCAD 2024");
        row("Microsoft Office", msi, "msiexec.exe", { "/X" + guid }, "Microsoft Corporation", "Microsoft Office 2019");
        row("other Microsoft product", msi, "msiexec.exe", silent, "Microsoft Corporation", "Microsoft Teams");
    }
    void parseAndSilence()
    {
        QFETCH(QString, text);
        QFETCH(QString, program);
        auto command = UninstallCommand::parse(text);
        QCOMPARE(command.has_value(), !program.isEmpty());
        if (command) {
            QCOMPARE(command->program, program);
            QFETCH(QString, publisher);
            QFETCH(QString, name);
            command->addSilentSwitches(publisher, name);
            QTEST(command->arguments, "arguments");
        }
    }
};

QTEST_GUILESS_MAIN(tst_UninstallCommand)
#include "tst_uninstallcommand.moc"
