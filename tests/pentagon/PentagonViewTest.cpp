#include "pentagon/engine/PentagonView.h"

#include <gtest/gtest.h>

// In a 100 x 100 view of 0..1 by 0..1: pixel (25, 75) is (0.25, 0.25).
TEST(PentagonView, DragZoomsToTheRectangle)
{
    const PentagonRange zoomed =
        pentagonZoomToRectangle({0, 1, 0, 1}, 75.0f, 25.0f, 25.0f, 75.0f, 100, 100);
    EXPECT_EQ(zoomed.xMin, 0.25f);
    EXPECT_EQ(zoomed.xMax, 0.75f);
    EXPECT_EQ(zoomed.yMin, 0.25f);
    EXPECT_EQ(zoomed.yMax, 0.75f);
}

// A release outside the plot is clamped to its edge; a release at the press point gives a
// range of zero size.
TEST(PentagonView, ReleaseOutsideIsClampedAndInPlaceIsEmpty)
{
    const PentagonRange clamped =
        pentagonZoomToRectangle({0, 1, 0, 1}, 50.0f, 50.0f, 150.0f, -50.0f, 100, 100);
    EXPECT_EQ(clamped.xMin, 0.5f);
    EXPECT_EQ(clamped.xMax, 1.0f);
    EXPECT_EQ(clamped.yMin, 0.5f);
    EXPECT_EQ(clamped.yMax, 1.0f);
    const PentagonRange empty =
        pentagonZoomToRectangle({0, 1, 0, 1}, 50.0f, 50.0f, 50.0f, 50.0f, 100, 100);
    EXPECT_EQ(empty.xMin, empty.xMax);
    EXPECT_EQ(empty.yMin, empty.yMax);
}

// Fitted to a 2 x 1 box from (0, 0): centre (1, 0.5), half 2 x 0.5 x 1.1; with nothing drawn
// the current range is widened by 10% about its centre.
TEST(PentagonView, FittedRangeIsSquareAndTenPercentLarger)
{
    PentagonPoints box;
    box.coordinates = {0, 0, 2, 0, 2, 1, 1, 1, 0, 1};
    const PentagonRange fitted = pentagonFittedRange({5, 6, 5, 6}, {box});
    const float half = 2.0f * 0.5f * 1.1f;
    EXPECT_EQ(fitted.xMin, 1.0f - half);
    EXPECT_EQ(fitted.xMax, 1.0f + half);
    EXPECT_EQ(fitted.yMin, 0.5f - half);
    EXPECT_EQ(fitted.yMax, 0.5f + half);
    const PentagonRange widened = pentagonFittedRange({-1, 1, -1, 1}, {});
    EXPECT_EQ(widened.xMin, -1.1f);
    EXPECT_EQ(widened.yMax, 1.1f);
}

TEST(PentagonView, PresetGridOfTheColorMap)
{
    // 443 x 490: cells 443 / 8 = 55 wide and int(490 / 17.5) = 28 high, from int(28 * 3.9) =
    // 109 down to 109 + 7 * 28 = 305.
    const quillon::ColorPresetGrid& grid = kPentagonColorPresetGrid;
    EXPECT_EQ(quillon::presetAt(grid, 0, 109, 443, 490), 0);
    EXPECT_EQ(quillon::presetAt(grid, 439, 136, 443, 490), 7);
    EXPECT_EQ(quillon::presetAt(grid, 55, 137, 443, 490), 9);
    EXPECT_EQ(quillon::presetAt(grid, 439, 304, 443, 490), 55);
    EXPECT_EQ(quillon::presetAt(grid, 0, 305, 443, 490), -1);
    // Right of the last column: the first preset of the next row, and nothing after the last.
    EXPECT_EQ(quillon::presetAt(grid, 440, 110, 443, 490), 8);
    EXPECT_EQ(quillon::presetAt(grid, 440, 300, 443, 490), -1);
    // Up to one cell height above the grid counts as row 0; further up is nothing.
    EXPECT_EQ(quillon::presetAt(grid, 0, 82, 443, 490), 0);
    EXPECT_EQ(quillon::presetAt(grid, 0, 80, 443, 490), -1);
}

TEST(PentagonView, GreysFadeWithAgeThenStayAt128)
{
    EXPECT_EQ(pentagonGreyForAge(1), 8);
    EXPECT_EQ(pentagonGreyForAge(2), 16);
    EXPECT_EQ(pentagonGreyForAge(15), 120);
    EXPECT_EQ(pentagonGreyForAge(16), 128);
    EXPECT_EQ(pentagonGreyForAge(1000), 128);
}
