#pragma once

#include "common/core/PlotXWindow.h"
#include "sine/engine/SineApproaches.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

// What the curves show: each selected approach's partial sums, or in error mode their errors
// against the library sine.
struct SinePlotContent {
    const SineResults* results;
    // Approach k (0 = Func1) is drawn.
    std::array<bool, kSineApproachCount> enabled;
    bool errorMode;

    // Approach k's plotted quantity at index i: the partial sum, or single(sum - library sine)
    // in error mode; nothing from the series' first non-zero code on or past its sums.
    std::optional<float> plotted(int k, int i) const;
};

// The displayed indices below `count` at which approach k has a plotted point, in order: the
// walk over the window stops at the series' first non-zero code.
std::vector<int> sinePlottedIndices(const SinePlotContent& content,
                                    const quillon::PlotXWindow& window, int count, int k);

// The Y range (yLow, yHigh) for the plotted points of the displayed indices below `count`
// whose x lies within xLeft..xRight. Value mode starts from the library sine, error mode from
// the first plotted error; a span below 1e-11 is widened to 2e-11 around the minimum; the
// range is then 1.2 times the span about its centre (at least the neighbouring singles of a
// single value, where single precision cannot widen it by 1e-11). Nothing in error mode when
// no point is plotted (the caller keeps its range).
std::optional<std::pair<float, float>> sineFitYRange(const SinePlotContent& content,
                                                     const quillon::PlotXWindow& window, int count,
                                                     float xLeft, float xRight);

// The largest |partial sum - library sine| (each difference in double, the running maximum in
// single) over the selected approaches with code 0 at the last index whose x does not exceed
// xRight; nothing when no approach takes part or every index up to count - 1 fits.
std::optional<float> sineLargestError(const SinePlotContent& content,
                                      const quillon::PlotXWindow& window, int count, float xLeft,
                                      float xRight);

// Whether a selected approach's series stopped among the `step` indices just before the last
// index whose x lies within the plot: the animation pauses itself there.
bool sineStoppedBeforeCurrent(const SinePlotContent& content, const quillon::PlotXWindow& window,
                              int count, float xLeft, float xRight);

// What a click at (x, y) in a view of width x height hits in the legend: three columns and five
// rows in the bottom quarter; row 0 holds the library sine, "Select all" and "Select none",
// rows 1..4 the approaches three to a row.
struct SineLegendHit {
    enum Kind { None, Library, SelectAll, SelectNone, Approach } kind = None;
    int approach = -1; // 0 = Func1, for Approach
};
SineLegendHit sineLegendAt(float x, float y, int width, int height);

// Where the top-left corner of a block of text lines goes when it is shown beside the cursor
// at (x, y) in a view of viewWidth x viewHeight: right of and below the cursor where the block
// fits there, otherwise left of or above it, and in any case moved inside the view, so that no
// line is cut at an edge (a block larger than the view starts at the view's top-left corner).
struct SineTextBlockCorner {
    float left;
    float top;
};
SineTextBlockCorner sineTextBlockBesideCursor(float x, float y, float blockWidth, float blockHeight,
                                              int viewWidth, int viewHeight);
