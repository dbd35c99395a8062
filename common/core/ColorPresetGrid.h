#pragma once

#include "common/core/ColorTriple.h"

#include <array>

namespace quillon
{

// The preset colours every colour map offers, row by row in rows of eight: six rows of
// colours, then a row of greys from black to near white.
constexpr int kPresetColorCount = 56;
const std::array<ColorTriple, kPresetColorCount>& presetColors();

// Where a colour map draws its grid of preset colours: `columns` cells across the window's
// width (width / columns pixels each) and `rows` rows of int(height / heightInCells) pixels,
// starting int(cell height * topInCells) pixels below the top. Preset number = column +
// columns * row.
struct ColorPresetGrid {
    int columns;
    int rows;
    double heightInCells;
    double topInCells;
    // Clicks are taken in the columns below this bound. One more than `columns` also takes the
    // few pixels right of the last cell (left by the integer division), as the first preset
    // of the next row.
    int columnBound;
};

struct PresetCell {
    int x;
    int y;
    int width;
    int height;
};

int presetCellWidth(const ColorPresetGrid& grid, int windowWidth);
int presetCellHeight(const ColorPresetGrid& grid, int windowHeight);
int presetGridTop(const ColorPresetGrid& grid, int windowHeight);

// The cell preset number `preset` is drawn in.
PresetCell presetCell(const ColorPresetGrid& grid, int preset, int windowWidth, int windowHeight);

// The preset a click at (x, y) picks, or -1. Row and column come from integer divisions that
// truncate towards zero, so the band of one cell height just above the grid counts as row 0.
int presetAt(const ColorPresetGrid& grid, int x, int y, int windowWidth, int windowHeight);

} // namespace quillon
