#include "common/core/SingleRange.h"

#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using quillon::isFiniteSingle;
using quillon::kSingleMax;
using quillon::withinSingleRange;

TEST(SingleRange, BoundEqualsTheLargestFloat)
{
    EXPECT_EQ(kSingleMax, static_cast<double>(FLT_MAX));
}

TEST(SingleRange, WithinRangeIncludesBothEnds)
{
    EXPECT_TRUE(withinSingleRange(0.0f));
    EXPECT_TRUE(withinSingleRange(FLT_MAX));
    EXPECT_TRUE(withinSingleRange(-FLT_MAX));
    EXPECT_TRUE(withinSingleRange(FLT_MIN));
    EXPECT_FALSE(withinSingleRange(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(withinSingleRange(-std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(withinSingleRange(std::numeric_limits<float>::quiet_NaN()));
}

TEST(SingleRange, FiniteSingleExcludesTheNegativeEnd)
{
    EXPECT_TRUE(isFiniteSingle(FLT_MAX));
    EXPECT_FALSE(isFiniteSingle(-FLT_MAX));
    EXPECT_TRUE(isFiniteSingle(std::nextafter(-FLT_MAX, 0.0f)));
    EXPECT_TRUE(isFiniteSingle(0.0f));
    EXPECT_FALSE(isFiniteSingle(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(isFiniteSingle(-std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(isFiniteSingle(std::numeric_limits<float>::quiet_NaN()));
}
