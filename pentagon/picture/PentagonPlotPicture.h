#pragma once

#include "common/picture/PlotPicture.h"
#include "pentagon/engine/PentagonEngine.h"
#include "pentagon/engine/PentagonFiles.h"
#include "pentagon/picture/PentagonPlotState.h"

#include <QPointF>
#include <QSize>
#include <vector>

// The Pentagon plot as a plot description: the history's pentagons (or the points being
// entered) in the plot area; the rubber band, value labels, grid lines, the inspector's ring,
// the failed step's message and, in a range of no size, the way back over it.
quillon::PlotPicture describePentagonPlot(const PentagonPlotState& state, QSize viewSize,
                                          quillon::PictureUse use);

// The two parts of describePentagonPlot, for the screen's two passes.
quillon::PlotBackground pentagonPlotBackground(const PentagonPlotState& state);
std::vector<quillon::PlotOverlayItem> pentagonPlotOverlay(const PentagonPlotState& state,
                                                          QSize viewSize, quillon::PictureUse use);

// Where the point (x, y) of the plot lies in a view of `viewSize` showing `range`.
QPointF pentagonViewPixel(const PentagonRange& range, QSize viewSize, float x, float y);

// What the tab shows once `engine`'s operations have been applied: every pentagon of the
// history drawn in `colours` (the initial one in its colour, the newest in the current
// colour, older ones in greys), the view fitted to them as the tab fits it, no labels or grid
// lines, and the failed step's message when the last step failed, in a view of `viewSize`.
quillon::PlotPicture pentagonFinishedPicture(const PentagonEngine& engine,
                                             const PentagonColorSettings& colours, QSize viewSize);
