#include "assoc/engine/AssoColorPresets.h"

#include <cmath>

const std::array<quillon::ColorTriple, kAssoPresetColumns * kAssoPresetRows>& assoColorPresets()
{
    // The first colour of the last row is (160, 0, 0) and (64, 0, 64) appears twice; both are
    // part of the palette.
    static const std::array<quillon::ColorTriple, kAssoPresetColumns* kAssoPresetRows> presets = {{
        {255, 128, 128}, {255, 255, 128}, {128, 255, 128}, {0, 255, 128},   {128, 255, 255},
        {0, 128, 255},   {255, 128, 192}, {255, 128, 255}, {255, 0, 0},     {255, 255, 0},
        {128, 255, 0},   {0, 255, 64},    {0, 255, 255},   {0, 128, 192},   {128, 128, 192},
        {255, 0, 255},   {128, 64, 64},   {255, 128, 64},  {0, 255, 0},     {0, 128, 128},
        {0, 64, 128},    {128, 128, 255}, {128, 0, 64},    {255, 0, 128},   {128, 0, 0},
        {255, 128, 0},   {0, 128, 0},     {0, 128, 64},    {0, 0, 255},     {0, 0, 160},
        {128, 0, 128},   {128, 0, 255},   {64, 0, 0},      {128, 64, 0},    {0, 64, 0},
        {0, 64, 64},     {0, 0, 128},     {0, 0, 64},      {64, 0, 64},     {64, 0, 128},
        {160, 0, 0},     {128, 128, 0},   {128, 128, 64},  {128, 128, 128}, {64, 128, 128},
        {192, 192, 192}, {64, 0, 64},     {255, 255, 255},
    }};
    return presets;
}

int assoPresetAt(int x, int y, int width, int height)
{
    const int cellWidth = width / kAssoPresetColumns;
    const int cellHeight = height / 22;
    if (cellWidth <= 0 || cellHeight <= 0) {
        return -1;
    }
    const int gridTop = int(std::floor(cellHeight * 8.15));
    // Integer divisions as the grid has always computed them: they truncate towards zero, so
    // the band of one cell height just above the grid also counts as row 0.
    const int column = x / cellWidth;
    const int row = (y - gridTop) / cellHeight;
    if (column < 0 || column >= kAssoPresetColumns || row < 0 || row >= kAssoPresetRows) {
        return -1;
    }
    return column + kAssoPresetColumns * row;
}
