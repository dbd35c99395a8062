#include "inspect/engine/RootsReference.h"
#include "inspect/engine/ErrorReport.h"

#include <gtest/gtest.h>

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
