#include <uninstall/wingetmanager.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_WinGetManager : public QObject {
    Q_OBJECT
private slots:
    void outputLine_data()
    {
        QTest::addColumn<QByteArray>("raw");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("percent"); // -1: no progress
        auto row = [](const char* what, const char* raw, const QString& line, int percent) {
            QTest::newRow(what) << QByteArray(raw) << line << percent;
        };
        row("one percentage", "45% downloaded\r\n", "45% downloaded", 45);
        row("progress bar", "  \xe2\x96\x88\xe2\x96\x92  12.5 MB / 50 MB  25%\n", "\u2588\u2592  12.5 MB / 50 MB  25%",
            25);
        row("two percentages: the first", "10% ... 20%\n", "10% ... 20%", 10);
        row("no percentage", "Found Git [Git.Git]\n", "Found Git [Git.Git]", -1);
        row("too large to be a number", "99999999999%\n", "99999999999%", 0);
    }
    void outputLine()
    {
        QFETCH(QByteArray, raw);
        QFETCH(int, percent);
        WinGetManager manager;
        QSignalSpy lines(&manager, &WinGetManager::outputLine);
        QSignalSpy progress(&manager, &WinGetManager::packageProgress);
        manager.handleOutputLine(raw);
        QCOMPARE(lines.size(), 1);
        QTEST(lines[0][0].toString(), "line");
        QCOMPARE(progress.isEmpty() ? -1 : progress.last()[1].toInt(), percent);
    }

    void queueRunsEachPackage()
    {
        // A stand-in for the tool: logs its arguments, and fails for identifiers that ask for it.
        QTemporaryDir bin;
        QFile script(bin.filePath("winget"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"$*\" >> \"$0.log\"\ncase \"$3\" in *.Fail) exit 3;; esac\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(bin.path()) + ":" + path);
        WinGetManager manager;
        QSignalSpy finished(&manager, &WinGetManager::packageFinished);
        QSignalSpy all(&manager, &WinGetManager::allFinished);
        manager.enqueue({ "Git.Git", "Broken.Fail" });
        const bool done = all.wait(10000);
        qputenv("PATH", path);
        QVERIFY(done);
        QCOMPARE(
            finished, QList<QVariantList>({ { "Git.Git", true, "success" }, { "Broken.Fail", false, "exit code 3" } }));
        QFile log(script.fileName() + ".log");
        QVERIFY(log.open(QIODevice::ReadOnly));
        QCOMPARE(log.readAll(),
            "install --id Git.Git --silent --accept-source-agreements --accept-package-agreements\n"
            "install --id Broken.Fail --silent --accept-source-agreements --accept-package-agreements\n");
    }
};

QTEST_GUILESS_MAIN(tst_WinGetManager)
#include "tst_wingetmanager.moc"
