#pragma once

#include "roots/engine/HighFloat.h"
#include "roots/engine/RootsGrid.h"
#include "roots/engine/RootsQuantity.h"

#include <array>
#include <cstdio>
#include <string>

// The roots of a x^2 + b x + c = 0 computed four ways from one set of 256-bit coefficients:
// naive in single precision, cancellation-free in single precision, naive in double and
// naive in 256-bit precision. Every operation rounds exactly where the demonstration says,
// since the differences between the columns are what the Roots tab shows.
class RootsSolver
{
public:
    // Starts from a = 1, b = 1000, c = 1 and computes at once. The 256-bit solver writes a
    // trace line per run to `trace`.
    explicit RootsSolver(std::FILE* trace = stdout);

    // Reads the a field's text: the sign is dropped, and a magnitude below 1e-8 becomes 1e-8.
    // Returns true in that last case (the field then shows "0.000000"). Text that is not a
    // number leaves the scratch value's previous contents in place, as GMP does.
    bool readA(const std::string& text);
    void readB(const std::string& text);
    void readC(const std::string& text);

    // Takes example 1, 2 or 3 as a, b, c and recomputes; other numbers change nothing.
    void useExample(int number);

    // Runs the four solvers in column order and records which found real roots.
    void recomputeAll();

    bool solveNaiveSingle();
    bool solveCancellationSingle();
    bool solveNaiveDouble();
    bool solveNaiveHigh();

    // How the two single-precision values and the double value of one row agree, to within
    // 1e-11: 0 or 1 (at most one pair differs), 2, 3 (all differ), or -1, -2, -3 when only
    // variant 1, 2 or 3 is the odd one out. 0 whenever one of those variants found no roots.
    int classifyAgreement(float p, float q, double r) const;

    // The cell texts as the grid shows them.
    RootsGrid showResults() const;
    // classifyAgreement for every row, in display order.
    RootsAgreements classifyRows() const;

    const RootsQuantity& quantity(RootsRow row) const;
    bool isValid(int variant) const { return valid[variant]; }
    // The coefficients as held (256 bits, read from the fields' decimals).
    const HighFloat& highA() const { return a; }
    const HighFloat& highB() const { return b; }
    const HighFloat& highC() const { return c; }
    // The single-precision copies of a, b, c made by the last run.
    float singleA() const { return af; }
    float singleB() const { return bf; }
    float singleC() const { return cf; }
    // a, b and c as their fields show them after the start-up or an example: the
    // single-precision copies written with "%f".
    std::array<std::string, 3> singleCopyTexts() const;

private:
    // The first steps of both single-precision variants: the single copies of a, b, c, then
    // b^2 rounded to single and 4ac evaluated in double and rounded to single.
    void computeSingleSquares(float& b2Single, float& fourACSingle);
    void readInto(HighFloat& coefficient, const std::string& text);
    std::string cellText(RootsRow row, int variant) const;

    std::FILE* trace;
    HighFloat t1;
    HighFloat t2;
    HighFloat a{"1"};
    HighFloat b{"1000"};
    HighFloat c{"1"};
    HighFloat ex1a{"1"}, ex1b{"4"}, ex1c{"1"};
    HighFloat ex2a{"1"}, ex2b{"10000"}, ex2c{"1"};
    HighFloat ex3a{"0.01"}, ex3b{"100"}, ex3c{"249999.99999"};
    RootsQuantity b2, fourAC, sqrtD, x1, x2, r1, r2;
    HighFloat four{"4.0"};
    HighFloat half{"0.5"};
    HighFloat eps{"0.00000001"};
    float af = 0.0f, bf = 0.0f, cf = 0.0f;
    double ad = 0.0, bd = 0.0, cd = 0.0;
    bool valid[kRootsVariantCount] = {false, false, false, false};
};
