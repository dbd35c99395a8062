#include "roots/engine/RootsSolver.h"
#include "tests/roots/GoldenGrid.h"

#include <chrono>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace
{

// A solver whose trace lines are collected instead of printed.
class QuietSolver
{
public:
    QuietSolver() : sink(std::tmpfile()), solver(sink) {}
    ~QuietSolver() { std::fclose(sink); }

    std::string trace() const
    {
        std::fflush(sink);
        std::rewind(sink);
        std::string text;
        for (int ch; (ch = std::fgetc(sink)) != EOF;) {
            text += static_cast<char>(ch);
        }
        return text;
    }

    std::FILE* sink;
    RootsSolver solver;
};

void expectGrid(const RootsSolver& solver, const std::string& golden)
{
    const GoldenGrid expected = GoldenGrid::load(golden);
    const RootsGrid grid = solver.showResults();
    const RootsAgreements agreements = solver.classifyRows();
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            EXPECT_EQ(grid[row][variant], expected.texts[row][variant])
                << golden << " row " << row << " variant " << variant;
        }
        EXPECT_EQ(agreements[row], expected.agreements[row]) << golden << " row " << row;
    }
}

} // namespace

TEST(RootsSolver, StartUpComputesAllFourColumns)
{
    QuietSolver quiet;
    const RootsSolver& solver = quiet.solver;
    for (int variant = 0; variant < kRootsVariantCount; ++variant) {
        EXPECT_TRUE(solver.isValid(variant));
    }
    expectGrid(solver, "grid-startup.tsv");
    // The naive single-precision large root keeps only a few correct digits.
    EXPECT_EQ(solver.showResults()[RowLargeRoot][0], "-1.007080e-03");
    EXPECT_EQ(solver.showResults()[RowLargeRoot][2], "-1.000001000023e-03");
    EXPECT_EQ(solver.classifyRows()[RowLargeRoot], 3);
    EXPECT_EQ(quiet.trace(), "1000000.000000 4.000000 \n");
}

TEST(RootsSolver, ExampleOneIsARegularEquation)
{
    QuietSolver quiet;
    quiet.solver.useExample(1);
    expectGrid(quiet.solver, "grid-example1.tsv");
}

TEST(RootsSolver, ExampleTwoLosesTheNaiveSingleLargeRoot)
{
    QuietSolver quiet;
    quiet.solver.useExample(2);
    expectGrid(quiet.solver, "grid-example2.tsv");
    const RootsGrid grid = quiet.solver.showResults();
    EXPECT_EQ(grid[RowLargeRoot][0], "0.000000e+00");
    EXPECT_EQ(grid[RowLargeRoot][1], "-1.000000e-04");
    EXPECT_EQ(quiet.solver.classifyRows()[RowLargeRoot], -1);
}

TEST(RootsSolver, ExampleThreeHasEqualRootsOnlyInSinglePrecision)
{
    QuietSolver quiet;
    RootsSolver& solver = quiet.solver;
    solver.useExample(3);
    expectGrid(solver, "grid-example3.tsv");
    EXPECT_EQ(solver.singleC(), 250000.0f);
    EXPECT_EQ(solver.quantity(RowFourAC).naive, solver.quantity(RowB2).naive);
    EXPECT_EQ(solver.quantity(RowB2).naive, 10000.0f);
    const RootsGrid grid = solver.showResults();
    for (int variant : {0, 1}) {
        EXPECT_EQ(grid[RowSqrtD][variant], "0.000000e+00");
        EXPECT_EQ(grid[RowLargeRoot][variant], "-5.000000e+03");
        EXPECT_EQ(grid[RowSmallRoot][variant], "-5.000000e+03");
    }
    const double discriminant = solver.quantity(RowB2).dbl - solver.quantity(RowFourAC).dbl;
    EXPECT_NEAR(discriminant, 4e-7, 1e-10);
    EXPECT_NE(grid[RowLargeRoot][2], grid[RowSmallRoot][2]);
    EXPECT_NE(grid[RowLargeRoot][3], grid[RowSmallRoot][3]);
}

TEST(RootsSolver, ExampleThreeThenCFromItsFieldUsesTheRoundedValue)
{
    QuietSolver quiet;
    RootsSolver& solver = quiet.solver;
    solver.useExample(3);
    solver.readC("250000.000000");
    solver.recomputeAll();
    EXPECT_EQ(solver.quantity(RowFourAC).naive, 10000.0f);
    // The double column now works with c = 250000 (a stays the truncation of 0.01).
    EXPECT_EQ(solver.showResults()[RowSqrtD][2], "1.348699152349e-06");
}

