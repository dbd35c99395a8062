#include "assoc/engine/AssoRecurrence.h"
#include "tests/assoc/AssoTestSupport.h"

#include <cfloat>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace
{

using Evaluation = int32_t (*)(float, float, float&);
const Evaluation kOrders[kAssoOrderCount] = {evalOrder1, evalOrder2, evalOrder3, evalOrder4,
                                             evalOrder5};

uint32_t bitsOf(float value)
{
    uint32_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

TEST(AssoRecurrence, FirstIterationIsExactInEveryOrder)
{
    for (int k = 0; k < kAssoOrderCount; ++k) {
        float out = -1.0f;
        EXPECT_EQ(kOrders[k](0.5f, 3.0f, out), AssoOk) << k;
        EXPECT_EQ(out, 1.25f) << k;
    }
}

TEST(AssoRecurrence, OrdersDifferInTheLastBitsWithinTheFirstIterations)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 8);
    // The exact values of iteration 5 for each order: identical up to iteration 4, then the
    // rounding of the different groupings shows.
    const uint32_t expected[kAssoOrderCount] = {0x3f51df28, 0x3f51df24, 0x3f51df24, 0x3f51df24,
                                                0x3f51df26};
    for (int k = 0; k < kAssoOrderCount; ++k) {
        EXPECT_EQ(sequences.values[k][1], 1.25f);
        EXPECT_EQ(sequences.values[k][2], 0.3125f);
        EXPECT_EQ(bitsOf(sequences.values[k][4]), bitsOf(sequences.values[0][4])) << k;
        EXPECT_EQ(bitsOf(sequences.values[k][5]), expected[k]) << k;
    }
}

TEST(AssoRecurrence, ZeroGrowthKeepsEverySequenceConstant)
{
    const AssoSequences sequences = computed(0.0f, 0.375f, 50);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        ASSERT_EQ(sequences.values[k].size(), 50u);
        for (int n = 0; n < 50; ++n) {
            EXPECT_EQ(sequences.values[k][n], 0.375f);
            EXPECT_EQ(sequences.errors[k][n], AssoOk);
        }
    }
}

TEST(AssoRecurrence, FewerThanTwoIterationsLeaveOnlyTheStart)
{
    for (int n : {1, 0, -7}) {
        const AssoSequences sequences = computed(3.0f, 0.5f, n);
        for (int k = 0; k < kAssoOrderCount; ++k) {
            ASSERT_EQ(sequences.values[k].size(), 1u) << n;
            EXPECT_EQ(sequences.values[k][0], 0.5f);
            EXPECT_EQ(sequences.errors[k][0], AssoOk);
        }
    }
}

TEST(AssoRecurrence, RecomputingReplacesEverything)
{
    AssoSequences sequences;
    computeSequences(3.0f, 0.5f, 300, sequences);
    computeSequences(2.0f, 0.25f, 10, sequences);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        EXPECT_EQ(sequences.values[k].size(), 10u);
        EXPECT_EQ(sequences.errors[k].size(), 10u);
        EXPECT_EQ(sequences.values[k][0], 0.25f);
    }
}

TEST(AssoRecurrence, LargeInputsOverflowWithStaleValues)
{
    const AssoSequences sequences = computed(10000.0f, 10000.0f, 6);
    // Iteration 3: every order fails. Orders 1 and 2 overflow in an intermediate step and
    // record the slot's last value (order 5's result of iteration 2); orders 3 and 4 fail in
    // their last step with -inf; order 5 overflows in an intermediate step and records
    // order 4's -inf.
    const int32_t codes[kAssoOrderCount] = {AssoOverflow, AssoOverflow, AssoUnderflow,
                                            AssoUnderflow, AssoOverflow};
    for (int k = 0; k < kAssoOrderCount; ++k) {
        EXPECT_EQ(sequences.errors[k][2], AssoOk) << k;
        EXPECT_EQ(sequences.errors[k][3], codes[k]) << k;
    }
    EXPECT_EQ(sequences.values[0][3], sequences.values[4][2]);
    EXPECT_EQ(sequences.values[1][3], sequences.values[4][2]);
    EXPECT_EQ(sequences.values[2][3], -std::numeric_limits<float>::infinity());
    EXPECT_EQ(sequences.values[3][3], -std::numeric_limits<float>::infinity());
    EXPECT_EQ(sequences.values[4][3], -std::numeric_limits<float>::infinity());
}

TEST(AssoRecurrence, AFailedOrderCanReturnToValidValues)
{
    // With R = 3.01 the orbits escape one by one. Order 1 overflows in an intermediate step
    // at iteration 43, records order 5's in-range result of iteration 42, and carries on from
    // it with code 0.
    const AssoSequences sequences = computed(3.01f, 0.7f, 300);
    for (int n = 0; n < 43; ++n) {
        ASSERT_EQ(sequences.errors[0][n], AssoOk) << n;
    }
    EXPECT_EQ(sequences.errors[0][43], AssoOverflow);
    EXPECT_EQ(sequences.values[0][43], sequences.values[4][42]);
    EXPECT_TRUE(std::fabs(sequences.values[0][43]) < 2.0f);
    EXPECT_EQ(sequences.errors[0][44], AssoOk);
}

TEST(AssoRecurrence, MinusInfinityFromTheLastStepIsRecordedAsUnderflow)
{
    float out = 7.0f;
    // R * x overflows in the second step: the slot is left alone.
    EXPECT_EQ(evalOrder3(1e20f, 1e19f, out), AssoOverflow);
    EXPECT_EQ(out, 7.0f);
    // x * ((R + 1) - R x) is about -1e39 only in the last step: -inf is delivered.
    EXPECT_EQ(evalOrder3(1e19f, 10.0f, out), AssoUnderflow);
    EXPECT_EQ(out, -std::numeric_limits<float>::infinity());
}

TEST(AssoRecurrence, NaNInputFailsAtTheFirstStepThatUsesIt)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    float out = 5.0f;
    EXPECT_EQ(evalOrder1(0.5f, nan, out), AssoUnderflow);
    EXPECT_EQ(out, 5.0f);
    EXPECT_EQ(evalOrder5(nan, 3.0f, out), AssoUnderflow);
    EXPECT_EQ(out, 5.0f);
    const AssoSequences sequences = computed(nan, 0.5f, 3);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        EXPECT_EQ(sequences.errors[k][1], AssoUnderflow) << k;
    }
    EXPECT_EQ(sequences.values[0][1], 0.0f) << "the slot starts at 0";
}

TEST(AssoRecurrence, TheBoundItselfIsInRange)
{
    float out = 0.0f;
    EXPECT_EQ(evalOrder4(FLT_MAX, 0.0f, out), AssoOk);
    EXPECT_EQ(out, FLT_MAX);
}
