// Writes every image of the program into the folder named on the command line.
#include "resources/drawimages/ImagePainter.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: quillon-draw-images OUTPUT_FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create the folder %s\n", argv[1]);
        return 1;
    }
    for (const QString& name : ImagePainter::imageNames()) {
        const QString path = folder.filePath(name);
        if (!ImagePainter::draw(name).save(path)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
