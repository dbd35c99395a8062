#include "app/MainWindow.h"
#include "common/picture/ImageLookup.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(quillon::imagePath(QStringLiteral("quillon.png"))));
    MainWindow window;
    window.show();
    return application.exec();
}
