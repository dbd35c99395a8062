#include "common/core/CFormat.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

using quillon::cformat;

namespace
{

// Switches the C library to the locale of the environment, as the application object does
// at start-up. When the test is run with QUILLON_EXPECT_LOCALE set, that locale must really
// be in force, or the test would prove nothing.
class CFormatTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const char* active = std::setlocale(LC_ALL, "");
        const char* expected = std::getenv("QUILLON_EXPECT_LOCALE");
        if (expected != nullptr) {
            ASSERT_NE(active, nullptr) << "locale " << expected << " is not installed";
            ASSERT_STREQ(active, expected);
            char buffer[32];
            std::snprintf(buffer, sizeof buffer, "%.1f", 1.5);
            ASSERT_STREQ(buffer, "1,5") << "the locale's own decimal point should be a comma";
        }
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

} // namespace

TEST_F(CFormatTest, FixedAndExponentFormatsUseAPoint)
{
    EXPECT_EQ(cformat("%f", 1000.0), "1000.000000");
    EXPECT_EQ(cformat("%f", 1e-11), "0.000000");
    EXPECT_EQ(cformat("%.6e", 1.0 / 3.0), "3.333333e-01");
    EXPECT_EQ(cformat("%.12e", -2.5e-7), "-2.500000000000e-07");
    EXPECT_EQ(cformat("%.2e", 12345.678), "1.23e+04");
    EXPECT_EQ(cformat("%2e", 0.5), "5.000000e-01");
    EXPECT_EQ(cformat("%e,", 1.25), "1.250000e+00,");
}

TEST_F(CFormatTest, IntegersAndTextPassThrough)
{
    EXPECT_EQ(cformat("%d", -42), "-42");
    EXPECT_EQ(cformat("func %d at iter %d gets an error: %s\n", 2, 40, "Overflow"),
              "func 2 at iter 40 gets an error: Overflow\n");
    EXPECT_EQ(cformat("Func0 Color R %d G %d B %d\n", 128, 0, 128),
              "Func0 Color R 128 G 0 B 128\n");
}

TEST_F(CFormatTest, SpecialValuesAreSpelledOut)
{
    EXPECT_EQ(cformat("%e", static_cast<double>(INFINITY)), "inf");
    EXPECT_EQ(cformat("%f", -static_cast<double>(INFINITY)), "-inf");
    EXPECT_EQ(cformat("%e", static_cast<double>(NAN)), "nan");
}

TEST_F(CFormatTest, LongResultsAreNotTruncated)
{
    const std::string text = cformat("%f", 1e300);
    EXPECT_EQ(text.size(), 301u + 7u);
    EXPECT_EQ(text.substr(0, 4), "1000");
    EXPECT_EQ(text.substr(text.size() - 7), ".000000");
}

TEST_F(CFormatTest, EmptyFormatGivesEmptyText)
{
    EXPECT_EQ(cformat("%s", ""), "");
}
