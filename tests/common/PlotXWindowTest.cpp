#include "common/core/PlotXWindow.h"

#include <gtest/gtest.h>

using quillon::plotCurrentNode;
using quillon::plotLegendRowAt;
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
