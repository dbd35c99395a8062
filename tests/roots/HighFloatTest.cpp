#include "roots/engine/HighFloat.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(HighFloat, HasTheRequestedPrecision)
{
    const HighFloat value("1");
    EXPECT_GE(mpf_get_prec(value.get()), HighFloat::kPrecisionBits);
}

TEST(HighFloat, ParsesDecimalText)
{
    HighFloat value;
    EXPECT_EQ(value.parse("249999.375"), 0);
    EXPECT_EQ(value.toDouble(), 249999.375);
    EXPECT_EQ(value.parse("-0.5"), 0);
    EXPECT_EQ(value.toDouble(), -0.5);
}

TEST(HighFloat, TextThatIsNotANumberLeavesTheValue)
{
    HighFloat value("7");
    for (const char* text : {"abc", "", "-", "+5", "nan", "inf", "1,5", "12abc"}) {
        EXPECT_EQ(value.parse(text), -1) << text;
        EXPECT_EQ(value.toDouble(), 7.0) << text;
    }
}

TEST(HighFloat, ConversionToDoubleTruncates)
{
    // 0.1 lies between two doubles; truncation takes the one nearer zero, which is below the
    // correctly rounded 0.1.
    const HighFloat tenth("0.1");
    EXPECT_LT(tenth.toDouble(), 0.1);
    EXPECT_EQ(tenth.toDouble(), std::nextafter(0.1, 0.0));
}

TEST(HighFloat, CopiesAreIndependent)
{
    HighFloat original("3");
    HighFloat copy(original);
    HighFloat assigned;
    assigned = original;
    original.parse("4");
    EXPECT_EQ(copy.toDouble(), 3.0);
    EXPECT_EQ(assigned.toDouble(), 3.0);
    EXPECT_GE(mpf_get_prec(copy.get()), HighFloat::kPrecisionBits);
}
