#include "ImagePainter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QTextDocument>
#include <map>

namespace
{

// The Roots page's equation and row headings, as HTML, with the pixel size they are drawn at.
const std::map<QString, std::pair<QString, int>>& formulaImages()
{
    static const std::map<QString, std::pair<QString, int>> formulas = {
        {QStringLiteral("ax2+bx+c=0.png"),
         {QStringLiteral("<i>a</i>&thinsp;<i>x</i><sup>2</sup> + <i>b</i>&thinsp;<i>x</i> + "
                         "<i>c</i> = 0"),
          30}},
        {QStringLiteral("ax2+bx+c=.png"),
         {QStringLiteral("<i>a</i>&thinsp;<i>x</i><sup>2</sup> + <i>b</i>&thinsp;<i>x</i> + "
                         "<i>c</i>"),
          20}},
        {QStringLiteral("b2.png"), {QStringLiteral("<i>b</i><sup>2</sup>"), 22}},
        {QStringLiteral("4ac.png"), {QStringLiteral("4<i>a</i><i>c</i>"), 22}},
    };
    return formulas;
}

} // namespace

QStringList ImagePainter::imageNames()
{
    QStringList names = {QStringLiteral("quillon.png")};
    for (const auto& formula : formulaImages()) {
        names << formula.first;
    }
    return names;
}

QImage ImagePainter::draw(const QString& name)
{
    if (name == QLatin1String("quillon.png")) {
        return drawProgramIcon();
    }
    const auto formula = formulaImages().find(name);
    if (formula != formulaImages().end()) {
        return drawFormula(formula->second.first, formula->second.second);
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

QImage ImagePainter::drawFormula(const QString& html, int pixelSize)
{
    QFont font(QStringLiteral("Times"));
    font.setPixelSize(pixelSize);
    QTextDocument document;
    document.setDefaultFont(font);
    document.setDocumentMargin(2);
    document.setHtml(html);
    const QSize size = document.size().toSize();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    document.drawContents(&painter);
    return image;
}
