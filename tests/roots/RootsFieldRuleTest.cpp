#include "roots/engine/RootsFieldRule.h"

#include <gtest/gtest.h>

TEST(RootsFieldRule, AcceptsPlainDecimalsInRange)
{
    for (const char* text : {"1", "1.000000", "0.01", ".5", "5.", "100000000", "0.00000001",
                             "0.000000001", "+3", "007", "99999999.999999999"}) {
        EXPECT_TRUE(isAcceptableFieldText(text, kRootsAField)) << text;
    }
    for (const char* text : {"-1", "-100000000", "0", "-0", "249999.99999", "-0.5"}) {
        EXPECT_TRUE(isAcceptableFieldText(text, kRootsBCField)) << text;
    }
}

TEST(RootsFieldRule, RefusesWhatTheFieldWouldNotTakeOnEnter)
{
    for (const char* text :
         {"",     "-",   "+",  ".",   "0",     "0.000000000", "-1",  "100000000.1",
          "1e3",  "1,5", " 1", "1 ",  "0x10",  "nan",         "inf", "1.0000000001",
          "1..2", "abc", "1-", "--1", "1,000", "12,345.5"}) {
        EXPECT_FALSE(isAcceptableFieldText(text, kRootsAField)) << text;
    }
    for (const char* text : {"-100000000.5", "200000000", "1e400", "1.5e2", "- 1"}) {
        EXPECT_FALSE(isAcceptableFieldText(text, kRootsBCField)) << text;
    }
}

TEST(RootsFieldRule, VeryLongTextIsRefusedNotOverflowed)
{
    EXPECT_FALSE(isAcceptableFieldText(std::string(10000, '9'), kRootsBCField));
    EXPECT_FALSE(isAcceptableFieldText("0." + std::string(10000, '0') + "1", kRootsBCField));
}
