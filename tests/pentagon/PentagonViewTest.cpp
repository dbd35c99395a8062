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
