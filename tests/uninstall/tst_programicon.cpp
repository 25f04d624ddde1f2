#include "uninstall/programicon.h"

#include <QTest>

class tst_ProgramIcon : public QObject {
    Q_OBJECT

private slots:
    void parseLocation_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("index");
        QTest::newRow("plain path") << "C:\\App\\app.exe"
                                    << "C:\\App\\app.exe" << 0;
        QTest::newRow("index after the last comma") << " \"C:\\A,B\\app.exe\" , 3 "
                                                    << "C:\\A,B\\app.exe" << 3;
        QTest::newRow("negative index taken as positive") << "C:\\app.dll,-101"
                                                          << "C:\\app.dll" << 101;
        QTest::newRow("text after the comma is part of the path") << "C:\\a,b.ico"
                                                                  << "C:\\a,b.ico" << 0;
        QTest::newRow("comma first is no separator") << ",2"
                                                     << ",2" << 0;
        QTest::newRow("empty") << ""
                               << "" << 0;
    }

    void parseLocation()
    {
        QFETCH(QString, text);
        QFETCH(QString, path);
        QFETCH(int, index);
        const ProgramIcon::Location loc = ProgramIcon::parseLocation(text);
        QCOMPARE(loc.path, path);
        QCOMPARE(loc.index, index);
    }

    void missingFileGivesNoImage()
    {
        QVERIFY(ProgramIcon::fromLocation(QStringLiteral("C:/Nowhere/none.exe,0")).isNull());
        QVERIFY(ProgramIcon::fromLocation(QString()).isNull());
    }
};

QTEST_MAIN(tst_ProgramIcon)
#include "tst_programicon.moc"
