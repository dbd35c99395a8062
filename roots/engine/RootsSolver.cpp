#include "roots/engine/RootsSolver.h"

#include "common/core/CFormat.h"

#include <cmath>
#include <utility>

using quillon::cformat;

namespace
{

constexpr double kAgreementTolerance = 1e-11;

// Rounds a value computed in double to single precision: the one rounding of an expression
// that the single-precision variants evaluate "in double".
float toSingle(double value)
{
    return static_cast<float>(value);
}

} // namespace

RootsSolver::RootsSolver(std::FILE* trace) : trace(trace)
{
    recomputeAll();
}

void RootsSolver::readInto(HighFloat& coefficient, const std::string& text)
{
    t1.parse(text);
    coefficient = t1;
}

bool RootsSolver::readA(const std::string& text)
{
    t1.parse(text);
    mpf_abs(t1.get(), t1.get());
    const bool belowMinimum = mpf_cmp(t1.get(), eps.get()) < 0;
    if (belowMinimum) {
        t1 = eps;
    }
    a = t1;
    return belowMinimum;
}

void RootsSolver::readB(const std::string& text)
{
    readInto(b, text);
}

void RootsSolver::readC(const std::string& text)
{
    readInto(c, text);
}

void RootsSolver::useExample(int number)
{
    const HighFloat* examples[3][3] = {
        {&ex1a, &ex1b, &ex1c}, {&ex2a, &ex2b, &ex2c}, {&ex3a, &ex3b, &ex3c}};
    if (number < 1 || number > 3) {
        return;
    }
    a = *examples[number - 1][0];
    b = *examples[number - 1][1];
    c = *examples[number - 1][2];
    recomputeAll();
}

void RootsSolver::recomputeAll()
{
    valid[0] = solveNaiveSingle();
    valid[1] = solveCancellationSingle();
    valid[2] = solveNaiveDouble();
    valid[3] = solveNaiveHigh();
}

void RootsSolver::computeSingleSquares(float& b2Single, float& fourACSingle)
{
    af = toSingle(a.toDouble());
    bf = toSingle(b.toDouble());
    cf = toSingle(c.toDouble());
    b2Single = bf * bf;
    fourACSingle = toSingle((double(af) * 4.0) * double(cf));
}

bool RootsSolver::solveNaiveSingle()
{
    computeSingleSquares(b2.naive, fourAC.naive);
    if (!(fourAC.naive <= b2.naive)) {
        return false;
    }
    const float d = b2.naive - fourAC.naive;
    const float s = sqrtD.naive = toSingle(std::sqrt(double(d)));
    x1.naive = toSingle((double(s) - double(bf)) * 0.5 / double(af));
    x2.naive = toSingle((-double(bf) - double(s)) * 0.5 / double(af));
    const double large = x1.naive;
    const double small = x2.naive;
    r1.naive = toSingle((double(af) * large) * large + double(bf) * large + double(cf));
    r2.naive = toSingle((double(af) * small) * small + double(bf) * small + double(cf));
    return true;
}

bool RootsSolver::solveCancellationSingle()
{
    computeSingleSquares(b2.cancel, fourAC.cancel);
    const double difference = double(b2.cancel) - double(fourAC.cancel);
    if (!(difference >= 0)) {
        return false;
    }
    const float s = sqrtD.cancel = toSingle(std::sqrt(double(toSingle(difference))));
    // The root whose numerator adds two numbers of the same sign loses nothing to
    // cancellation; the other follows from x1 * x2 = c / a.
    float large = bf >= 0 ? toSingle((-double(bf) - double(s)) * 0.5 / double(af))
                          : toSingle((double(s) - double(bf)) * 0.5 / double(af));
    float small = toSingle((double(cf) / double(af)) / double(large));
    if (small > large) {
        std::swap(large, small);
    }
    x1.cancel = large;
    x2.cancel = small;
    r1.cancel = toSingle((double(large) * double(af)) * double(large) + double(large) * double(bf) +
                         double(cf));
    r2.cancel = toSingle((double(small) * double(af)) * double(small) + double(small) * double(bf) +
                         double(cf));
    return true;
}

bool RootsSolver::solveNaiveDouble()
{
    ad = a.toDouble();
    bd = b.toDouble();
    cd = c.toDouble();
    b2.dbl = bd * bd;
    fourAC.dbl = (ad * 4.0) * cd;
    if (!(fourAC.dbl <= b2.dbl)) {
        return false;
    }
    const double s = sqrtD.dbl = std::sqrt(b2.dbl - fourAC.dbl);
    x1.dbl = (s - bd) * 0.5 / ad;
    x2.dbl = (-bd - s) * 0.5 / ad;
    r1.dbl = (x1.dbl * ad) * x1.dbl + x1.dbl * bd + cd;
    r2.dbl = (x2.dbl * ad) * x2.dbl + x2.dbl * bd + cd;
    return true;
}

