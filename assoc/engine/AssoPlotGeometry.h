#pragma once

#include "assoc/engine/AssoRecurrence.h"

#include <array>
#include <optional>

// The window of iterations the plot shows: iterations start..end, every step-th, sliding in
// from the right while the animation position is small.
struct AssoXWindow {
    int start = 0;
    int end = 20;
    int step = 1;
    int animationPosition = 0;

    bool displays(int n) const { return start <= n && n <= end && (n - start) % step == 0; }
    // The slide-in is over once as many ticks as the window has nodes have passed.
    bool slideInDone() const { return step * animationPosition >= end - start + 1; }
};

// The horizontal scene coordinate of iteration n, in single precision, for a plot spanning
// xMin..xMax.
float assoNodeX(const AssoXWindow& window, int n, float xMin, float xMax);

// What the curves show: the values, or their differences to a base order.
struct AssoPlotContent {
    const AssoSequences* sequences;
    std::array<bool, kAssoOrderCount> enabled;
    bool compare;
    int base;
    int n;

    // Order k's plotted quantity at entry i (the value, or its difference to the base order
    // rounded to single), or nothing from the first error on (of k, or of the base order when
    // comparing) or past the end of a sequence.
    std::optional<float> plotted(int k, int i) const;
    // The first index at which order k's curve stops.
    int curveEnd(int k) const;
};

// The smallest and largest plotted quantity over the enabled orders and displayed nodes that
// lie within xMin..xMax; nothing when no node qualifies.
std::optional<std::pair<float, float>>
assoFitYRange(const AssoPlotContent& content, const AssoXWindow& window, float xMin, float xMax);

// The last iteration c (ignoring the step) whose x does not exceed xMax, or -1.
int assoCurrentNode(const AssoXWindow& window, int n, float xMin, float xMax);

// A zoom by dragging from press to release (view pixels) in a view of the given size.
struct AssoZoomRequest {
    float pressX, pressY, releaseX, releaseY;
    int width, height;
};

struct AssoZoomState {
    int start;
    int end;
    float yMin;
    float yMax;
};

// The window and Y range that a drag selects, from the current window and range.
AssoZoomState assoZoom(const AssoXWindow& window, float yMin, float yMax, int n, float xMin,
                       float xMax, const AssoZoomRequest& request);

// The legend occupies the bottom quarter of the view in five rows; the row under y, or -1.
int assoLegendRowAt(float y, int height);
