#pragma once

#include <QFont>
#include <QRectF>

class QPainter;
class QPushButton;
class QTimer;

namespace quillon
{

// What the plotting tabs' foreground passes and animation panels share.

// The overlays' font: "times", 10 point, bold.
QFont plotOverlayFont();

// The square of an error icon above the node at view x `nodePixelX`: as wide as a fifteenth of
// the view or a legend row, whichever is smaller, its top at a fifth of the height plus half a
// side.
QRectF plotErrorIconRect(float nodePixelX, int viewWidth, int viewHeight);

// The 21 grid values from yMin to yMax written with "%.2e" at x = 0, each centred on its height.
void drawPlotValueLabels(QPainter* painter, float yMin, float yMax, int viewHeight);

// Clamps `level` into minLevel..maxLevel, enables the button that can still move it each way
// and sets the timer's interval for it.
void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer);

} // namespace quillon
