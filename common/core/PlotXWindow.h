#pragma once

#include <utility>

namespace quillon
{

// The window of indices a plotting tab shows: start..end, every step-th, sliding in from the
// right while the animation has revealed fewer nodes than the window holds.
struct PlotXWindow {
    int start = 0;
    int end = 20;
    int step = 1;
    int animationPosition = 0;

    bool displays(int n) const { return start <= n && n <= end && (n - start) % step == 0; }
    // The slide-in is over once as many ticks as the window has nodes have passed.
    bool slideInDone() const { return step * animationPosition >= end - start + 1; }
};

// Moves the window's start to `value` for a plot of `count` indices; returns false, changing
// nothing, when the move is refused. With keepWidth the end moves along, refused when it would
// pass count - 1; otherwise the start must stay below count - 1.
bool plotMoveStart(PlotXWindow& window, int value, int count, bool keepWidth);

// Moves the window's end to `value`; returns false, changing nothing, when refused. With
// keepWidth the start moves along, refused when it would fall below 0; otherwise the end must
// lie above the step size (compared with the step, not with the start).
bool plotMoveEnd(PlotXWindow& window, int value, bool keepWidth);

// The horizontal scene coordinate of index n, in single precision, for a plot spanning
// xMin..xMax.
float plotNodeX(const PlotXWindow& window, int n, float xMin, float xMax);

// The last index c < count (ignoring the step) whose x does not exceed xMax, or -1.
int plotCurrentNode(const PlotXWindow& window, int count, float xMin, float xMax);

// A zoom by dragging from press to release (view pixels) in a view of the given size.
struct PlotZoomRequest {
    float pressX, pressY, releaseX, releaseY;
    int width, height;
};

struct PlotZoomState {
    int start;
    int end;
    float yMin;
    float yMax;
};

// The window and Y range that a drag selects, from the current window and range, for a plot
// of `count` indices.
PlotZoomState plotZoom(const PlotXWindow& window, float yMin, float yMax, int count, float xMin,
                       float xMax, const PlotZoomRequest& request);

// The plots' horizontal grid: 21 values from yMin to yMax in twentieths, centred on the middle.
constexpr int kPlotGridLines = 21;
float plotGridValue(int j, float yMin, float yMax);

// The legend occupies the bottom quarter of the view in five rows; the row under y, or -1.
int plotLegendRowAt(float y, int height);

} // namespace quillon
