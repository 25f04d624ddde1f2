#include <uninstall/wingetmanager.h>

#include <QSignalSpy>
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
};

QTEST_GUILESS_MAIN(tst_WinGetManager)
#include "tst_wingetmanager.moc"