TEST(RootsSolver, NegativeAIsTakenAsItsMagnitude)
{
    QuietSolver negative;
    QuietSolver positive;
    EXPECT_FALSE(negative.solver.readA("-2"));
    EXPECT_FALSE(positive.solver.readA("2"));
    negative.solver.recomputeAll();
    positive.solver.recomputeAll();
    EXPECT_EQ(negative.solver.showResults(), positive.solver.showResults());
    EXPECT_EQ(negative.solver.singleA(), 2.0f);
}

TEST(RootsSolver, ATooSmallBecomesTheMinimum)
{
    for (const char* text : {"0", "0.000000001", "-0.000000009"}) {
        QuietSolver quiet;
        EXPECT_TRUE(quiet.solver.readA(text)) << text;
        quiet.solver.recomputeAll();
        EXPECT_EQ(quiet.solver.singleA(), 1e-8f) << text;
    }
    QuietSolver atMinimum;
    EXPECT_FALSE(atMinimum.solver.readA("0.00000001"));
}

TEST(RootsSolver, ZeroBAndCDivideZeroByZeroInTheCancellationColumn)
{
    QuietSolver quiet;
    quiet.solver.readB("0");
    quiet.solver.readC("0");
    quiet.solver.recomputeAll();
    const RootsGrid grid = quiet.solver.showResults();
    EXPECT_EQ(grid[RowLargeRoot][1], "-0.000000e+00");
    EXPECT_TRUE(std::isnan(quiet.solver.quantity(RowSmallRoot).cancel));
    EXPECT_NE(grid[RowSmallRoot][1].find("nan"), std::string::npos) << grid[RowSmallRoot][1];
    EXPECT_EQ(grid[RowSmallRoot][0], "-0.000000e+00");
}

TEST(RootsSolver, MalformedTextTakesWhatTheScratchValueHolds)
{
    QuietSolver quiet;
    RootsSolver& solver = quiet.solver;
    // As the Calculate button reads them: a, then b, then c, then one recomputation.
    solver.readA("3");
    solver.readB("not a number");
    solver.readC("-");
    solver.recomputeAll();
    EXPECT_EQ(solver.singleA(), 3.0f);
    EXPECT_EQ(solver.singleB(), 3.0f);
    EXPECT_EQ(solver.singleC(), 3.0f);
}

TEST(RootsSolver, NegativeDiscriminantShowsNoRoots)
{
    QuietSolver quiet;
    quiet.solver.readB("1");
    quiet.solver.readC("1");
    quiet.solver.recomputeAll();
    for (int variant = 0; variant < kRootsVariantCount; ++variant) {
        EXPECT_FALSE(quiet.solver.isValid(variant));
    }
    const RootsGrid grid = quiet.solver.showResults();
    for (int variant = 0; variant < kRootsVariantCount; ++variant) {
        EXPECT_NE(grid[RowB2][variant].find("1.0"), std::string::npos);
        EXPECT_EQ(grid[RowSqrtD][variant], "No real value");
        EXPECT_EQ(grid[RowLargeRoot][variant], "No real roots");
        EXPECT_EQ(grid[RowLargeResult][variant], "N/A");
        EXPECT_EQ(grid[RowSmallRoot][variant], "No real roots");
        EXPECT_EQ(grid[RowSmallResult][variant], "N/A");
    }
    EXPECT_EQ(quiet.solver.classifyRows(), RootsAgreements{});
}

TEST(RootsSolver, SinglePrecisionCanMissRootsThatDoublePrecisionFinds)
{
    QuietSolver quiet;
    quiet.solver.readA("1");
    quiet.solver.readB("2.784548160");
    quiet.solver.readC("1.938427098");
    quiet.solver.recomputeAll();
    expectGrid(quiet.solver, "grid-single-invalid.tsv");
    EXPECT_FALSE(quiet.solver.isValid(0));
    EXPECT_FALSE(quiet.solver.isValid(1));
    EXPECT_TRUE(quiet.solver.isValid(2));
    EXPECT_TRUE(quiet.solver.isValid(3));
}

