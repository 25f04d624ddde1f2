#include <uninstall/wingetmanager.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_WinGetManager : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void outputLine_data();
    void outputLine();
    void exitCodeMessage_data();
    void exitCodeMessage();
    void queueRunsEachPackage();
    void stopAfterCurrentKeepsTheRest();
    void missingToolStopsTheQueue();
    void createdByMetaObject();

private:
    QTemporaryDir m_bin;
    QByteArray m_path;
};

void tst_WinGetManager::initTestCase()
{
    QVERIFY(m_bin.isValid());
    // A stand-in for the tool: logs its arguments, prints progress without and with a line end,
    // and fails for identifiers that ask for it.
    QFile script(m_bin.filePath("winget"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n"
                 "echo \"$*\" >> \"$(dirname \"$0\")/calls.log\"\n"
                 "printf 'Found %s\\n' \"$3\"\n"
                 "printf '  30%%  of 12 MB\\n' >&2\n"
                 "case \"$3\" in *.Fail) exit 3;; esac\n"
                 "printf 'Successfully installed\\n'\n"
                 "exit 0\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    m_path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(m_bin.path()) + ":" + m_path);
}

void tst_WinGetManager::cleanupTestCase()
{
    qputenv("PATH", m_path);
}

void tst_WinGetManager::outputLine_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("percent"); // -1: no progress

    QTest::newRow("one percentage") << QByteArray("45% downloaded\r\n") << "45% downloaded" << 45;
    QTest::newRow("progress bar") << QByteArray("  \xe2\x96\x88\xe2\x96\x88\xe2\x96\x92  12.5 MB / 50 MB  25%\n")
                                  << "\u2588\u2588\u2592  12.5 MB / 50 MB  25%" << 25;
    QTest::newRow("two percentages: the first") << QByteArray("10% ... 20%\n") << "10% ... 20%" << 10;
    QTest::newRow("no percentage") << QByteArray("Found Git [Git.Git] Version 2.43.0\n")
                                   << "Found Git [Git.Git] Version 2.43.0" << -1;
    QTest::newRow("percent sign without number") << QByteArray("100 %\n") << "100 %" << -1;
    QTest::newRow("full") << QByteArray("100%\n") << "100%" << 100;
    QTest::newRow("UTF-8 text") << QByteArray("\xe4\xb8\x8b\xe8\xbd\xbd 50%\n") << "\u4e0b\u8f7d 50%" << 50;
    QTest::newRow("too large to be a number") << QByteArray("99999999999%\n") << "99999999999%" << 0;
    QTest::newRow("empty line") << QByteArray("\n") << "" << -1;
}

void tst_WinGetManager::outputLine()
{
    QFETCH(QByteArray, raw);
    QFETCH(QString, line);
    QFETCH(int, percent);
    WinGetManager manager;
    QSignalSpy lines(&manager, &WinGetManager::outputLine);
    QSignalSpy progress(&manager, &WinGetManager::packageProgress);
    manager.handleOutputLine(raw);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0][0].toString(), line);
    QCOMPARE(progress.size(), percent < 0 ? 0 : 1);
    if (percent >= 0)
        QCOMPARE(progress[0][1].toInt(), percent);
}

void tst_WinGetManager::exitCodeMessage_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("success");
    QTest::addColumn<QString>("msg");
    QTest::newRow("zero") << 0 << true << "success";
    QTest::newRow("small") << 1 << false << "exit code 1";
    QTest::newRow("winget error beyond int") << int(0x8A150014u) << false << "exit code -1978335212";
}

