#pragma once

#include "common/picture/PlotPicture.h"
#include "roots/engine/RootsSolver.h"

#include <QSize>

// The size of the Roots page's result grid (its "Output" box) in the default window: the
// reference a picture's texts are scaled from, and the command line's picture size.
constexpr QSize kRootsPictureSize(1060, 630);

// What a lecturer exports from the Roots tab, laid out to fill `viewSize`: the equation with
// the coefficients as the fields show them after the start-up or an example, then the result
// grid with its headings, the cells' texts as the grid shows them, the rows' banded backgrounds,
// the cells' highlight colours and the grid lines. All of it is overlay; the background is
// empty (white). A cell whose row keeps its earlier colours on the page (agreement classes 1
// and 2) is drawn in black, the colour it has before any highlighting.
quillon::PlotPicture rootsGridPicture(const RootsSolver& solver, QSize viewSize);
