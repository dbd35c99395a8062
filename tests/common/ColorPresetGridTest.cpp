#include "common/core/ColorPresetGrid.h"

#include <gtest/gtest.h>

using quillon::ColorTriple;

TEST(ColorPresetGrid, PaletteAsPublished)
{
    const auto& presets = quillon::presetColors();
    EXPECT_EQ(presets[0], (ColorTriple{255, 128, 128}));
    EXPECT_EQ(presets[7], (ColorTriple{255, 128, 255}));
    EXPECT_EQ(presets[8], (ColorTriple{255, 0, 0}));
    EXPECT_EQ(presets[29], (ColorTriple{0, 0, 160}));
    EXPECT_EQ(presets[40], (ColorTriple{160, 0, 0}));
    EXPECT_EQ(presets[38], (ColorTriple{64, 0, 64}));
    EXPECT_EQ(presets[46], (ColorTriple{64, 0, 64}));
    EXPECT_EQ(presets[47], (ColorTriple{255, 255, 255}));
}

TEST(ColorPresetGrid, LastRowIsGreysFromBlack)
{
    const auto& presets = quillon::presetColors();
    EXPECT_EQ(presets[48], (ColorTriple{0, 0, 0}));
    for (int preset = 49; preset < quillon::kPresetColorCount; ++preset) {
        const ColorTriple& grey = presets[size_t(preset)];
        EXPECT_EQ(grey.green, grey.red) << preset;
        EXPECT_EQ(grey.blue, grey.red) << preset;
        EXPECT_GT(grey.red, presets[size_t(preset - 1)].red) << preset;
    }
}

TEST(ColorPresetGrid, CellsStartBelowTheTopAndSpanTheWidth)
{
    // 4 columns, 2 rows, cells int(100 / 10) = 10 high from int(10 * 2.5) = 25 down.
    const quillon::ColorPresetGrid grid{4, 2, 10.0, 2.5, 4};
    const quillon::PresetCell cell = quillon::presetCell(grid, 6, 83, 100);
    EXPECT_EQ(cell.x, 40);
    EXPECT_EQ(cell.y, 35);
    EXPECT_EQ(cell.width, 20);
    EXPECT_EQ(cell.height, 10);
    EXPECT_EQ(quillon::presetAt(grid, 40, 35, 83, 100), 6);
    EXPECT_EQ(quillon::presetAt(grid, 59, 44, 83, 100), 6);
    EXPECT_EQ(quillon::presetAt(grid, 60, 44, 83, 100), 7);
    EXPECT_EQ(quillon::presetAt(grid, 80, 30, 83, 100), -1);
    EXPECT_EQ(quillon::presetAt(grid, 10, 45, 83, 100), -1);
}

TEST(ColorPresetGrid, TinyWindowsSelectNothing)
{
    const quillon::ColorPresetGrid grid{8, 6, 22.0, 8.15, 8};
    EXPECT_EQ(quillon::presetAt(grid, 0, 0, 7, 21), -1);
}
