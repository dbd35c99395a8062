#include "resources/drawimages/ImagePainter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QTextDocument>
#include <QtMath>
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

// The radicand of the Roots page's square-root heading, drawn under a radical sign.
const QString kDiscriminantImage = QStringLiteral("b2-4ac.png");
const QString kDiscriminantHtml = QStringLiteral("<i>b</i><sup>2</sup> &minus; 4<i>a</i><i>c</i>");
constexpr int kDiscriminantPixelSize = 20;

// The associative law's five evaluation orders, in the order of the engine.
const QStringList& orderFormulas()
{
    static const QStringList formulas = {
        QStringLiteral("X<sub>n</sub> = (R + 1) X<sub>n-1</sub> - R (X<sub>n-1</sub> "
                       "X<sub>n-1</sub>)"),
        QStringLiteral("X<sub>n</sub> = (R + 1) X<sub>n-1</sub> - (R X<sub>n-1</sub>) "
                       "X<sub>n-1</sub>"),
        QStringLiteral("X<sub>n</sub> = ((R + 1) - R X<sub>n-1</sub>) X<sub>n-1</sub>"),
        QStringLiteral("X<sub>n</sub> = R X<sub>n-1</sub> + (1 - R X<sub>n-1</sub>) "
                       "X<sub>n-1</sub>"),
        QStringLiteral("X<sub>n</sub> = X<sub>n-1</sub> + R (X<sub>n-1</sub> - X<sub>n-1</sub> "
                       "X<sub>n-1</sub>)"),
    };
    return formulas;
}

QImage transparentImage(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// Formulas are set in a serif font of the given pixel size from HTML (italics, sub- and
// superscripts).
void typesetFormula(QTextDocument& document, const QString& html, int pixelSize, int margin)
{
    QFont font(QStringLiteral("Times"));
    font.setPixelSize(pixelSize);
    document.setDefaultFont(font);
    document.setDocumentMargin(margin);
    document.setHtml(html);
}

void paintFormula(QImage& image, QTextDocument& document, QPointF offset)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(offset);
    document.drawContents(&painter);
}

// The formula images keep this width-to-height ratio; the legend scales them by it.
constexpr int kOrderImageHeight = 52;
constexpr int kOrderImageWidth = 769; // 769 / 52 = 14.788462

} // namespace

QStringList ImagePainter::imageNames()
{
    QStringList names = {QStringLiteral("quillon.png")};
    for (const auto& formula : formulaImages()) {
        names << formula.first;
    }
    names << kDiscriminantImage;
    for (int k = 1; k <= orderFormulas().size(); ++k) {
        names << QStringLiteral("func%1.png").arg(k);
    }
    names << QStringLiteral("c.png") << QStringLiteral("u.png") << QStringLiteral("error.png");
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
    if (name == kDiscriminantImage) {
        return drawSquareRoot(kDiscriminantHtml, kDiscriminantPixelSize);
    }
    for (int k = 1; k <= orderFormulas().size(); ++k) {
        if (name == QStringLiteral("func%1.png").arg(k)) {
            return drawOrderFormula(orderFormulas()[k - 1]);
        }
    }
    if (name == QLatin1String("c.png") || name == QLatin1String("u.png")) {
        return drawCheckIndicator(name == QLatin1String("c.png"));
    }
    if (name == QLatin1String("error.png")) {
        return drawErrorIcon();
    }
    return QImage();
}

// A white tile with two curves that start together and drift apart: the program's subject.
QImage ImagePainter::drawProgramIcon()
{
    const int side = 128;
    QImage image = transparentImage(QSize(side, side));
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
    QTextDocument document;
    typesetFormula(document, html, pixelSize, 2);
    QImage image = transparentImage(document.size().toSize());
    paintFormula(image, document, QPointF(0, 0));
    return image;
}

// The radical sign is drawn as strokes: fonts draw the root symbol but not the bar over the
// radicand, and the two would not join.
QImage ImagePainter::drawSquareRoot(const QString& radicandHtml, int pixelSize)
{
    QTextDocument document;
    typesetFormula(document, radicandHtml, pixelSize, 2);
    const QSizeF radicand = document.size();
    const qreal signWidth = pixelSize * 0.7;
    const qreal barY = 2.5;
    const QSize size(qCeil(signWidth + radicand.width() + 2), qCeil(radicand.height() + barY));
    QImage image = transparentImage(size);
    paintFormula(image, document, QPointF(signWidth, barY));

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const qreal bottom = size.height() - 3;
    QPainterPath sign;
    sign.moveTo(1.5, bottom * 0.62);
    sign.lineTo(signWidth * 0.3, bottom * 0.52);
    sign.lineTo(signWidth * 0.55, bottom);
    sign.lineTo(signWidth * 0.92, barY);
    sign.lineTo(size.width() - 1.5, barY);
    painter.drawPath(sign);
    return image;
}

// A formula centred on a transparent image of the fixed legend proportions, with the text
// as large as the height allows.
QImage ImagePainter::drawOrderFormula(const QString& html)
{
    QTextDocument document;
    typesetFormula(document, html, 30, 0);
    QImage image = transparentImage(QSize(kOrderImageWidth, kOrderImageHeight));
    paintFormula(image, document, QPointF(4, (kOrderImageHeight - document.size().height()) / 2));
    return image;
}

// A 40-pixel check box: a dark frame, with a tick when checked.
QImage ImagePainter::drawCheckIndicator(bool checked)
{
    const int side = 40;
    QImage image = transparentImage(QSize(side, side));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(40, 40, 40), 3));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(2.5, 2.5, side - 5, side - 5), 5, 5);
    if (checked) {
        QPainterPath tick;
        tick.moveTo(9, 21);
        tick.lineTo(17, 30);
        tick.lineTo(31, 10);
        painter.setPen(QPen(QColor(0, 110, 0), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    }
    return image;
}

// A red warning disc with an exclamation mark, marking where a sequence failed.
QImage ImagePainter::drawErrorIcon()
{
    const int side = 48;
    QImage image = transparentImage(QSize(side, side));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(120, 0, 0), 2));
    painter.setBrush(QColor(220, 30, 30));
    painter.drawEllipse(QRectF(2, 2, side - 4, side - 4));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(side / 2.0 - 3.5, 10, 7, 19), 3, 3);
    painter.drawEllipse(QRectF(side / 2.0 - 4, 32, 8, 8));
    return image;
}
