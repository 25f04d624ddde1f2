#include "app/startup.h"

#include <QApplication>
#include <QSettings>
#include <QStringList>
#include <QStyle>
#include <QTest>

namespace {

QStringList g_log;

void captureMessages(QtMsgType, const QMessageLogContext&, const QString& message)
{
    g_log.append(message);
}

bool logged(const QString& prefix)
{
    for (const QString& line : std::as_const(g_log)) {
        if (line.startsWith(prefix))
            return true;
    }
    return false;
}

} // namespace

class tst_Startup : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        g_log.clear();
        QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).clear();
        qInstallMessageHandler(captureMessages);
    }
    void cleanup() { qInstallMessageHandler(nullptr); }

    void chooseTranslationCode_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("asksSystem");
        QTest::newRow("Hong Kong gets Traditional Chinese") << ""
                                                            << "zh_HK"
                                                            << "zh_TW" << true;
        QTest::newRow("Taiwan gets Traditional Chinese") << ""
                                                         << "zh_TW"
                                                         << "zh_TW" << true;
        QTest::newRow("Singapore gets Simplified Chinese") << ""
                                                           << "zh_SG"
                                                           << "zh_CN" << true;
        QTest::newRow("Macau gets Simplified Chinese") << ""
                                                       << "zh_MO"
                                                       << "zh_CN" << true;
        QTest::newRow("Brazil gets the Portuguese catalogue") << ""
                                                              << "pt_BR"
                                                              << "pt" << true;
        QTest::newRow("Russian has no catalogue: English") << ""
                                                           << "ru_RU"
                                                           << "en" << true;
        QTest::newRow("C locale: English") << ""
                                           << "C"
                                           << "en" << true;
        QTest::newRow("Arabic by prefix") << ""
                                          << "ar_EG"
                                          << "ar" << true;
        QTest::newRow("stored French beats a German system") << "fr"
                                                             << "de_DE"
                                                             << "fr" << false;
        QTest::newRow("stored code without catalogue taken as it is") << "xx"
                                                                      << "de_DE"
                                                                      << "xx" << false;
    }

    void chooseTranslationCode()
    {
        QFETCH(QString, stored);
        QFETCH(QString, locale);
        QFETCH(QString, code);
        QFETCH(bool, asksSystem);
        QCOMPARE(Startup::chooseTranslationCode(stored, locale), code);
        QCOMPARE(logged(QStringLiteral("[Main] System language:")), asksSystem);
    }

    void storedCatalogueLoads()
    {
        QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).setValue(QStringLiteral("language"), "en");
        QCOMPARE(Startup::setUpTranslation(), QStringLiteral("en"));
        QVERIFY(g_log.contains(QStringLiteral("[Main] QM file: \":/translations/translations/Norvale_en.qm\"")));
        QVERIFY(g_log.contains(QStringLiteral("[Main] Translation loaded: \"en\"")));
        QVERIFY(!logged(QStringLiteral("[Main] Translation not found")));
    }

    void missingCatalogueFallsBackToSourceTexts()
    {
        QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).setValue(QStringLiteral("language"), "xx");
        QCOMPARE(Startup::setUpTranslation(), QStringLiteral("xx"));
        QVERIFY(g_log.contains(QStringLiteral("[Main] Translation not found, using default")));
        QVERIFY(!logged(QStringLiteral("[Main] Translation loaded:")));
        QCOMPARE(g_log.first(), QStringLiteral("========== Translation Init =========="));
        QCOMPARE(g_log.last(), QStringLiteral("====================================="));
    }

    void styleSheet()
    {
        qApp->setStyleSheet(QString());
        Startup::applyStyleSheet(QStringLiteral(":/styles/missing.qss"));
        QVERIFY(qApp->styleSheet().isEmpty());
        QVERIFY(g_log.isEmpty());
        Startup::applyStyleSheet();
        QVERIFY(qApp->styleSheet().contains(QLatin1String("#NavButton")));
        qApp->setStyleSheet(QString());
    }

    void paletteAndFont()
    {
        Startup::applyStyleAndPalette();
        Startup::applyFont();
        const QPalette palette = QApplication::palette();
        for (auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
            QCOMPARE(palette.color(group, QPalette::Highlight), QColor(219, 234, 254));
            QCOMPARE(palette.color(group, QPalette::HighlightedText), QColor(37, 99, 235));
            QCOMPARE(palette.color(group, QPalette::AlternateBase), QColor(245, 245, 250));
            QCOMPARE(palette.color(group, QPalette::WindowText), QColor(30, 30, 50));
        }
        QCOMPARE(QApplication::font().family(), QStringLiteral("Segoe UI"));
        QCOMPARE(QApplication::font().pointSize(), 9);
        QCOMPARE(QApplication::style()->name().toLower(), QStringLiteral("fusion"));
    }
};

QTEST_MAIN(tst_Startup)
#include "tst_startup.moc"
