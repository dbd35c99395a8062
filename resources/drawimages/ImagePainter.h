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
    // A formula written in HTML (italics, superscripts) in a serif font of the given pixel
    // size, on a transparent image just large enough to hold it.
    static QImage drawFormula(const QString& html, int pixelSize);
    // A formula under a square-root sign whose bar spans it.
    static QImage drawSquareRoot(const QString& radicandHtml, int pixelSize);
    static QImage drawOrderFormula(const QString& html);
    static QImage drawCheckIndicator(bool checked);
    static QImage drawErrorIcon();
};
