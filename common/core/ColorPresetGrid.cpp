#include "common/core/ColorPresetGrid.h"

namespace quillon
{

const std::array<ColorTriple, kPresetColorCount>& presetColors()
{
    // The first colour of the sixth row is (160, 0, 0) and (64, 0, 64) appears twice; both are
    // part of the palette.
    static const std::array<ColorTriple, kPresetColorCount> presets = {{
        {255, 128, 128}, {255, 255, 128}, {128, 255, 128}, {0, 255, 128},   {128, 255, 255},
        {0, 128, 255},   {255, 128, 192}, {255, 128, 255}, {255, 0, 0},     {255, 255, 0},
        {128, 255, 0},   {0, 255, 64},    {0, 255, 255},   {0, 128, 192},   {128, 128, 192},
        {255, 0, 255},   {128, 64, 64},   {255, 128, 64},  {0, 255, 0},     {0, 128, 128},
        {0, 64, 128},    {128, 128, 255}, {128, 0, 64},    {255, 0, 128},   {128, 0, 0},
        {255, 128, 0},   {0, 128, 0},     {0, 128, 64},    {0, 0, 255},     {0, 0, 160},
        {128, 0, 128},   {128, 0, 255},   {64, 0, 0},      {128, 64, 0},    {0, 64, 0},
        {0, 64, 64},     {0, 0, 128},     {0, 0, 64},      {64, 0, 64},     {64, 0, 128},
        {160, 0, 0},     {128, 128, 0},   {128, 128, 64},  {128, 128, 128}, {64, 128, 128},
        {192, 192, 192}, {64, 0, 64},     {255, 255, 255}, {0, 0, 0},       {16, 16, 16},
        {32, 32, 32},    {48, 48, 48},    {80, 80, 80},    {96, 96, 96},    {160, 160, 160},
        {224, 224, 224},
    }};
    return presets;
}

int presetCellWidth(const ColorPresetGrid& grid, int windowWidth)
{
    return windowWidth / grid.columns;
}

int presetCellHeight(const ColorPresetGrid& grid, int windowHeight)
{
    return int(double(windowHeight) / grid.heightInCells);
}

int presetGridTop(const ColorPresetGrid& grid, int windowHeight)
{
    return int(double(presetCellHeight(grid, windowHeight)) * grid.topInCells);
}

PresetCell presetCell(const ColorPresetGrid& grid, int preset, int windowWidth, int windowHeight)
{
    const int width = presetCellWidth(grid, windowWidth);
    const int height = presetCellHeight(grid, windowHeight);
    return {preset % grid.columns * width,
            presetGridTop(grid, windowHeight) + preset / grid.columns * height, width, height};
}

int presetAt(const ColorPresetGrid& grid, int x, int y, int windowWidth, int windowHeight)
{
    const int cellWidth = presetCellWidth(grid, windowWidth);
    const int cellHeight = presetCellHeight(grid, windowHeight);
    if (cellWidth <= 0 || cellHeight <= 0) {
        return -1;
    }
    const int column = x / cellWidth;
    const int row = (y - presetGridTop(grid, windowHeight)) / cellHeight;
    const int preset = column + grid.columns * row;
    if (column < 0 || column >= grid.columnBound || row < 0 || row >= grid.rows ||
        preset >= grid.columns * grid.rows) {
        return -1;
    }
    return preset;
}

} // namespace quillon