void tst_WinGetManager::exitCodeMessage()
{
    QFETCH(int, code);
    WinGetManager manager;
    QSignalSpy finished(&manager, &WinGetManager::packageFinished);
    QSignalSpy all(&manager, &WinGetManager::allFinished);
    QVERIFY(QMetaObject::invokeMethod(
        &manager, "onProcessFinished", Q_ARG(int, code), Q_ARG(QProcess::ExitStatus, QProcess::NormalExit)));
    QCOMPARE(finished.size(), 1);
    QTEST(finished[0][1].toBool(), "success");
    QTEST(finished[0][2].toString(), "msg");
    QCOMPARE(all.size(), 1); // nothing queued: the runner goes idle
}

void tst_WinGetManager::queueRunsEachPackage()
{
    QFile::remove(m_bin.filePath("calls.log"));
    WinGetManager manager;
    QSignalSpy started(&manager, &WinGetManager::packageStarted);
    QSignalSpy progress(&manager, &WinGetManager::packageProgress);
    QSignalSpy finished(&manager, &WinGetManager::packageFinished);
    QSignalSpy lines(&manager, &WinGetManager::outputLine);
    QSignalSpy all(&manager, &WinGetManager::allFinished);
    manager.enqueue({ "Git.Git", "Broken.Fail" });
    QVERIFY(all.wait(10000));
    QCOMPARE(all.size(), 1);
    QCOMPARE(started.size(), 2);
    QCOMPARE(started[0][0].toString(), "Git.Git");
    QCOMPARE(started[1][0].toString(), "Broken.Fail");
    QCOMPARE(finished.size(), 2);
    QCOMPARE(finished[0], QVariantList({ "Git.Git", true, "success" }));
    QCOMPARE(finished[1], QVariantList({ "Broken.Fail", false, "exit code 3" }));
    QCOMPARE(progress.size(), 2); // standard error joins the output
    QCOMPARE(progress[1], QVariantList({ "Broken.Fail", 30 }));
    QVERIFY(lines.contains(QVariantList { "Found Git.Git" }));
    QFile log(m_bin.filePath("calls.log"));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QCOMPARE(log.readAll(),
        "install --id Git.Git --silent --accept-source-agreements --accept-package-agreements\n"
        "install --id Broken.Fail --silent --accept-source-agreements --accept-package-agreements\n");
}

void tst_WinGetManager::stopAfterCurrentKeepsTheRest()
{
    WinGetManager manager;
    QSignalSpy finished(&manager, &WinGetManager::packageFinished);
    QSignalSpy all(&manager, &WinGetManager::allFinished);
    manager.enqueue({ "One.App", "Two.App" });
    manager.stopAfterCurrent();
    QVERIFY(all.wait(10000));
    QCOMPARE(finished.size(), 1);
    QCOMPARE(manager.queue(), QStringList { "Two.App" });
    manager.enqueue({});
    QVERIFY(all.wait(10000));
    QCOMPARE(finished.size(), 2);
    QVERIFY(manager.queue().isEmpty());
}

void tst_WinGetManager::missingToolStopsTheQueue()
{
    const QByteArray path = qgetenv("PATH");
    QTemporaryDir empty;
    qputenv("PATH", QFile::encodeName(empty.path()));
    WinGetManager manager;
    QSignalSpy started(&manager, &WinGetManager::packageStarted);
    QSignalSpy finished(&manager, &WinGetManager::packageFinished);
    QSignalSpy all(&manager, &WinGetManager::allFinished);
    manager.enqueue({ "One.App", "Two.App" });
    qputenv("PATH", path);
    QCOMPARE(started.size(), 1);
    QVERIFY(!all.wait(300));
    QCOMPARE(finished.size(), 0);
    QCOMPARE(manager.queue(), QStringList { "Two.App" });
}

void tst_WinGetManager::createdByMetaObject()
{
    QObject parent;
    QObject* made = WinGetManager::staticMetaObject.newInstance(Q_ARG(QObject*, &parent));
    QVERIFY(qobject_cast<WinGetManager*>(made));
    QCOMPARE(made->parent(), &parent);
}

QTEST_GUILESS_MAIN(tst_WinGetManager)
#include "tst_wingetmanager.moc"
