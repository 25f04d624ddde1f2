// Norvale's start-up, step for step as the program runs it, ending at the main window's first show.
#include "app/startup.h"
#include "firstshow.h"
#include "shell/mainwindow.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);
    Startup::prepareApplication();

    MainWindow window(nullptr);
    FirstShowProbe probe;
    window.installEventFilter(&probe);
    window.show();
    return app.exec();
}
