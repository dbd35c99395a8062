#include "inspect/engine/AssoReference.h"
#include "inspect/engine/ErrorReport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// 25 significant digits, as the expected values were written.
std::string digits25(const MpfrNumber& number)
{
    return printedReal("%.24Re", number.get());
}

struct TrajectoryPoint {
    int iteration;
    const char* value;
};

} // namespace

// X0 = 0.5, R = 3 (both exact in single): the true trajectory, worked out with 1200-digit
// decimal arithmetic (X1 = 1.25 and X2 = 0.3125 by hand).
TEST(AssoReference, TrueTrajectoryOfTheDefaultRun)
{
    const TrajectoryPoint points[] = {
        {0, "5.000000000000000000000000e-01"},   {1, "1.250000000000000000000000e+00"},
        {2, "3.125000000000000000000000e-01"},   {3, "9.570312500000000000000000e-01"},
        {10, "3.846309658187955099674397e-01"},  {30, "4.639947684257835009848972e-02"},
        {100, "7.428865400310109887373192e-01"}, {300, "1.221808168016458683987174e+00"},
    };
    for (const TrajectoryPoint& point : points) {
        const AssoReference reference = assoReference(0.5f, 3.0f, point.iteration);
        EXPECT_EQ(digits25(reference.value), point.value) << point.iteration;
        EXPECT_TRUE(reference.checked) << point.iteration;
    }
}

// The single-precision X0 = 0.7 and R = 3.01 (0.699999988079071044921875 and
// 3.0099999904632568359375), not the decimals.
TEST(AssoReference, StartsFromTheSingleValues)
{
    const TrajectoryPoint points[] = {
        {1, "1.332100000429152969161352e+00"},
        {3, "2.023755047493889638274976e-03"},
        {30, "3.612191732919077104497925e-01"},
    };
    for (const TrajectoryPoint& point : points) {
        EXPECT_EQ(digits25(assoReference(0.7f, 3.01f, point.iteration).value), point.value)
            << point.iteration;
    }
}

TEST(AssoReference, PrecisionGrowsWithTheIterations)
{
    EXPECT_LT(assoReference(0.5f, 3.0f, 10).startBits, assoReference(0.5f, 3.0f, 20).startBits);
    EXPECT_GE(assoReference(0.5f, 3.0f, 1000).startBits, 1000 + kAssoReferenceTargetBits);
}
