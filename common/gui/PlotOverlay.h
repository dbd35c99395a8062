#pragma once

#include "common/picture/PlotStyle.h"

#include <QPointF>

class QPainter;
class QPushButton;
class QTimer;

namespace quillon
{

// The 21 grid values' labels (plotValueLabels), painted.
void drawPlotValueLabels(QPainter* painter, float yMin, float yMax, int viewHeight);

// The inspector's ring (plotNodeRing), painted.
void drawPlotNodeRing(QPainter* painter, QPointF centre);

// Clamps `level` into minLevel..maxLevel, enables the button that can still move it each way
// and sets the timer's interval for it.
void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer);

} // namespace quillon
