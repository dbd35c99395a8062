#include "common/gui/PlotOverlay.h"

#include "common/core/AnimationSpeed.h"
#include "common/picture/PlotNodePick.h"
#include "common/picture/PlotPainter.h"

#include <QPushButton>
#include <QTimer>
#include <algorithm>

namespace quillon
{

void drawPlotValueLabels(QPainter* painter, float yMin, float yMax, int viewHeight)
{
    std::vector<PlotOverlayItem> overlay;
    for (PlotText& label : plotValueLabels(yMin, yMax, viewHeight)) {
        overlay.emplace_back(std::move(label));
    }
    paintPlotOverlay(painter, overlay, QSize());
}

void drawPlotNodeRing(QPainter* painter, QPointF centre)
{
    paintPlotOverlay(painter, {plotNodeRing(centre)}, QSize());
}

void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer)
{
    level = std::clamp(level, minLevel, maxLevel);
    faster->setEnabled(level < maxLevel);
    slower->setEnabled(level > minLevel);
    timer->setInterval(animationIntervalMs(level));
}

} // namespace quillon
