#include "inspect/engine/PentagonReference.h"
#include "inspect/engine/ErrorReport.h"
#include "pentagon/engine/PentagonEngine.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// 25 significant digits, as the expected values were written.
std::string digits25(const MpfrNumber& number)
{
    return printedReal("%.24Re", number.get());
}

PentagonPoints defaultPentagon()
{
    PentagonEngine engine;
    return engine.getInitialPoints();
}

} // namespace

// The Default pentagon (epsilon 0.1: (0, 0), (0, 1), (1, e), (e, 1), (1, 0) with
// e = single(1.1) = 9227469 / 2^23). Its In's new P2 is where the line from Q3 towards Q5
// (x = 1) meets the line from Q1 towards Q4, and P3 where the line from Q4 towards Q1 meets
// the line from Q2 towards Q5; worked out with Python fractions.
TEST(PentagonReference, OneInExactly)
{
    const PentagonReplay replay = replayExactly(defaultPentagon(), {false}, 1);
    ASSERT_TRUE(replay.complete);
    EXPECT_EQ(digits25(replay.coordinates[2]), "1.000000000000000000000000e+00");
    EXPECT_EQ(digits25(replay.coordinates[3]), "9.090908893868947162000761e-01");
    EXPECT_EQ(digits25(replay.coordinates[4]), "5.238095292158407345744458e-01");
    EXPECT_EQ(digits25(replay.coordinates[5]), "4.761904707841592654255542e-01");
}

// In exact arithmetic Out undoes In, however often they alternate.
TEST(PentagonReference, InThenOutGivesTheInitialPentagonBack)
{
    const PentagonPoints initial = defaultPentagon();
    const std::vector<bool> alternating = {false, true, false, true, false, true, false, true};
    for (size_t steps : {size_t(2), size_t(8)}) {
        const PentagonReplay replay = replayExactly(initial, alternating, steps);
        ASSERT_TRUE(replay.complete);
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(mpfr_cmp_d(replay.coordinates[size_t(i)].get(),
                                 double(initial.coordinates[size_t(i)])),
                      0)
                << steps << " steps, coordinate " << i;
        }
    }
}

TEST(PentagonReference, LongHistoriesAreNotReplayed)
{
    const std::vector<bool> ins(65, false);
    EXPECT_TRUE(replayExactly(defaultPentagon(), ins, 64).complete);
    const PentagonReplay replay = replayExactly(defaultPentagon(), ins, 65);
    EXPECT_FALSE(replay.complete);
    EXPECT_EQ(replay.why, "more than 64 steps");
}
