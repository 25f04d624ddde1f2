#include "widgets/elidedlabel.h"

#include <QFontMetrics>
#include <QtTest>

class tst_ElidedLabel : public QObject {
    Q_OBJECT
private slots:
    void shownText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("elided");
        QTest::newRow("fits") << QStringLiteral("Camera") << 200 << false;
        QTest::newRow("long package name") << QStringLiteral("Microsoft.WindowsCalculator_8wekyb3d8bbwe") << 90 << true;
        QTest::newRow("markup stays text") << QStringLiteral("<b>Tools</b> & more") << 400 << false;
        QTest::newRow("empty") << QString() << 50 << false;
    }

    void shownText()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(bool, elided);
        ElidedLabel label(text);
        label.setFixedWidth(width);
        label.show();
        QCOMPARE(label.text(), text);
        const QString shown = label.shownText();
        QVERIFY(label.fontMetrics().horizontalAdvance(shown) <= width);
        if (elided) {
            QVERIFY(shown.endsWith(QChar(0x2026)));
            QVERIFY(text.startsWith(shown.chopped(1)));
        } else {
            QCOMPARE(shown, text);
        }
    }
};

QTEST_MAIN(tst_ElidedLabel)
#include "tst_elidedlabel.moc"
