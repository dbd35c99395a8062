#pragma once

#include "common/picture/PlotPicture.h"

#include <QPointF>
#include <functional>
#include <optional>
#include <vector>

namespace quillon
{

// One node of a plotting tab's curves.
struct PlotNode {
    int curve;
    int index;

    friend bool operator==(const PlotNode& a, const PlotNode& b)
    {
        return a.curve == b.curve && a.index == b.index;
    }
};

// The drawn node nearest `position` (view pixels) within `radius` pixels, over curves 0 ..
// curveCount - 1: `drawnIndices(curve)` lists a curve's drawn nodes (none for a hidden curve),
// `pixelOf(curve, index)` places one in the view. Of nodes equally near, the earlier curve's
// is taken.
std::optional<PlotNode> nearestPlotNode(QPointF position, float radius, int curveCount,
                                        const std::function<std::vector<int>(int)>& drawnIndices,
                                        const std::function<QPointF(int, int)>& pixelOf);

// The black ring that marks the node the inspector shows.
PlotRing plotNodeRing(QPointF centre);

} // namespace quillon
