#include "sine/engine/SineEngine.h"
#include "tests/sine/SineGolden.h"

#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{

struct Reduction {
    int degrees;
    float sign;
    int reduced;
};

} // namespace

TEST(SineEngine, DegreesBecomeSingleRadiansWithTheShortPi)
{
    EXPECT_EQ(sineBits(sineDegreesToRadians(0)), 0u);
    // 250 * 3.141592502593994 / 180 = 4.3633229202..., rounded to single.
    EXPECT_EQ(sineBits(sineDegreesToRadians(250)), 0x408BA057u);
    EXPECT_EQ(sineDegreesToRadians(-250), -sineDegreesToRadians(250));
    // The library sees the single radians: sin(4.36332273...) = -0.9396924...
    EXPECT_EQ(sineBits(sineLibrary(250)), 0xBF708FB0u);
}

TEST(SineEngine, RangeReductionGivesSignAndAngleInZeroToNinety)
{
    const Reduction cases[] = {{0, 1.0f, 0},         {90, 1.0f, 90},      {270, -1.0f, 90},
                               {-30, -1.0f, 30},     {450, 1.0f, 90},     {180, -1.0f, 0},
                               {250, -1.0f, 70},     {359, -1.0f, 1},     {360, 1.0f, 0},
                               {-1000000, 1.0f, 80}, {1000000, -1.0f, 80}};
    for (const Reduction& expected : cases) {
        float sign = 1.0f;
        int degrees = expected.degrees;
        sineReduceRange(sign, degrees);
        EXPECT_EQ(sign, expected.sign) << expected.degrees;
        EXPECT_EQ(degrees, expected.reduced) << expected.degrees;
    }
}

TEST(SineEngine, FactorialOverflowsSinglePrecisionAt35)
{
    EXPECT_EQ(sineFactorial(0), 1.0f);
    EXPECT_EQ(sineFactorial(1), 1.0f);
    EXPECT_EQ(sineFactorial(5), 120.0f);
    // 13! = 6227020800 is not a single; the running product rounds it.
    EXPECT_EQ(sineFactorial(13), 6227020800.0f);
    EXPECT_EQ(sineBits(sineFactorial(34)), 0x7F5E1BC6u);
    EXPECT_TRUE(std::isinf(sineFactorial(35)));
}

TEST(SineEngine, PowerBySquareAndMultiply)
{
    EXPECT_EQ(sinePower(2.0f, 1), 2.0f);
    EXPECT_EQ(sinePower(2.0f, 3), 8.0f);
    EXPECT_EQ(sinePower(2.0f, 35), 34359738368.0f);
    EXPECT_EQ(sinePower(-1.5f, 5), -7.59375f);
    EXPECT_TRUE(std::isinf(sinePower(1e10f, 5)));
    EXPECT_TRUE(std::isinf(sinePower(-1e10f, 5)) && sinePower(-1e10f, 5) < 0.0f);
}

TEST(SineEngine, RangeCodesCallNaNOverflowAndNegativeOverflowUnderflow)
{
    EXPECT_EQ(sineRangeCode(0.0f), SineOk);
    EXPECT_EQ(sineRangeCode(FLT_MAX), SineOk);
    EXPECT_EQ(sineRangeCode(-FLT_MAX), SineOk);
    EXPECT_EQ(sineRangeCode(std::numeric_limits<float>::infinity()), SineOverflow);
    EXPECT_EQ(sineRangeCode(-std::numeric_limits<float>::infinity()), SineUnderflow);
    EXPECT_EQ(sineRangeCode(std::numeric_limits<float>::quiet_NaN()), SineOverflow);
}

TEST(SineEngine, DirectEvaluationStopsWhen35FactorialOverflows)
{
    // x = 30 degrees: the power never overflows; term 17 needs 35!. Its sign is -1, so with a
    // positive factor the code is Underflow, with a negative one Overflow.
    for (const auto& [factor, code] : {std::pair{1.0f, SineUnderflow}, {-1.0f, SineOverflow}}) {
        std::vector<float> terms;
        std::vector<int32_t> codes;
        sineDirectEvaluation(sineDegreesToRadians(30), terms, codes, 300, factor);
        EXPECT_EQ(terms.size(), 17u);
        ASSERT_EQ(codes.size(), 18u);
        EXPECT_EQ(codes.back(), code);
        EXPECT_EQ(terms[0], factor * sineDegreesToRadians(30));
    }
}

