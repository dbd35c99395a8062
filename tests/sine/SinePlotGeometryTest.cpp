#include "sine/engine/SinePlotGeometry.h"
#include "tests/sine/SineGolden.h"

#include <gtest/gtest.h>

namespace
{

SinePlotContent contentOf(const SineResults& results, std::initializer_list<int> funcs,
                          bool errorMode = false)
{
    SinePlotContent content{&results, {}, errorMode};
    for (int func : funcs) {
        content.enabled[func - 1] = true;
    }
    return content;
}

// The window 0..20 once it has slid in: x(i) = 0.15f * i - 1.5, so x(20) = 1.5 is the last
// index inside the plot.
quillon::PlotXWindow slidIn()
{
    quillon::PlotXWindow window;
    window.animationPosition = 21;
    return window;
}

} // namespace

TEST(SinePlotGeometry, PlottedIsTheSumOrItsErrorUpToTheStop)
{
    SineResults results;
    computeSine(250, 300, results);
    const SinePlotContent values = contentOf(results, {1});
    EXPECT_EQ(sineBits(*values.plotted(0, 0)), 0x408BA057u);
    EXPECT_EQ(sineBits(*values.plotted(0, 16)), 0xBF708FB0u);
    // Func1 stopped at term 17.
    EXPECT_FALSE(values.plotted(0, 17).has_value());
    EXPECT_FALSE(values.plotted(0, -1).has_value());
    const SinePlotContent errors = contentOf(results, {1}, true);
    // sums[16] equals the library sine: error 0; Func4's last sum is 2^-21 above it.
    EXPECT_EQ(*errors.plotted(0, 16), 0.0f);
    EXPECT_EQ(sineBits(*errors.plotted(3, 299)), 0x35000000u);
}

TEST(SinePlotGeometry, EqualValuesGetARangeOfTwoTimesTenToTheMinusEleven)
{
    SineResults results;
    computeSine(0, 5, results);
    const auto range = sineFitYRange(contentOf(results, {1, 4}), slidIn(), 5, -1.5f, 1.5f);
    ASSERT_TRUE(range.has_value());
    // min = max = 0: widened to -1e-11 .. 1e-11, then 0.6 of the span each side of 0.
    const float half = (1e-11f - -1e-11f) * 0.6f;
    EXPECT_EQ(range->first, -half);
    EXPECT_EQ(range->second, half);
}

TEST(SinePlotGeometry, ValueModeStartsFromTheLibrarySine)
{
    SineResults results;
    computeSine(250, 300, results);
    const auto range = sineFitYRange(contentOf(results, {}), slidIn(), 300, -1.5f, 1.5f);
    ASSERT_TRUE(range.has_value());
    // -0.9396925 +- 1e-11 rounds back to itself in single precision, which would leave no
    // height; the range is the two neighbouring singles.
    EXPECT_EQ(results.librarySine - 1e-11f, results.librarySine);
    EXPECT_EQ(sineBits(range->first), 0xBF708FB1u);
    EXPECT_EQ(sineBits(range->second), 0xBF708FAFu);
}

TEST(SinePlotGeometry, ErrorModeWithNothingPlottedKeepsTheRange)
{
    SineResults results;
    computeSine(250, 300, results);
    EXPECT_FALSE(sineFitYRange(contentOf(results, {}, true), slidIn(), 300, -1.5f, 1.5f));
}

TEST(SinePlotGeometry, StepSkipsIndicesInTheRange)
{
    SineResults results;
    computeSine(250, 300, results);
    // Func1's lowest partial sum, -9.48, is at index 1; its highest, 4.36, at index 0.
    const auto everyIndex = sineFitYRange(contentOf(results, {1}), slidIn(), 300, -1.5f, 1.5f);
    ASSERT_TRUE(everyIndex.has_value());
    const float low = sineFloatOf("C117B5F8");
    const float high = sineFloatOf("408BA057");
    EXPECT_EQ(everyIndex->first, (low + high) * 0.5f - (high - low) * 0.6f);
    // Every second index: index 1 is skipped, the lowest is now the library sine.
    quillon::PlotXWindow everySecond = slidIn();
    everySecond.step = 2;
    const auto skipping = sineFitYRange(contentOf(results, {1}), everySecond, 300, -1.5f, 1.5f);
    ASSERT_TRUE(skipping.has_value());
    const float library = results.librarySine;
    EXPECT_EQ(skipping->first, (library + high) * 0.5f - (high - library) * 0.6f);
}

