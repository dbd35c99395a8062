#pragma once

// The overlays' shared style lives with the picture library; the animation panels' speed
// control is the widgets' own.
#include "common/picture/PlotStyle.h"

class QPushButton;
class QTimer;

namespace quillon
{

// Clamps `level` into minLevel..maxLevel, enables the button that can still move it each way
// and sets the timer's interval for it.
void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer);

} // namespace quillon
