#include "inspect/engine/RootsReference.h"
#include "inspect/engine/ErrorReport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

// A 256-bit GMP number read from a decimal, as the Roots tab holds its coefficients.
class Coefficient
{
public:
    explicit Coefficient(const char* text)
    {
        mpf_init2(value, 256);
        mpf_set_str(value, text, 10);
    }
    ~Coefficient() { mpf_clear(value); }
    mpf_srcptr get() const { return value; }

private:
    mpf_t value;
};

std::string forty(const MpfrNumber& number)
{
    return compareWithReference(0.0, FloatFormat::Double, number.get()).reference;
}

} // namespace

// Example 2, x^2 + 10000 x + 1: worked out with 150-digit decimal arithmetic.
TEST(RootsReference, TrueValuesOfEveryRow)
{
    const Coefficient a("1");
    const Coefficient b("10000");
    const Coefficient c("1");
    const auto values = rootsReference(a.get(), b.get(), c.get());
    ASSERT_TRUE(values.has_value());
    EXPECT_EQ(forty((*values)[0]), "100000000");
    EXPECT_EQ(forty((*values)[1]), "4");
    EXPECT_EQ(forty((*values)[2]), "9999.999799999997999999959999998999999972");
    EXPECT_EQ(forty((*values)[3]), "-0.0001000000010000000200000005000000140000004");
    EXPECT_EQ(forty((*values)[4]), "0");
    EXPECT_EQ(forty((*values)[5]), "-9999.999899999998999999979999999499999986");
    EXPECT_EQ(forty((*values)[6]), "0");
}

TEST(RootsReference, NoRealRootsNoReference)
{
    const Coefficient one("1");
    EXPECT_FALSE(rootsReference(one.get(), one.get(), one.get()).has_value());
}

// What a computed root really leaves, worked out with Python fractions from the decimal
// coefficients. x^2 + 1000 x + 1: the naive single-precision large root -0.001007080078125
// (= -4125 / 2^22) and the double one -0.0010000010000226212.
TEST(RootsReference, ResidualOfAComputedRoot)
{
    const Coefficient one("1");
    const Coefficient thousand("1000");
    const auto single = residualAt(one.get(), thousand.get(), one.get(), -0.001007080078125);
    ASSERT_TRUE(single.has_value());
    EXPECT_EQ(forty(*single), "-0.007079063914716243743896484375");
    const auto dbl = residualAt(one.get(), thousand.get(), one.get(), -0.0010000010000226212);
    ASSERT_TRUE(dbl.has_value());
    EXPECT_EQ(forty(*dbl), "-2.062110970695232682679629041544309064546e-11");
}

// Example 3 (0.01 x^2 + 100 x + 249999.99999): single precision sees a zero discriminant and
// the root -5000, which with the coefficients as typed leaves 250000 - 500000 + 249999.99999.
TEST(RootsReference, ResidualUsesTheCoefficientsAsTyped)
{
    const Coefficient a("0.01");
    const Coefficient b("100");
    const Coefficient c("249999.99999");
    const auto residual = residualAt(a.get(), b.get(), c.get(), -5000.0);
    ASSERT_TRUE(residual.has_value());
    EXPECT_EQ(forty(*residual), "-1e-05");
}

TEST(RootsReference, NoResidualOfARootThatIsNotFinite)
{
    const Coefficient one("1");
    EXPECT_FALSE(residualAt(one.get(), one.get(), one.get(), INFINITY).has_value());
    EXPECT_FALSE(residualAt(one.get(), one.get(), one.get(), NAN).has_value());
}
