#pragma once

#include <QImage>
#include <QString>

// Draws each of the program's images by name. Every image is drawn with vector shapes and
// text at its final pixel size, so it is sharp where it is shown.
class ImagePainter
{
public:
    // The names of all images this painter draws.
    static QStringList imageNames();

    // The image called `name`; a null image for an unknown name.
    static QImage draw(const QString& name);

private:
    static QImage drawProgramIcon();
};