TEST(RootsSolver, ToleranceChainGivesClassOne)
{
    QuietSolver quiet;
    quiet.solver.readA("1");
    quiet.solver.readB("-0.000708052");
    quiet.solver.readC("0.000000078");
    quiet.solver.recomputeAll();
    expectGrid(quiet.solver, "grid-tolerance-chain.tsv");
    EXPECT_EQ(quiet.solver.classifyRows()[RowSmallRoot], 1);
}

TEST(RootsSolver, ClassifiesEveryPattern)
{
    QuietSolver quiet;
    const RootsSolver& solver = quiet.solver;
    EXPECT_EQ(solver.classifyAgreement(1.0f, 1.0f, 1.0), 0);
    EXPECT_EQ(solver.classifyAgreement(0.0f, 1.0f, 2.0), 3);
    EXPECT_EQ(solver.classifyAgreement(5.0f, 1.0f, 1.0), -1);
    EXPECT_EQ(solver.classifyAgreement(1.0f, 5.0f, 1.0), -2);
    EXPECT_EQ(solver.classifyAgreement(1.0f, 1.0f, 5.0), -3);
    // p and q 1.5e-11 apart, r halfway: only one pair is beyond the tolerance.
    EXPECT_EQ(solver.classifyAgreement(0.0f, 1.5e-11f, 0.75e-11), 1);
    // Differences of exactly the tolerance do not count.
    EXPECT_EQ(solver.classifyAgreement(0.0f, 0.0f, 1e-11), 0);
}

TEST(RootsSolver, ClassIsZeroWhenAComparedVariantHasNoRoots)
{
    QuietSolver quiet;
    quiet.solver.readA("1");
    quiet.solver.readB("2.784548160");
    quiet.solver.readC("1.938427098");
    quiet.solver.recomputeAll();
    EXPECT_EQ(quiet.solver.classifyAgreement(0.0f, 1.0f, 2.0), 0);
}

TEST(RootsSolver, ExtremeInputsGiveReadableTextQuickly)
{
    const std::string manyDigits(10000, '9');
    for (const std::string& text :
         {std::string("1e400"), std::string("-1e400"), manyDigits, std::string("1e999999999")}) {
        QuietSolver quiet;
        const auto start = std::chrono::steady_clock::now();
        quiet.solver.readB(text);
        quiet.solver.readC(text);
        quiet.solver.recomputeAll();
        const RootsGrid grid = quiet.solver.showResults();
        const auto elapsed = std::chrono::steady_clock::now() - start;
        EXPECT_LT(elapsed, std::chrono::milliseconds(500)) << text.substr(0, 20);
        for (const auto& row : grid) {
            for (const std::string& cell : row) {
                EXPECT_FALSE(cell.empty());
                EXPECT_LT(cell.size(), 40u) << cell;
            }
        }
    }
}

TEST(RootsSolver, UnknownExampleChangesNothing)
{
    QuietSolver quiet;
    const RootsGrid before = quiet.solver.showResults();
    quiet.solver.useExample(0);
    quiet.solver.useExample(4);
    EXPECT_EQ(quiet.solver.showResults(), before);
}

namespace
{

// Puts the C library in a locale whose decimal point is a comma, as the application object
// does for a user in Germany or France, and back to "C" at the end of the test.
class CommaLocaleSolver : public ::testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        ASSERT_NE(std::setlocale(LC_ALL, GetParam()), nullptr)
            << GetParam() << " is not generated on this machine (scripts/ensure-test-locale.sh)";
        ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

} // namespace

TEST_P(CommaLocaleSolver, GivesTheSameGridsAsTheCLocale)
{
    QuietSolver startUp;
    expectGrid(startUp.solver, "grid-startup.tsv");
    EXPECT_EQ(startUp.trace(), "1000000.000000 4.000000 \n");
    for (int example : {1, 2, 3}) {
        QuietSolver quiet;
        quiet.solver.useExample(example);
        expectGrid(quiet.solver, "grid-example" + std::to_string(example) + ".tsv");
    }
    QuietSolver typed;
    typed.solver.readA("1");
    typed.solver.readB("-0.000708052");
    typed.solver.readC("0.000000078");
    typed.solver.recomputeAll();
    expectGrid(typed.solver, "grid-tolerance-chain.tsv");
}

INSTANTIATE_TEST_SUITE_P(GermanAndFrench, CommaLocaleSolver,
                         ::testing::Values("de_DE.UTF-8", "fr_FR.UTF-8"));
