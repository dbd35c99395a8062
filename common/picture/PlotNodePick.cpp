#include "common/picture/PlotNodePick.h"

#include <cmath>

namespace quillon
{

std::optional<PlotNode> nearestPlotNode(QPointF position, float radius, int curveCount,
                                        const std::function<std::vector<int>(int)>& drawnIndices,
                                        const std::function<QPointF(int, int)>& pixelOf)
{
    std::optional<PlotNode> nearest;
    double nearestDistance = radius;
    for (int curve = 0; curve < curveCount; ++curve) {
        for (const int index : drawnIndices(curve)) {
            const QPointF offset = pixelOf(curve, index) - position;
            const double distance = std::hypot(offset.x(), offset.y());
            // On a tie the earlier curve wins: it is drawn first, so it covers the later one.
            if (nearest ? distance < nearestDistance : distance <= nearestDistance) {
                nearestDistance = distance;
                nearest = PlotNode{curve, index};
            }
        }
    }
    return nearest;
}

PlotRing plotNodeRing(QPointF centre)
{
    return {centre, 7.0, QPen(Qt::black, 2)};
}

} // namespace quillon
