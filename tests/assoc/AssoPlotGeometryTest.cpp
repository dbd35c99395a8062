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

TEST(AssoPlotGeometry, DisplayedNodesFollowTheWindowAndStep)
{
    AssoXWindow window{5, 25, 5, 0};
    EXPECT_TRUE(window.displays(5));
    EXPECT_TRUE(window.displays(25));
    EXPECT_FALSE(window.displays(6));
    EXPECT_FALSE(window.displays(0));
    EXPECT_FALSE(window.displays(30));
}

TEST(AssoPlotGeometry, NodesSlideInFromTheRight)
{
    AssoXWindow window;
    window.animationPosition = 1;
    // w = 3 / 20 = 0.15 (in single precision); the first node enters at the right edge.
    const float w = 3.0f / 20.0f;
    EXPECT_EQ(assoNodeX(window, 0, -1.5f, 1.5f), 1.5f - w);
    window.animationPosition = 21;
    EXPECT_TRUE(window.slideInDone());
    EXPECT_EQ(assoNodeX(window, 0, -1.5f, 1.5f), -1.5f);
    EXPECT_EQ(assoNodeX(window, 20, -1.5f, 1.5f), w * 20.0f + -1.5f);
}

TEST(AssoPlotGeometry, YRangeCoversTheVisibleValues)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 300);
    AssoXWindow window;
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
    EXPECT_FALSE(assoFitYRange(content, AssoXWindow{}, -1.5f, 1.5f).has_value());
}

TEST(AssoPlotGeometry, CurrentNodeIsTheLastWithinTheRightEdge)
{
    AssoXWindow window;
    window.animationPosition = 21;
    EXPECT_EQ(assoCurrentNode(window, 300, -1.5f, 1.5f), 20);
    // Three ticks in, node 3 sits exactly on the right edge.
    window.animationPosition = 3;
    EXPECT_EQ(assoCurrentNode(window, 300, -1.5f, 1.5f), 3);
}

TEST(AssoPlotGeometry, ZoomSelectsTheNodesInsideTheRectangle)
{
    AssoXWindow window;
    window.animationPosition = 21;
    // View 800 x 600; drag over the middle half horizontally and vertically.
    const AssoZoomState zoomed =
        assoZoom(window, -1.5f, 1.5f, 300, -1.5f, 1.5f, {200, 150, 600, 450, 800, 600});
    EXPECT_EQ(zoomed.start, 5);
    EXPECT_EQ(zoomed.end, 16);
    EXPECT_FLOAT_EQ(zoomed.yMin, -0.75f);
    EXPECT_FLOAT_EQ(zoomed.yMax, 0.75f);
}

TEST(AssoPlotGeometry, ZoomPastTheLastNodeKeepsTheOldEnd)
{
    AssoXWindow window;
    window.animationPosition = 21;
    // Everything to the right of x(20) at the right edge: no node beyond, so the end is the
    // old end plus one.
    const AssoZoomState zoomed =
        assoZoom(window, -1.5f, 1.5f, 21, -1.5f, 1.5f, {799, 100, 800, 200, 800, 600});
    EXPECT_EQ(zoomed.end, 20) << "old end 20 is N - 1 already";
    const AssoZoomState wider =
        assoZoom(window, -1.5f, 1.5f, 300, -1.5f, 1.5f, {799.5f, 100, 900, 200, 800, 600});
    EXPECT_EQ(wider.end, 21);
    EXPECT_LT(wider.start, wider.end);
}

TEST(AssoPlotGeometry, LegendRowsShareTheBottomQuarter)
{
    // h = 600: top 450, rows of 150 / 5 = 30 pixels.
    EXPECT_EQ(assoLegendRowAt(449.0f, 600), -1);
    EXPECT_EQ(assoLegendRowAt(450.0f, 600), 0);
    EXPECT_EQ(assoLegendRowAt(509.0f, 600), 1);
    EXPECT_EQ(assoLegendRowAt(599.0f, 600), 4);
    EXPECT_EQ(assoLegendRowAt(600.0f, 600), -1);
    EXPECT_EQ(assoLegendRowAt(0.0f, 0), -1);
}