bool RootsSolver::solveNaiveHigh()
{
    mpf_mul(b2.high.get(), b.get(), b.get());
    mpf_mul(t1.get(), a.get(), c.get());
    mpf_mul(fourAC.high.get(), four.get(), t1.get());
    if (mpf_cmp(b2.high.get(), fourAC.high.get()) < 0) {
        return false;
    }
    std::fputs(cformat("%f %f \n", b2.high.toDouble(), fourAC.high.toDouble()).c_str(), trace);
    std::fflush(trace);
    mpf_sub(t1.get(), b2.high.get(), fourAC.high.get());
    mpf_sqrt(sqrtD.high.get(), t1.get());

    mpf_neg(t1.get(), b.get());
    mpf_add(t1.get(), t1.get(), sqrtD.high.get());
    mpf_mul(t1.get(), t1.get(), half.get());
    mpf_div(x1.high.get(), t1.get(), a.get());

    mpf_neg(t1.get(), b.get());
    mpf_sub(t1.get(), t1.get(), sqrtD.high.get());
    mpf_mul(t1.get(), t1.get(), half.get());
    mpf_div(x2.high.get(), t1.get(), a.get());

    const std::pair<const HighFloat*, HighFloat*> rootsAndResults[] = {{&x1.high, &r1.high},
                                                                       {&x2.high, &r2.high}};
    for (const auto& [root, result] : rootsAndResults) {
        mpf_mul(t1.get(), a.get(), root->get());
        mpf_mul(t1.get(), t1.get(), root->get());
        mpf_mul(t2.get(), b.get(), root->get());
        mpf_add(result->get(), t1.get(), t2.get());
        mpf_add(result->get(), result->get(), c.get());
    }
    return true;
}

int RootsSolver::classifyAgreement(float p, float q, double r) const
{
    if (!valid[0] || !valid[1] || !valid[2]) {
        return 0;
    }
    const float singlesApart = std::fabs(p - q);
    const double secondToDouble = std::fabs(double(q) - r);
    const double firstToDouble = std::fabs(double(p) - r);
    const bool pq = singlesApart > kAgreementTolerance;
    const bool qr = secondToDouble > kAgreementTolerance;
    const bool pr = firstToDouble > kAgreementTolerance;
    const int differing = int(pq) + int(qr) + int(pr);
    if (differing == 3) {
        return 3;
    }
    if (differing != 2) {
        return differing;
    }
    if (pq && pr) {
        return -1;
    }
    if (std::fabs(q - p) > kAgreementTolerance && qr) {
        return -2;
    }
    if (pr && qr) {
        return -3;
    }
    return 2;
}

const RootsQuantity& RootsSolver::quantity(RootsRow row) const
{
    const RootsQuantity* byRow[kRootsRowCount] = {&b2, &fourAC, &sqrtD, &x1, &r1, &x2, &r2};
    return *byRow[row];
}

RootsAgreements RootsSolver::classifyRows() const
{
    RootsAgreements agreements{};
    for (int row = 0; row < kRootsRowCount; ++row) {
        const RootsQuantity& value = quantity(static_cast<RootsRow>(row));
        agreements[row] = classifyAgreement(value.naive, value.cancel, value.dbl);
    }
    return agreements;
}

std::string RootsSolver::cellText(RootsRow row, int variant) const
{
    const bool alwaysShown = row == RowB2 || row == RowFourAC;
    if (!alwaysShown && !valid[variant]) {
        switch (row) {
        case RowSqrtD:
            return "No real value";
        case RowLargeRoot:
        case RowSmallRoot:
            return "No real roots";
        default:
            return "N/A";
        }
    }
    const RootsQuantity& value = quantity(row);
    switch (variant) {
    case 0:
        return cformat("%.6e", double(value.naive));
    case 1:
        return cformat("%.6e", double(value.cancel));
    case 2:
        return cformat("%.12e", value.dbl);
    default:
        return cformat("%.12e", value.high.toDouble());
    }
}

std::array<std::string, 3> RootsSolver::singleCopyTexts() const
{
    return {cformat("%f", double(af)), cformat("%f", double(bf)), cformat("%f", double(cf))};
}

RootsGrid RootsSolver::showResults() const
{
    RootsGrid grid;
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            grid[row][variant] = cellText(static_cast<RootsRow>(row), variant);
        }
    }
    return grid;
}
