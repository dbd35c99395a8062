#include "assoc/engine/AssoColorPresets.h"

#include <gtest/gtest.h>

using quillon::ColorTriple;

TEST(AssoColorPresets, TableAsPublished)
{
    const auto& presets = assoColorPresets();
    EXPECT_EQ(presets[0], (ColorTriple{255, 128, 128}));
    EXPECT_EQ(presets[7], (ColorTriple{255, 128, 255}));
    EXPECT_EQ(presets[8], (ColorTriple{255, 0, 0}));
    EXPECT_EQ(presets[29], (ColorTriple{0, 0, 160}));
    EXPECT_EQ(presets[40], (ColorTriple{160, 0, 0}));
    EXPECT_EQ(presets[38], (ColorTriple{64, 0, 64}));
    EXPECT_EQ(presets[46], (ColorTriple{64, 0, 64}));
    EXPECT_EQ(presets[47], (ColorTriple{255, 255, 255}));
}

TEST(AssoColorPresets, GridGeometry)
{
    // 400 x 440: cells 50 x 20, the grid starts at floor(20 * 8.15) = 163.
    EXPECT_EQ(assoPresetAt(0, 163, 400, 440), 0);
    EXPECT_EQ(assoPresetAt(399, 163, 400, 440), 7);
    EXPECT_EQ(assoPresetAt(60, 183, 400, 440), 9);
    EXPECT_EQ(assoPresetAt(399, 282, 400, 440), 47);
    EXPECT_EQ(assoPresetAt(10, 283, 400, 440), -1);
    EXPECT_EQ(assoPresetAt(400, 170, 400, 440), -1);
    EXPECT_EQ(assoPresetAt(10, 100, 400, 440), -1);
    // Integer division truncates towards zero: just above the grid still counts as row 0.
    EXPECT_EQ(assoPresetAt(10, 150, 400, 440), 0);
}

TEST(AssoColorPresets, TinyWindowsSelectNothing)
{
    EXPECT_EQ(assoPresetAt(0, 0, 7, 21), -1);
}
