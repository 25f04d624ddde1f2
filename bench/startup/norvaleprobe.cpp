// Norvale's start-up, step for step as the program runs it, ending at the main window's first show.
#include "app/startup.h"
#include "firstshow.h"
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
    LinkManager::instance()->setLanguage(Startup::setUpTranslation());
    Startup::applyStyleSheet();

    MainWindow window(nullptr);
    FirstShowProbe probe;
    window.installEventFilter(&probe);
    window.show();
    return app.exec();
}
