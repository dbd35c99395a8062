#pragma once

#include "common/core/ColorPresetGrid.h"

class QPainter;

namespace quillon
{

// Fills every cell of a colour map's preset grid with its colour and frames it in black.
void paintColorPresetGrid(QPainter& painter, const ColorPresetGrid& grid, int windowWidth,
                          int windowHeight);

} // namespace quillon
