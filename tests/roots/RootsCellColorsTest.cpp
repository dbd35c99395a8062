#include "roots/engine/RootsCellColors.h"

#include <gtest/gtest.h>

using quillon::ColorTriple;

namespace
{
const ColorTriple kBlack{0, 0, 0};
const ColorTriple kRed{255, 0, 0};
const ColorTriple kBlue{0, 1, 255};
const ColorTriple kPink{255, 0, 255};
} // namespace

TEST(RootsCellColors, InkFollowsTheAgreementClass)
{
    const struct {
        int agreement;
        ColorTriple inks[3];
    } table[] = {
        {0, {kBlack, kBlack, kBlack}}, {3, {kRed, kBlue, kPink}},     {-1, {kRed, kBlack, kBlack}},
        {-2, {kBlack, kBlue, kBlack}}, {-3, {kBlack, kBlack, kPink}},
    };
    for (const auto& row : table) {
        for (int variant = 0; variant < 3; ++variant) {
            const auto ink = rootsCellInk(row.agreement, variant);
            ASSERT_TRUE(ink.has_value()) << row.agreement;
            EXPECT_EQ(*ink, row.inks[variant]) << row.agreement << " " << variant;
        }
    }
}

TEST(RootsCellColors, ClassesOneAndTwoKeepTheCellsColours)
{
    for (int agreement : {1, 2}) {
        for (int variant = 0; variant < 3; ++variant) {
            EXPECT_FALSE(rootsCellInk(agreement, variant).has_value());
        }
    }
}

TEST(RootsCellColors, RowsAreBanded)
{
    const ColorTriple dark{200, 200, 200};
    const ColorTriple light{245, 245, 245};
    const ColorTriple expected[kRootsRowCount] = {dark, light, dark, light, dark, light, dark};
    for (int row = 0; row < kRootsRowCount; ++row) {
        EXPECT_EQ(rootsRowBackground(RootsRow(row)), expected[row]) << row;
    }
}
