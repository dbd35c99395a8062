#pragma once

#include "common/picture/PlotPicture.h"
#include "sine/engine/SineFiles.h"
#include "sine/picture/SinePlotState.h"

#include <QSize>
#include <vector>

// The Sine plot as a plot description, laid out for a view of `viewSize`: in the plot area the
// dotted reference lines, the error markers, each selected approach's trend lines, partial-sum
// curve and drop lines (or the same for its errors), and the library line; over it the error
// icons, index and value labels, the error list under the pointer, the rubber band, the
// legend, the largest-error line and the inspector's ring. The state's pointer and rubber band
// are in pixels of a view of the state's own size and are scaled to `viewSize`. A file shows
// the error icons whatever the blink, and no rubber band.
quillon::PlotPicture describeSinePlot(const SinePlotState& state, QSize viewSize,
                                      quillon::PictureUse use);

// The two parts of the description for a state laid out for its own view, for the screen's
// two passes: the plot area, and the overlay in the view's pixels.
quillon::PlotBackground sinePlotBackground(const SinePlotState& state);
std::vector<quillon::PlotOverlayItem> sinePlotOverlay(const SinePlotState& state,
                                                      quillon::PictureUse use);

// What the tab shows for sin(degrees) with `terms` terms once its animation has run to the
// end, with the whole run in the window (indices 0 to terms - 1, all slid in, step 1), the
// Y range fitted to it, the start-up selections and view options and the curves in `colours`,
// in a view of `viewSize`.
quillon::PlotPicture sineFinishedPicture(int degrees, int terms, const SineColors& colours,
                                         QSize viewSize);