TEST(SinePlotGeometry, LargestErrorAtTheLastVisibleIndex)
{
    SineResults results;
    computeSine(250, 300, results);
    // At index 20 Func1 has no sum any more; Func4 is 2^-21 off, Func5 2^-20.
    EXPECT_FALSE(sineLargestError(contentOf(results, {1}), slidIn(), 300, -1.5f, 1.5f));
    EXPECT_EQ(sineBits(*sineLargestError(contentOf(results, {1, 4}), slidIn(), 300, -1.5f, 1.5f)),
              0x35000000u);
    EXPECT_EQ(sineBits(*sineLargestError(contentOf(results, {4, 5}), slidIn(), 300, -1.5f, 1.5f)),
              0x35800000u);
    // When every index up to N - 1 fits, nothing is shown.
    SineResults short21;
    computeSine(250, 21, short21);
    EXPECT_FALSE(sineLargestError(contentOf(short21, {4}), slidIn(), 21, -1.5f, 1.5f));
}

TEST(SinePlotGeometry, AnimationStopsWhereASeriesHasJustStopped)
{
    SineResults results;
    computeSine(250, 300, results);
    // Sliding in, c nodes revealed: the last index inside is c; Func1 stopped at index 17.
    quillon::PlotXWindow window;
    for (int revealed : {16, 17, 19}) {
        window.animationPosition = revealed;
        EXPECT_FALSE(sineStoppedBeforeCurrent(contentOf(results, {1}), window, 300, -1.5f, 1.5f))
            << revealed;
    }
    window.animationPosition = 18;
    EXPECT_TRUE(sineStoppedBeforeCurrent(contentOf(results, {1}), window, 300, -1.5f, 1.5f));
    EXPECT_FALSE(sineStoppedBeforeCurrent(contentOf(results, {4}), window, 300, -1.5f, 1.5f));
}

TEST(SinePlotGeometry, LegendHasThreeColumnsAndFiveRows)
{
    // 900 x 600: legend from y = 450, rows of 30, columns of 300.
    EXPECT_EQ(sineLegendAt(10, 449, 900, 600).kind, SineLegendHit::None);
    EXPECT_EQ(sineLegendAt(10, 455, 900, 600).kind, SineLegendHit::Library);
    EXPECT_EQ(sineLegendAt(310, 455, 900, 600).kind, SineLegendHit::SelectAll);
    EXPECT_EQ(sineLegendAt(899, 479, 900, 600).kind, SineLegendHit::SelectNone);
    const SineLegendHit first = sineLegendAt(10, 480, 900, 600);
    EXPECT_EQ(first.kind, SineLegendHit::Approach);
    EXPECT_EQ(first.approach, 0);
    EXPECT_EQ(sineLegendAt(610, 599, 900, 600).approach, 11);
    EXPECT_EQ(sineLegendAt(310, 540, 900, 600).approach, 7);
    EXPECT_EQ(sineLegendAt(900, 455, 900, 600).kind, SineLegendHit::None);
}

TEST(SinePlotGeometry, LegendHasNoEntryBelowItsFifthRow)
{
    // 900 x 610: legend from y = 457 (floor of 457.5), rows of 152 / 5 = 30, so the fifth row
    // ends at y = 607 and the last three pixel rows hold no entry.
    EXPECT_EQ(sineLegendAt(10, 606, 900, 610).approach, 9);
    EXPECT_EQ(sineLegendAt(10, 607, 900, 610).kind, SineLegendHit::None);
    EXPECT_EQ(sineLegendAt(610, 609, 900, 610).kind, SineLegendHit::None);
}

TEST(SinePlotGeometry, TextBlockStaysBesideTheCursorAndInsideTheView)
{
    // A block 100 wide and 30 high in a view of 400 x 300.
    const auto at = [](float x, float y, float width = 100, float height = 30) {
        const SineTextBlockCorner corner = sineTextBlockBesideCursor(x, y, width, height, 400, 300);
        return std::make_pair(corner.left, corner.top);
    };
    // Where it fits, right of and below the cursor.
    EXPECT_EQ(at(10, 20), std::make_pair(10.0f, 20.0f));
    EXPECT_EQ(at(300, 270), std::make_pair(300.0f, 270.0f));
    // At the right edge it goes left of the cursor; at the bottom, above it.
    EXPECT_EQ(at(399, 20), std::make_pair(299.0f, 20.0f));
    EXPECT_EQ(at(10, 290), std::make_pair(10.0f, 260.0f));
    EXPECT_EQ(at(399, 299), std::make_pair(299.0f, 269.0f));
    // Fitting on neither side, it goes to the side with the cursor's far edge moved inside.
    EXPECT_EQ(at(60, 20, 350), std::make_pair(0.0f, 20.0f));
    EXPECT_EQ(at(60, 100, 100, 250), std::make_pair(60.0f, 0.0f));
    // Larger than the view, it starts at the top-left corner.
    EXPECT_EQ(at(200, 150, 500, 400), std::make_pair(0.0f, 0.0f));
}
