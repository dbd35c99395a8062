#include "ImagePainter.h"

#include <QPainter>
#include <QPainterPath>

QStringList ImagePainter::imageNames()
{
    return {QStringLiteral("quillon.png")};
}

QImage ImagePainter::draw(const QString& name)
{
    if (name == QLatin1String("quillon.png")) {
        return drawProgramIcon();
    }
    return QImage();
}

// A white tile with two curves that start together and drift apart: the program's subject.
QImage ImagePainter::drawProgramIcon()
{
    const int side = 128;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(40, 40, 40), 4));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(4, 4, side - 8, side - 8), 18, 18);

    QPainterPath exact;
    QPainterPath rounded;
    exact.moveTo(18, 84);
    rounded.moveTo(18, 84);
    exact.cubicTo(50, 84, 70, 60, 110, 40);
    rounded.cubicTo(50, 84, 80, 96, 110, 104);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(128, 0, 128), 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(exact);
    painter.setPen(QPen(QColor(255, 69, 0), 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(rounded);
    return image;
}
