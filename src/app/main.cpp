#include "app/startup.h"
#include "links/linkmanager.h"
#include "shell/mainwindow.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);

    Startup::applyIdentity();
    Startup::applyStyleAndPalette();
    Startup::applyFont();
    const QString code = Startup::setUpTranslation();
    LinkManager::instance()->setLanguage(code);
    Startup::applyStyleSheet();

    MainWindow window(nullptr);
    window.show();
    return app.exec();
}
