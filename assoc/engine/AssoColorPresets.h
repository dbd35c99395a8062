#pragma once

#include "common/core/ColorTriple.h"

#include <array>

constexpr int kAssoPresetColumns = 8;
constexpr int kAssoPresetRows = 6;

// The 48 preset colours of the colour map, row by row (preset number = column + 8 * row).
const std::array<quillon::ColorTriple, kAssoPresetColumns * kAssoPresetRows>& assoColorPresets();

// The preset under a click at (x, y) in a colour-map window of the given size, or -1. The
// grid starts 8.15 cell heights below the top; a cell is width / 8 wide and height / 22 high;
// the divisions are integer divisions that truncate towards zero.
int assoPresetAt(int x, int y, int width, int height);
