#include "common/gui/PlotOverlay.h"

#include "common/core/AnimationSpeed.h"

#include <QPushButton>
#include <QTimer>
#include <algorithm>

namespace quillon
{

void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer)
{
    level = std::clamp(level, minLevel, maxLevel);
    faster->setEnabled(level < maxLevel);
    slower->setEnabled(level > minLevel);
    timer->setInterval(animationIntervalMs(level));
}

} // namespace quillon
