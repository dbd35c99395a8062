#pragma once

#include "assoc/engine/AssoFiles.h"
#include "assoc/picture/AssoPlotState.h"
#include "common/picture/PlotPicture.h"

#include <QSize>

// The Associative Law plot as a plot description, laid out for a view of `viewSize`: the
// dotted reference lines and the curves (or their differences to the base order) in the plot
// area; the index labels, value labels, axis lines, error icons and messages, rubber band,
// legend, spread readout and the inspector's ring over it. The state's pointer and rubber band
// are in pixels of a view of the state's own size and are scaled to `viewSize`.
quillon::PlotPicture describeAssoPlot(const AssoPlotState& state, QSize viewSize,
                                      quillon::PictureUse use);

// The two parts of the description for a state laid out for its own view, for the screen's
// two passes.
quillon::PlotBackground assoPlotBackground(const AssoPlotState& state);
std::vector<quillon::PlotOverlayItem> assoPlotOverlay(const AssoPlotState& state,
                                                      quillon::PictureUse use);

// What the tab shows for R, X0 and N once its animation has run to the end, with the whole
// run in the window (iterations 0 to N - 1, all slid in), the Y range fitted to it, every
// order drawn in `colours` and the start-up view options, in a view of `size`.
quillon::PlotPicture assoFinishedPicture(float r, float x0, int n, const AssoColors& colours,
                                         QSize size);
