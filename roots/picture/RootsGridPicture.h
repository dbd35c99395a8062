#pragma once

#include "common/picture/PlotPicture.h"
#include "roots/engine/RootsSolver.h"

#include <QColor>
#include <QSize>
#include <array>

// The size of the Roots page's result grid (its "Output" box) in the default window: the
// reference a picture's texts are scaled from, and the command line's picture size.
constexpr QSize kRootsPictureSize(1060, 630);

// The ink of every cell of the grid, row by row.
using RootsCellInks = std::array<std::array<QColor, kRootsVariantCount>, kRootsRowCount>;

// What a lecturer exports from the Roots tab, laid out to fill `viewSize`: the equation with
// the coefficients as the fields show them after the start-up or an example, then the result
// grid with its headings, the cells' texts as the grid shows them, the rows' banded backgrounds,
// the cells' highlight colours and the grid lines. All of it is overlay; the background is
// empty (white). The cells are drawn in `shownInks` when given (the page's cells keep their
// earlier colours in rows of agreement classes 1 and 2, so only the page knows them); without
// it, such a cell is drawn in black, the colour it has before any highlighting.
quillon::PlotPicture rootsGridPicture(const RootsSolver& solver, QSize viewSize,
                                      const RootsCellInks* shownInks = nullptr);
