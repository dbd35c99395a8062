#pragma once

#include "pentagon/engine/PentagonEngine.h"

#include <vector>

// The range a rectangle drag zooms to. The release corner (rx, ry), in view pixels, is clamped
// to the view; the press corner is not. Each pair of bounds is ordered.
PentagonRange pentagonZoomToRectangle(const PentagonRange& range, float pressX, float pressY,
                                      float releaseX, float releaseY, int viewWidth,
                                      int viewHeight);

// The range fitted to the pentagons drawn: a box over all their points (the current range when
// none is drawn), made square about its centre and 10% larger.
PentagonRange pentagonFittedRange(const PentagonRange& current,
                                  const std::vector<PentagonPoints>& drawn);
