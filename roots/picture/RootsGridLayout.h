#pragma once

#include "roots/engine/RootsGrid.h"

#include <QFont>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <array>

// Where the parts of the Roots grid's picture go in a view of a given size: the equation with
// the coefficients in a band on top, and below it the grid of eight bands (the column headings,
// then the seven quantities), each a heading cell and four value cells. The fonts are the
// largest that let every text fit its place, so the picture reads well at any size and cuts
// nothing off.
class RootsGridLayout
{
public:
    // A band holds the column headings (band 0) or one row (band 1 + row); a column the row
    // headings (column 0) or one variant (column 1 + variant).
    static constexpr int kBandCount = kRootsRowCount + 1;
    static constexpr int kColumnCount = kRootsVariantCount + 1;

    // `cellTexts` are the texts the cells will show; each must fit, as must the widest text a
    // cell can show at all, so that pictures of different equations share one font. The
    // coefficients are shown after the equation, one text each.
    RootsGridLayout(QSize viewSize, const QStringList& cellTexts,
                    const std::array<QString, 3>& coefficients);

    // The equation's image and the coefficients' boxes, left to right on one line.
    QRectF equationFormula() const { return formula; }
    QRectF coefficientBox(int index) const { return coefficientBoxes[index]; }
    QFont equationFont() const { return coefficientFont; }

    QRectF grid() const { return gridRect; }
    QRectF cell(int band, int column) const;
    // The font of every text in the grid.
    QFont cellFont() const { return textFont; }
    qreal lineWidth() const { return line; }

    // A row heading's caption box (its text right-aligned when a formula follows, centred when
    // alone) and the target of its formula image; either is empty when the row has none.
    QRectF rowCaption(RootsRow row) const;
    QRectF rowFormula(RootsRow row) const;

private:
    struct GridFit {
        QFont font;
        qreal imageScale = 1.0;
        qreal headingWidth = 0.0;
    };

    void placeEquation(const std::array<QString, 3>& coefficients);
    void placeGrid(const QStringList& cellTexts);
    GridFit gridFitFor(int fontPixels) const;
    bool fitsTheCells(const GridFit& fit, const QStringList& cellTexts) const;
    qreal cellWidth() const;

    QRectF band;
    QRectF formula;
    std::array<QRectF, 3> coefficientBoxes;
    QFont coefficientFont;
    QRectF gridRect;
    qreal bandHeight = 0.0;
    qreal line = 1.0;
    QFont textFont;
    qreal imageScale = 1.0;
    qreal headingWidth = 0.0;
    qreal padding = 0.0;
};
