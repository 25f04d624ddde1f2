#include "app/startup.h"

#include <QApplication>
#include <QResource>
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

    // First of all cases: the link catalogue is created once per process, and only its first
    // creation logs. Lines are compared by their fixed start, values aside.
    void wholeStartUpLogsInOrder()
    {
        QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).setValue(QStringLiteral("language"), "en");
        Startup::prepareApplication();
        const QStringList expected = { "========== Translation Init ==========", "[Main] Translation code: \"en\"",
            "[Main] QM file: \":/translations/translations/Norvale_en.qm\"", "[Main] Translation loaded: \"en\"",
            "=====================================", "[LinkManager] 元数据加载成功",
            "[LinkManager] 版本:", "[LinkManager] 更新日期:", "[LinkManager] 使用用户设置的语言: \"en\"",
            "[LinkManager] 初始化完成", "[LinkManager] 当前语言: \"en\"", "[LinkManager] 支持的语言:" };
        QStringList ours;
        for (const QString& line : std::as_const(g_log)) {
            if (line.startsWith(QLatin1String("[Main]")) || line.startsWith(QLatin1String("[LinkManager]"))
                || line.startsWith(QLatin1String("=====")))
                ours << line;
        }
        QCOMPARE(ours.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QVERIFY2(ours.at(i).startsWith(expected.at(i)), qPrintable(ours.at(i) + " <> " + expected.at(i)));
        qApp->setStyleSheet(QString());
    }

    void translationLog_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QStringList>("lines");
        const QString init = QStringLiteral("========== Translation Init ==========");
        const QString end = QStringLiteral("=====================================");
        QTest::newRow("stored code with a catalogue")
            << "en"
            << "en"
            << QStringList { init, "[Main] Translation code: \"en\"",
                   "[Main] QM file: \":/translations/translations/Norvale_en.qm\"", "[Main] Translation loaded: \"en\"",
                   end };
        QTest::newRow("nothing stored: the system locale decides")
            << QString() << "zh_CN"
            << QStringList { init, "[Main] System language: \"zh_SG\"", "[Main] Translation code: \"zh_CN\"",
                   "[Main] QM file: \":/translations/translations/Norvale_zh_CN.qm\"",
                   "[Main] Translation loaded: \"zh_CN\"", end };
        QTest::newRow("stored code without a catalogue")
            << "xx"
            << "xx"
            << QStringList { init, "[Main] Translation code: \"xx\"",
                   "[Main] QM file: \":/translations/translations/Norvale_xx.qm\"",
                   "[Main] Translation not found, using default", end };
    }

    void translationLog()
    {
        QFETCH(QString, stored);
        QFETCH(QString, code);
        QFETCH(QStringList, lines);
        if (!stored.isNull())
            QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"))
                .setValue(QStringLiteral("language"), stored);
        QCOMPARE(Startup::setUpTranslation(), code);
        QCOMPARE(g_log, lines);
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
        // zlib (or stored as is), never zstd, for every resource the shell reads.
        for (const char* path : { ":/styles/main.qss", ":/data/data/links.json", ":/icons/icons/logo.ico",
                 ":/translations/translations/Norvale_en.qm" }) {
            const QResource resource(QString::fromLatin1(path));
            QVERIFY2(resource.isValid(), path);
            QVERIFY2(resource.compressionAlgorithm() != QResource::ZstdCompression, path);
        }
    }
};

int main(int argc, char* argv[])
{
    // A known system locale, so that the locale branch of the choice has a known answer.
    qputenv("LC_ALL", "zh_SG.UTF-8");
    qputenv("LANG", "zh_SG.UTF-8");
    QApplication app(argc, argv);
    tst_Startup test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_startup.moc"
