#pragma once

#include "common/picture/PlotPicture.h"

class QPainter;

namespace quillon
{

// The OpenGL renderer of a plot description's background, for the screen: a white clear, the
// orthographic box, then each stroke as one glBegin/glEnd run at its depth with the depth
// test on, every OpenGL state restored afterwards.
void drawPlotBackgroundGl(QPainter* painter, const PlotBackground& background);

} // namespace quillon
