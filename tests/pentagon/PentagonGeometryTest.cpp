#include "pentagon/engine/PentagonGeometry.h"

#include <cfloat>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace
{

uint32_t bits(float v)
{
    uint32_t b = 0;
    std::memcpy(&b, &v, sizeof b);
    return b;
}

// A point that intersectLines may write, preset to a marker so that an untouched point shows.
struct Crossing {
    float x = 123.0f;
    float y = 456.0f;
    PentagonPoint point() { return PentagonPoint{x, y}; }
};

} // namespace

TEST(PentagonGeometry, MessagesAreExact)
{
    EXPECT_STREQ(pentagonStatusMessage(StatusOk), "");
    EXPECT_STREQ(pentagonStatusMessage(StatusNotPentagon),
                 "Error! New five points can not form a pentagon! \n");
    EXPECT_STREQ(pentagonStatusMessage(StatusNan), "Error! NAN error occurs! \n");
    EXPECT_STREQ(pentagonStatusMessage(StatusNotFinite),
                 "Error! Not a finite number error occurs! \n");
    EXPECT_STREQ(pentagonStatusMessage(StatusParallel), "Error! Two lines are parallel! \n");
}

TEST(PentagonGeometry, AheadIsANonNegativeDotProduct)
{
    EXPECT_TRUE(isAhead(1, 0, 0, 1));
    EXPECT_TRUE(isAhead(1, 2, 3, 4));
    EXPECT_FALSE(isAhead(-1, 0, 1, 0));
    EXPECT_FALSE(isAhead(std::nanf(""), 0, 1, 0));
    EXPECT_TRUE(isNotNan(0.0f));
    EXPECT_FALSE(isNotNan(std::nanf("")));
}

// A line whose points differ by less than 1e-11 in x is taken as exactly vertical at x1:
// 1e-12 x ... crossing y = 0.5 at x = single(1e-12), where the general form (1e12 x + y = 1)
// would give 5e-13.
TEST(PentagonGeometry, NearVerticalLineIsExactlyVertical)
{
    Crossing crossing;
    EXPECT_EQ(intersectLines(1e-12f, 0.0f, 0.0f, 1.0f, -1.0f, 0.5f, 2.0f, 0.5f, crossing.point()),
              StatusOk);
    EXPECT_EQ(bits(crossing.x), bits(1e-12f));
    EXPECT_EQ(crossing.y, 0.5f);
}

// Two parallel lines are no degenerate line: (0,0)->(1,1) and (0,1)->(1,2) solve to 1/0 (code
// 3); the same line twice to 0/0 (code 2).
TEST(PentagonGeometry, ParallelLinesAreNotCodeFour)
{
    Crossing crossing;
    EXPECT_EQ(intersectLines(0, 0, 1, 1, 0, 1, 1, 2, crossing.point()), StatusNotFinite);
    EXPECT_TRUE(std::isinf(crossing.y));
    Crossing same;
    EXPECT_EQ(intersectLines(0, 0, 1, 1, 2, 2, 3, 3, same.point()), StatusNan);
    EXPECT_TRUE(std::isnan(same.y));
}

TEST(PentagonGeometry, CoincidingPointsAreCodeFourAndWriteNothing)
{
    Crossing first;
    EXPECT_EQ(intersectLines(1, 2, 1, 2, 0, 0, 1, 0, first.point()), StatusParallel);
    EXPECT_EQ(first.x, 123.0f);
    EXPECT_EQ(first.y, 456.0f);
    // Line B likewise, and points within 1e-11 of each other count as coinciding.
    Crossing second;
    EXPECT_EQ(intersectLines(0, 0, 1, 0, 1e-12f, 3, 0, 3, second.point()), StatusParallel);
    EXPECT_EQ(second.x, 123.0f);
}

// A horizontal line has c = y1: -FLT_MAX there is not finite (code 3, nothing written), while
// +FLT_MAX passes and crosses x = 0.5 at (0.5, FLT_MAX).
TEST(PentagonGeometry, MinusFltMaxIsNotFiniteButPlusFltMaxIs)
{
    Crossing below;
    EXPECT_EQ(intersectLines(0, -FLT_MAX, 1, -FLT_MAX, 0.5f, 0, 0.5f, 1, below.point()),
              StatusNotFinite);
    EXPECT_EQ(below.x, 123.0f);
    Crossing above;
    EXPECT_EQ(intersectLines(0, FLT_MAX, 1, FLT_MAX, 0.5f, 0, 0.5f, 1, above.point()), StatusOk);
    EXPECT_EQ(above.x, 0.5f);
    EXPECT_EQ(above.y, FLT_MAX);
}

// y = 0 from (0,0) towards (1,0) meets x = -1 at (-1, 0), behind its start: code 1, and the
// crossing has been written.
TEST(PentagonGeometry, CrossingBehindAStartIsCodeOne)
{
    Crossing crossing;
    EXPECT_EQ(intersectLines(0, 0, 1, 0, -1, 1, -1, 2, crossing.point()), StatusNotPentagon);
    EXPECT_EQ(crossing.x, -1.0f);
    EXPECT_EQ(crossing.y, 0.0f);
    // Behind line B's start instead: B from (-1, -1) away from the crossing, downwards.
    Crossing other;
    EXPECT_EQ(intersectLines(-2, 0, 1, 0, -1, -1, -1, -2, other.point()), StatusNotPentagon);
}
