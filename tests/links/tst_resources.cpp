#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTest>

namespace {
QStringList g_warnings;

void collectWarnings(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtWarningMsg)
        g_warnings.append(message);
}
} // namespace

class tst_Resources final : public QObject {
    Q_OBJECT

private slots:
    void styleSheetParses()
    {
        QFile file(":/styles/main.qss");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
        // The sheet is only parsed, and its values only read, as widgets are polished.
        QWidget window;
        for (const char* name : { "NavButton", "ChipButton", "BtnPrimary", "BtnGreen", "BtnGhost" })
            (new QPushButton(&window))->setObjectName(name);
        window.ensurePolished();
        qInstallMessageHandler(previous);
        QVERIFY2(g_warnings.isEmpty(), qPrintable(g_warnings.join('\n')));
    }
};

QTEST_MAIN(tst_Resources)
#include "tst_resources.moc"