TEST(SineEngine, DirectEvaluationOfZeroGivesSignedZeros)
{
    std::vector<float> terms;
    std::vector<int32_t> codes;
    sineDirectEvaluation(0.0f, terms, codes, 5, 1.0f);
    ASSERT_EQ(terms.size(), 5u);
    EXPECT_EQ(codes, std::vector<int32_t>(5, SineOk));
    EXPECT_EQ(sineBits(terms[0]), 0x00000000u);
    EXPECT_EQ(sineBits(terms[1]), 0x80000000u);
}

TEST(SineEngine, TermUpdateDividesByTwoThenThree)
{
    // x = 1: terms 1, -1/6, 1/120, each step t * x / 2 then x * t / 3 rounded at each store.
    std::vector<float> terms;
    std::vector<int32_t> codes;
    sineTermUpdate(1.0f, terms, codes, 3, 1.0f);
    ASSERT_EQ(terms.size(), 3u);
    EXPECT_EQ(terms[0], 1.0f);
    EXPECT_EQ(terms[1], -(0.5f / 3.0f));
    EXPECT_EQ(terms[2], (0.5f / 3.0f) / 4.0f / 5.0f);
    EXPECT_EQ(codes, std::vector<int32_t>(3, SineOk));
}

TEST(SineEngine, NoTermsForCountsBelowOne)
{
    for (int count : {0, -3}) {
        std::vector<float> terms;
        std::vector<int32_t> codes;
        sineDirectEvaluation(1.0f, terms, codes, count, 1.0f);
        sineTermUpdate(1.0f, terms, codes, count, 1.0f);
        EXPECT_TRUE(terms.empty());
        EXPECT_TRUE(codes.empty());
    }
}

TEST(SineEngine, SummationsStopAtANonZeroCode)
{
    const std::vector<float> terms = {1.0f, 2.0f, 3.0f};
    const std::vector<int32_t> codes = {SineOk, SineOverflow, SineOk};
    std::vector<float> naive, negPos, kahan;
    sineNaiveSum(terms, codes, naive);
    sineNegPosSum(terms, codes, negPos);
    sineKahanSum(terms, codes, kahan);
    // The failing entry's term itself ends each list.
    EXPECT_EQ(naive, (std::vector<float>{1.0f, 2.0f}));
    EXPECT_EQ(negPos, (std::vector<float>{1.0f, 2.0f}));
    EXPECT_EQ(kahan, (std::vector<float>{1.0f, 2.0f}));
}

TEST(SineEngine, NegPosSumsEachSignApart)
{
    // Naive: 1e8 - 1e8 = 0, + 1 = 1, + 5 = 6. NegPos: the positive accumulator near 1e8 has an
    // ulp of 8, so 1e8 + 1 stays 1e8 and 1e8 + 5 becomes 1e8 + 8; with the negative -1e8 the
    // sums are 1e8, 0, 0, 8.
    const std::vector<float> terms = {1e8f, -1e8f, 1.0f, 5.0f};
    const std::vector<int32_t> codes(4, SineOk);
    std::vector<float> naive, negPos;
    sineNaiveSum(terms, codes, naive);
    sineNegPosSum(terms, codes, negPos);
    EXPECT_EQ(naive, (std::vector<float>{1e8f, 0.0f, 1.0f, 6.0f}));
    EXPECT_EQ(negPos, (std::vector<float>{1e8f, 0.0f, 0.0f, 8.0f}));
}

TEST(SineEngine, KahanKeepsWhatNaiveSummationLoses)
{
    // 1 + 6e-8 + 6e-8: each 6e-8 is just over half an ulp of 1, so naive summation rounds up
    // twice (1 + 2 ulp), while the exact sum 1 + 1.2e-7 is 1 + 1 ulp, which Kahan keeps.
    const std::vector<float> terms = {1.0f, 6e-8f, 6e-8f};
    const std::vector<int32_t> codes(3, SineOk);
    std::vector<float> naive, kahan;
    sineNaiveSum(terms, codes, naive);
    sineKahanSum(terms, codes, kahan);
    EXPECT_EQ(naive.back(), 1.0f + 2 * FLT_EPSILON);
    EXPECT_EQ(kahan.back(), 1.0f + FLT_EPSILON);
}
