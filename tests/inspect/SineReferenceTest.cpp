#include "inspect/engine/SineReference.h"
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

} // namespace

// The expected values were worked out with 120-digit decimal arithmetic from the arguments
// single(X * 3.141592502593994 / 180): 250 degrees gives 4.363322734832764, and reduced to
// 70 degrees (sign -1) 1.2217304706573486.
TEST(SineReference, OriginalArgument)
{
    const SineReference five = sineReference(250, 4.363322734832764f, 1.0f, 5);
    EXPECT_EQ(digits25(five.trueSine), "-9.396926207859083840541093e-01");
    EXPECT_EQ(digits25(five.argumentSine), "-9.396924856355287101928160e-01");
    EXPECT_EQ(digits25(five.seriesSum), "-6.968138987467307704301165e-01");
    EXPECT_EQ(digits25(sineReference(250, 4.363322734832764f, 1.0f, 1).seriesSum),
              "4.363322734832763671875000e+00");
    EXPECT_EQ(digits25(sineReference(250, 4.363322734832764f, 1.0f, 17).seriesSum),
              "-9.396924856355287078312405e-01");
}

TEST(SineReference, ReducedArgumentCarriesItsSign)
{
    const SineReference five = sineReference(250, 1.2217304706573486f, -1.0f, 5);
    EXPECT_EQ(digits25(five.trueSine), "-9.396926207859083840541093e-01");
    EXPECT_EQ(digits25(five.argumentSine), "-9.396926188231635041453861e-01");
    EXPECT_EQ(digits25(five.seriesSum), "-9.396928434326085120517944e-01");
}

TEST(SineReference, ThirtyDegrees)
{
    const SineReference five = sineReference(30, 0.5235987305641174f, 1.0f, 5);
    EXPECT_EQ(digits25(five.trueSine), "5.000000000000000000000000e-01");
    EXPECT_EQ(digits25(five.argumentSine), "4.999999609992543260589359e-01");
    EXPECT_EQ(digits25(five.seriesSum), "4.999999610195342260818120e-01");
}
