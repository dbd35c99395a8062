#include "common/core/PlotXWindow.h"

#include <gtest/gtest.h>

using quillon::plotCurrentNode;
using quillon::plotLegendRowAt;
using quillon::plotMoveEnd;
using quillon::plotMoveStart;
using quillon::plotNodeX;
using quillon::PlotXWindow;
using quillon::plotZoom;
using quillon::PlotZoomState;

TEST(PlotXWindow, DisplayedNodesFollowTheWindowAndStep)
{
    PlotXWindow window{5, 25, 5, 0};
    EXPECT_TRUE(window.displays(5));
    EXPECT_TRUE(window.displays(25));
    EXPECT_FALSE(window.displays(6));
    EXPECT_FALSE(window.displays(0));
    EXPECT_FALSE(window.displays(30));
}

// Free start: any start below count - 1 (300 - 1 = 299) is taken, the end stays.
TEST(PlotXWindow, FreeStartStopsBelowTheLastIndex)
{
    PlotXWindow window{0, 20, 1, 0};
    EXPECT_TRUE(plotMoveStart(window, 298, 300, false));
    EXPECT_EQ(window.start, 298);
    EXPECT_EQ(window.end, 20);
    EXPECT_FALSE(plotMoveStart(window, 299, 300, false));
    EXPECT_EQ(window.start, 298);
}

// Kept width: the end moves along (20 - 0 + 279 = 299 fits, 280 would end at 300).
TEST(PlotXWindow, KeptWidthStartMovesTheEndAlong)
{
    PlotXWindow window{0, 20, 1, 0};
    EXPECT_TRUE(plotMoveStart(window, 279, 300, true));
    EXPECT_EQ(window.start, 279);
    EXPECT_EQ(window.end, 299);
    EXPECT_FALSE(plotMoveStart(window, 280, 300, true));
    EXPECT_EQ(window.start, 279);
    EXPECT_EQ(window.end, 299);
}

// Free end: values not above the step size are ignored.
TEST(PlotXWindow, FreeEndMustExceedTheStep)
{
    PlotXWindow window{0, 20, 3, 0};
    EXPECT_FALSE(plotMoveEnd(window, 3, false));
    EXPECT_EQ(window.end, 20);
    EXPECT_TRUE(plotMoveEnd(window, 4, false));
    EXPECT_EQ(window.end, 4);
    EXPECT_EQ(window.start, 0);
}

// Kept width: the start moves along, refused when it would go below 0 (10 - 30 + 19 < 0).
TEST(PlotXWindow, KeptWidthEndMovesTheStartAlong)
{
    PlotXWindow window{10, 30, 1, 0};
    EXPECT_TRUE(plotMoveEnd(window, 20, true));
    EXPECT_EQ(window.start, 0);
    EXPECT_EQ(window.end, 20);
    EXPECT_FALSE(plotMoveEnd(window, 19, true));
    EXPECT_EQ(window.start, 0);
    EXPECT_EQ(window.end, 20);
}

TEST(PlotXWindow, NodesSlideInFromTheRight)
{
    PlotXWindow window;
    window.animationPosition = 1;
    // w = 3 / 20 = 0.15 (in single precision); the first node enters at the right edge.
    const float w = 3.0f / 20.0f;
    EXPECT_EQ(plotNodeX(window, 0, -1.5f, 1.5f), 1.5f - w);
    window.animationPosition = 21;
    EXPECT_TRUE(window.slideInDone());
    EXPECT_EQ(plotNodeX(window, 0, -1.5f, 1.5f), -1.5f);
    EXPECT_EQ(plotNodeX(window, 20, -1.5f, 1.5f), w * 20.0f + -1.5f);
}

TEST(PlotXWindow, CurrentNodeIsTheLastWithinTheRightEdge)
{
    PlotXWindow window;
    window.animationPosition = 21;
    EXPECT_EQ(plotCurrentNode(window, 300, -1.5f, 1.5f), 20);
    // Three ticks in, node 3 sits exactly on the right edge.
    window.animationPosition = 3;
    EXPECT_EQ(plotCurrentNode(window, 300, -1.5f, 1.5f), 3);
}

TEST(PlotXWindow, ZoomSelectsTheNodesInsideTheRectangle)
{
    PlotXWindow window;
    window.animationPosition = 21;
    // View 800 x 600; drag over the middle half horizontally and vertically.
    const PlotZoomState zoomed =
        plotZoom(window, -1.5f, 1.5f, 300, -1.5f, 1.5f, {200, 150, 600, 450, 800, 600});
    EXPECT_EQ(zoomed.start, 5);
    EXPECT_EQ(zoomed.end, 16);
    EXPECT_FLOAT_EQ(zoomed.yMin, -0.75f);
    EXPECT_FLOAT_EQ(zoomed.yMax, 0.75f);
}

TEST(PlotXWindow, ZoomPastTheLastNodeKeepsTheOldEnd)
{
    PlotXWindow window;
    window.animationPosition = 21;
    // Everything to the right of x(20) at the right edge: no node beyond, so the end is the
    // old end plus one.
    const PlotZoomState zoomed =
        plotZoom(window, -1.5f, 1.5f, 21, -1.5f, 1.5f, {799, 100, 800, 200, 800, 600});
    EXPECT_EQ(zoomed.end, 20) << "old end 20 is N - 1 already";
    const PlotZoomState wider =
        plotZoom(window, -1.5f, 1.5f, 300, -1.5f, 1.5f, {799.5f, 100, 900, 200, 800, 600});
    EXPECT_EQ(wider.end, 21);
    EXPECT_LT(wider.start, wider.end);
}

TEST(PlotXWindow, LegendRowsShareTheBottomQuarter)
{
    // h = 600: top 450, rows of 150 / 5 = 30 pixels.
    EXPECT_EQ(plotLegendRowAt(449.0f, 600), -1);
    EXPECT_EQ(plotLegendRowAt(450.0f, 600), 0);
    EXPECT_EQ(plotLegendRowAt(509.0f, 600), 1);
    EXPECT_EQ(plotLegendRowAt(599.0f, 600), 4);
    EXPECT_EQ(plotLegendRowAt(600.0f, 600), -1);
    EXPECT_EQ(plotLegendRowAt(0.0f, 0), -1);
}
