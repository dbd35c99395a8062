#include "inspect/engine/RootsReference.h"

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/GmpRational.h"

#include <cmath>

std::optional<std::array<MpfrNumber, 7>> rootsReference(mpf_srcptr a, mpf_srcptr b, mpf_srcptr c)
{
    const auto exact = [](mpf_srcptr value) {
        MpfrNumber number(kReferenceBits);
        mpfr_set_f(number.get(), value, MPFR_RNDN);
        return number;
    };
    const MpfrNumber ra = exact(a);
    const MpfrNumber rb = exact(b);
    const MpfrNumber rc = exact(c);
    std::array<MpfrNumber, 7> values = {MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
                                        MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
                                        MpfrNumber(kReferenceBits), MpfrNumber(kReferenceBits),
                                        MpfrNumber(kReferenceBits)};
    auto& [b2, fourAC, squareRoot, large, largeResidual, small, smallResidual] = values;
    mpfr_sqr(b2.get(), rb.get(), MPFR_RNDN);
    mpfr_mul(fourAC.get(), ra.get(), rc.get(), MPFR_RNDN);
    mpfr_mul_ui(fourAC.get(), fourAC.get(), 4, MPFR_RNDN);
    if (mpfr_less_p(b2.get(), fourAC.get())) {
        return std::nullopt;
    }
    mpfr_sub(squareRoot.get(), b2.get(), fourAC.get(), MPFR_RNDN);
    mpfr_sqrt(squareRoot.get(), squareRoot.get(), MPFR_RNDN);
    MpfrNumber twoA(kReferenceBits);
    mpfr_mul_ui(twoA.get(), ra.get(), 2, MPFR_RNDN);
    mpfr_sub(large.get(), squareRoot.get(), rb.get(), MPFR_RNDN);
    mpfr_div(large.get(), large.get(), twoA.get(), MPFR_RNDN);
    mpfr_neg(small.get(), rb.get(), MPFR_RNDN);
    mpfr_sub(small.get(), small.get(), squareRoot.get(), MPFR_RNDN);
    mpfr_div(small.get(), small.get(), twoA.get(), MPFR_RNDN);
    mpfr_set_zero(largeResidual.get(), 1);
    mpfr_set_zero(smallResidual.get(), 1);
    return values;
}

std::optional<MpfrNumber> residualAt(mpf_srcptr a, mpf_srcptr b, mpf_srcptr c, double root)
{
    if (!std::isfinite(root)) {
        return std::nullopt;
    }
    GmpRational x, sum, term;
    mpq_set_d(x.get(), root);
    // (a x + b) x + c, every step exact.
    mpq_set_f(sum.get(), a);
    mpq_mul(sum.get(), sum.get(), x.get());
    mpq_set_f(term.get(), b);
    mpq_add(sum.get(), sum.get(), term.get());
    mpq_mul(sum.get(), sum.get(), x.get());
    mpq_set_f(term.get(), c);
    mpq_add(sum.get(), sum.get(), term.get());
    MpfrNumber residual(kReferenceBits);
    mpfr_set_q(residual.get(), sum.get(), MPFR_RNDN);
    return residual;
}
