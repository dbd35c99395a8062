#include "roots/picture/RootsGridLayout.h"

#include "common/picture/ImageLookup.h"
#include "roots/picture/RootsRowHeading.h"

#include <QFontMetricsF>
#include <QSizeF>
#include <algorithm>
#include <cmath>

namespace
{

// The margin around the picture, as a share of its shorter side.
constexpr qreal kMarginShare = 0.012;
// The equation band's height, as a share of the picture's.
constexpr qreal kEquationShare = 0.11;
// Within the equation band: the equation's height and the coefficients' font size.
constexpr qreal kEquationImageShare = 0.7;
constexpr qreal kCoefficientFontShare = 0.32;
// The grid's font is at most this share of a band's height.
constexpr qreal kLargestFontShare = 0.28;
// The share of the grid's width the row headings get at least, as on the page.
constexpr qreal kHeadingShare = 0.18;
// A band this many times the line width high: two pixels at the page's size, as its borders.
constexpr qreal kBandsPerLineWidth = 34.0;
// The page's Arial 9 point at 96 dots per inch, the size its formula images were drawn to go
// with: the formulas grow with the grid's font from there.
constexpr qreal kPageFontPixels = 12.0;
constexpr int kSmallestFontPixels = 4;

QFont arialOfPixels(int pixels)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::max(1, pixels));
    return font;
}

QSizeF imageSize(const char* name)
{
    return QSizeF(quillon::loadImage(QString::fromLatin1(name)).size());
}

// The space between a heading's caption and its formula, and around a cell's text.
qreal paddingOf(const QFont& font)
{
    return font.pixelSize() * 0.5;
}

// The width of a row heading's caption and formula side by side.
qreal headingPartsWidth(const RootsRowHeading& heading, const QFontMetricsF& metrics,
                        qreal imageScale, qreal padding)
{
    qreal width = 0.0;
    if (heading.text != nullptr) {
        width += metrics.horizontalAdvance(QString::fromLatin1(heading.text));
    }
    if (heading.image != nullptr) {
        width += imageSize(heading.image).width() * imageScale;
    }
    if (heading.text != nullptr && heading.image != nullptr) {
        width += padding;
    }
    return width;
}

} // namespace

RootsGridLayout::RootsGridLayout(QSize viewSize, const QStringList& cellTexts,
                                 const std::array<QString, 3>& coefficients)
{
    const qreal width = viewSize.width();
    const qreal height = viewSize.height();
    const qreal margin = std::max(2.0, std::round(std::min(width, height) * kMarginShare));
    band = QRectF(margin, margin, width - 2 * margin, std::round(height * kEquationShare));
    const qreal gridTop = band.bottom() + margin;
    gridRect = QRectF(margin, gridTop, width - 2 * margin, height - margin - gridTop);
    bandHeight = gridRect.height() / kBandCount;
    line = std::max(1.0, std::round(bandHeight / kBandsPerLineWidth));
    placeEquation(coefficients);
    placeGrid(cellTexts);
}

// The equation and the coefficients centred on one line, as large as the band allows.
void RootsGridLayout::placeEquation(const std::array<QString, 3>& coefficients)
{
    const QSizeF equation = imageSize(kRootsEquationImage);
    int fontPixels = int(band.height() * kCoefficientFontShare);
    for (;; --fontPixels) {
        coefficientFont = arialOfPixels(fontPixels);
        const QFontMetricsF metrics(coefficientFont);
        const qreal gap = 1.5 * fontPixels;
        const qreal imageHeight = fontPixels * (kEquationImageShare / kCoefficientFontShare);
        const QSizeF imageExtent =
            equation.isEmpty() ? QSizeF(0, 0) : equation * (imageHeight / equation.height());
        qreal total = imageExtent.width();
        std::array<qreal, 3> widths{};
        for (size_t i = 0; i < coefficients.size(); ++i) {
            // A box a gap wider than its text, so that no renderer's rounding clips it.
            widths[i] = metrics.horizontalAdvance(coefficients[i]) + gap;
            total += gap + widths[i];
        }
        if (total > band.width() && fontPixels > kSmallestFontPixels) {
            continue;
        }
        qreal x = band.left() + (band.width() - total) / 2;
        formula = QRectF(QPointF(x, band.center().y() - imageExtent.height() / 2), imageExtent);
        x = formula.right();
        for (size_t i = 0; i < coefficients.size(); ++i) {
            coefficientBoxes[i] = QRectF(x + gap, band.top(), widths[i], band.height());
            x += gap + widths[i];
        }
        return;
    }
}

