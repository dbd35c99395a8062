#pragma once

#include "common/picture/PlotNodePick.h"
#include "pentagon/engine/PentagonEngine.h"
#include "pentagon/engine/PentagonFiles.h"

#include <QRectF>
#include <optional>
#include <vector>

// Everything a frame of the Pentagon plot shows, as the tab's scene holds it: the history's
// pentagons (or the points of one being entered), what is drawn of them and how, the drag and
// the inspector's ring. The defaults are the tab's at start-up: the Default pentagon with
// epsilon 0.1 alone, fitted, in the default colours, with no labels or grid lines.
struct PentagonPlotState {
    // The valid pentagons of the history, oldest first. Every entry of the history is valid
    // (a failed step never enters it), so a pentagon's age counts from the end of this list.
    std::vector<PentagonPoints> pentagons = PentagonEngine().validPentagons();
    // Manual entry before the fifth point: only the points entered so far are drawn.
    bool enteringPoints = false;
    PentagonPoints enteredPoints;
    int enteredCount = 0;
    // Selection mode draws only the pentagons whose entry in `selected` is true.
    bool selectionMode = false;
    std::vector<bool> selected;
    PentagonColorSettings colours;
    PentagonRange range = {-0.055f, 1.155f, -0.055f, 1.155f};
    bool showXIndices = false;
    bool showYIndices = false;
    bool showXAxis = false;
    bool showYAxis = false;
    // The drag's rectangle, from the press corner to the pointer, while a left press is held.
    std::optional<QRectF> rubberBand;
    // The vertex the inspector shows: curve = index into `pentagons`, index = point 1 .. 5.
    std::optional<quillon::PlotNode> markedVertex;
    // The status of the last step begun; a failure's message is shown over the plot.
    int lastStatus = StatusOk;

    // Whether pentagon `n` of the list is drawn.
    bool isDrawn(size_t n) const { return !selectionMode || (n < selected.size() && selected[n]); }
};

// The state of a view of `engine`'s history in `colours`: every pentagon drawn, the range
// fitted to them as the engine fits it after each step, the last step's status, and the
// start-up view options.
PentagonPlotState pentagonPlotStateFor(const PentagonEngine& engine,
                                       const PentagonColorSettings& colours);
