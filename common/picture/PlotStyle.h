#pragma once

#include "common/picture/PlotPicture.h"

#include <QFont>
#include <QRectF>
#include <vector>

namespace quillon
{

// What the plotting tabs' overlays share.

// The overlays' font: "times", 10 point, bold.
QFont plotOverlayFont();

// The square of an error icon above the node at view x `nodePixelX`: as wide as a fifteenth of
// the view or a legend row, whichever is smaller, its top at a fifth of the height plus half a
// side.
QRectF plotErrorIconRect(float nodePixelX, int viewWidth, int viewHeight);

// The 21 grid values from yMin to yMax written with "%.2e" at x = 0, each centred on its height.
std::vector<PlotText> plotValueLabels(float yMin, float yMax, int viewHeight);

} // namespace quillon
