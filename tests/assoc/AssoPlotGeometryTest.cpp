#include "assoc/engine/AssoPlotGeometry.h"
#include "tests/assoc/AssoTestSupport.h"

#include <gtest/gtest.h>

namespace
{

AssoPlotContent contentOf(const AssoSequences& sequences, int n, bool compare = false, int base = 0)
{
    return {&sequences, {true, true, true, true, true}, compare, base, n};
}

} // namespace

TEST(AssoPlotGeometry, YRangeCoversTheVisibleValues)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 300);
    quillon::PlotXWindow window;
    window.animationPosition = 100;
    const auto range = assoFitYRange(contentOf(sequences, 300), window, -1.5f, 1.5f);
    ASSERT_TRUE(range.has_value());
    float low = 10.0f;
    float high = -10.0f;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        for (int n = 0; n <= 20; ++n) {
            low = std::min(low, sequences.values[k][n]);
            high = std::max(high, sequences.values[k][n]);
        }
    }
    EXPECT_EQ(range->first, low);
    EXPECT_EQ(range->second, high);
}

TEST(AssoPlotGeometry, ComparingWithTheBaseMakesItZero)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 300);
    const AssoPlotContent content = contentOf(sequences, 300, true, 2);
    for (int n = 0; n < 300; ++n) {
        EXPECT_EQ(*content.plotted(2, n), 0.0f);
    }
    EXPECT_EQ(*content.plotted(0, 100), sequences.values[0][100] - sequences.values[2][100]);
}

TEST(AssoPlotGeometry, CurvesStopAtTheFirstError)
{
    const AssoSequences sequences = computed(3.01f, 0.7f, 300);
    const AssoPlotContent content = contentOf(sequences, 300);
    EXPECT_EQ(content.curveEnd(0), 43);
    EXPECT_FALSE(content.plotted(0, 43).has_value());
    EXPECT_TRUE(content.plotted(0, 44).has_value()) << "later entries are valid again";
    // Comparing against order 1 stops every curve where order 1 stops.
    EXPECT_EQ(contentOf(sequences, 300, true, 0).curveEnd(4), 43);
}

TEST(AssoPlotGeometry, NoQualifyingNodeGivesNoRange)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 300);
    AssoPlotContent content = contentOf(sequences, 300);
    content.enabled = {false, false, false, false, false};
    EXPECT_FALSE(assoFitYRange(content, quillon::PlotXWindow{}, -1.5f, 1.5f).has_value());
}

TEST(AssoColorPresetGrid, ClicksPickTheCellUnderThem)
{
    // 400 x 440: cells 50 x 20, the grid starts at floor(20 * 8.15) = 163.
    const quillon::ColorPresetGrid& grid = kAssoColorPresetGrid;
    EXPECT_EQ(quillon::presetAt(grid, 0, 163, 400, 440), 0);
    EXPECT_EQ(quillon::presetAt(grid, 399, 163, 400, 440), 7);
    EXPECT_EQ(quillon::presetAt(grid, 60, 183, 400, 440), 9);
    EXPECT_EQ(quillon::presetAt(grid, 399, 282, 400, 440), 47);
    EXPECT_EQ(quillon::presetAt(grid, 10, 283, 400, 440), -1);
    EXPECT_EQ(quillon::presetAt(grid, 400, 170, 400, 440), -1);
    EXPECT_EQ(quillon::presetAt(grid, 10, 100, 400, 440), -1);
    // Integer division truncates towards zero: just above the grid still counts as row 0.
    EXPECT_EQ(quillon::presetAt(grid, 10, 150, 400, 440), 0);
    // 405 wide: the five pixels right of the last column pick nothing.
    EXPECT_EQ(quillon::presetAt(grid, 402, 170, 405, 440), -1);
}
