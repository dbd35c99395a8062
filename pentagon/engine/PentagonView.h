#pragma once

#include "common/core/ColorPresetGrid.h"
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

// The colour map's preset grid: all 56 presets in 8 columns and 7 rows, each int(h / 17.5)
// pixels high for a window h high, starting int(3.9 cell heights) below the top. A click right
// of the last column (column 8) picks the first preset of the next row.
constexpr quillon::ColorPresetGrid kPentagonColorPresetGrid{8, 7, 17.5, 3.9, 9};

// The grey (all three components) of a drawn pentagon `age` steps older than the newest, for
// ages from 1: 8, 16, ... 120, then 128 from age 16 on.
int pentagonGreyForAge(int age);
