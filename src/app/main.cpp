#include "app/startup.h"
#include "shell/mainwindow.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);

    Startup::prepareApplication();

    MainWindow window(nullptr);
    window.show();
    return app.exec();
}
