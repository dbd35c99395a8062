#pragma once

#include "common/core/ColorTriple.h"
#include "common/picture/PlotPicture.h"

#include <QColor>

namespace quillon
{

// The colour a triple is drawn in. OpenGL clamps each component divided by 255 to 0..1, so a
// component outside 0..255 (a configuration file may hold one) is clamped here the same way:
// a legend square then shows exactly the colour of its curve.
QColor toQColor(const ColorTriple& color);

// The colour a triple gives OpenGL: each component divided by 255.
PlotRgb toPlotRgb(const ColorTriple& color);

} // namespace quillon