// The largest font with which every text fits its cell and every formula its band.
void RootsGridLayout::placeGrid(const QStringList& cellTexts)
{
    int fontPixels = std::max(kSmallestFontPixels, int(bandHeight * kLargestFontShare));
    GridFit fit = gridFitFor(fontPixels);
    while (fontPixels > kSmallestFontPixels && !fitsTheCells(fit, cellTexts)) {
        fit = gridFitFor(--fontPixels);
    }
    textFont = fit.font;
    imageScale = fit.imageScale;
    headingWidth = fit.headingWidth;
    padding = paddingOf(textFont);
}

RootsGridLayout::GridFit RootsGridLayout::gridFitFor(int fontPixels) const
{
    GridFit fit;
    fit.font = arialOfPixels(fontPixels);
    fit.imageScale = fontPixels / kPageFontPixels;
    const QFontMetricsF metrics(fit.font);
    const qreal padding = paddingOf(fit.font);
    qreal widest = metrics.horizontalAdvance(QString::fromLatin1(kRootsCornerHeading));
    for (const RootsRowHeading& heading : kRootsRowHeadings) {
        widest = std::max(widest, headingPartsWidth(heading, metrics, fit.imageScale, padding));
    }
    fit.headingWidth = std::max(widest + 2 * padding, gridRect.width() * kHeadingShare);
    return fit;
}

bool RootsGridLayout::fitsTheCells(const GridFit& fit, const QStringList& cellTexts) const
{
    const QFontMetricsF metrics(fit.font);
    QStringList lines = cellTexts;
    lines << QString::fromLatin1(kRootsWidestCellText);
    for (const char* heading : kRootsColumnHeadings) {
        lines << QString::fromLatin1(heading).split(QLatin1Char('\n'));
    }
    qreal widest = 0.0;
    for (const QString& text : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    qreal tallest = 2 * metrics.lineSpacing();
    for (const RootsRowHeading& heading : kRootsRowHeadings) {
        if (heading.image != nullptr) {
            tallest = std::max(tallest, imageSize(heading.image).height() * fit.imageScale);
        }
    }
    const qreal padding = paddingOf(fit.font);
    const qreal cells = (gridRect.width() - fit.headingWidth) / kRootsVariantCount;
    return widest + 2 * padding <= cells && tallest + padding <= bandHeight;
}

qreal RootsGridLayout::cellWidth() const
{
    return (gridRect.width() - headingWidth) / kRootsVariantCount;
}

QRectF RootsGridLayout::cell(int band, int column) const
{
    const qreal top = gridRect.top() + band * bandHeight;
    if (column == 0) {
        return QRectF(gridRect.left(), top, headingWidth, bandHeight);
    }
    return QRectF(gridRect.left() + headingWidth + (column - 1) * cellWidth(), top, cellWidth(),
                  bandHeight);
}

// The caption and formula side by side, centred in the heading cell.
QRectF RootsGridLayout::rowFormula(RootsRow row) const
{
    const RootsRowHeading& heading = kRootsRowHeadings[row];
    if (heading.image == nullptr) {
        return QRectF();
    }
    const QRectF headingCell = cell(row + 1, 0);
    const QSizeF extent = imageSize(heading.image) * imageScale;
    const qreal partsWidth =
        headingPartsWidth(heading, QFontMetricsF(textFont), imageScale, padding);
    const qreal left = headingCell.left() + (headingCell.width() - partsWidth) / 2;
    return QRectF(
        QPointF(left + partsWidth - extent.width(), headingCell.center().y() - extent.height() / 2),
        extent);
}

QRectF RootsGridLayout::rowCaption(RootsRow row) const
{
    const RootsRowHeading& heading = kRootsRowHeadings[row];
    const QRectF headingCell = cell(row + 1, 0);
    if (heading.text == nullptr) {
        return QRectF();
    }
    if (heading.image == nullptr) {
        return headingCell;
    }
    return QRectF(headingCell.left(), headingCell.top(),
                  rowFormula(row).left() - padding - headingCell.left(), headingCell.height());
}
