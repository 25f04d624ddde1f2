// The reference: the least a Qt Widgets program does before its first window shows.
#include "firstshow.h"

#include <QApplication>
#include <QLabel>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QLabel window(QStringLiteral("minimal"));
    window.resize(980, 700);
    FirstShowProbe probe;
    window.installEventFilter(&probe);
    window.show();
    return app.exec();
}
