#include "inspect/engine/SineReference.h"

SineReference sineReference(int degrees, float argument, float factor, int terms)
{
    SineReference reference;
    MpfrNumber angle(kReferenceBits);
    mpfr_const_pi(angle.get(), MPFR_RNDN);
    mpfr_mul_si(angle.get(), angle.get(), degrees, MPFR_RNDN);
    mpfr_div_ui(angle.get(), angle.get(), 180, MPFR_RNDN);
    mpfr_sin(reference.trueSine.get(), angle.get(), MPFR_RNDN);

    MpfrNumber x(kReferenceBits);
    mpfr_set_flt(x.get(), argument, MPFR_RNDN);
    mpfr_sin(reference.argumentSine.get(), x.get(), MPFR_RNDN);
    mpfr_mul_d(reference.argumentSine.get(), reference.argumentSine.get(), double(factor),
               MPFR_RNDN);

    // term_j = term_{j-1} * -x^2 / ((2j) (2j + 1)), starting from x.
    MpfrNumber minusSquare(kReferenceBits);
    mpfr_sqr(minusSquare.get(), x.get(), MPFR_RNDN);
    mpfr_neg(minusSquare.get(), minusSquare.get(), MPFR_RNDN);
    MpfrNumber term(kReferenceBits);
    mpfr_set(term.get(), x.get(), MPFR_RNDN);
    mpfr_set_zero(reference.seriesSum.get(), 1);
    for (int j = 0; j < terms; ++j) {
        if (j > 0) {
            mpfr_mul(term.get(), term.get(), minusSquare.get(), MPFR_RNDN);
            mpfr_div_ui(term.get(), term.get(), static_cast<unsigned long>(2 * j), MPFR_RNDN);
            mpfr_div_ui(term.get(), term.get(), static_cast<unsigned long>(2 * j + 1), MPFR_RNDN);
        }
        mpfr_add(reference.seriesSum.get(), reference.seriesSum.get(), term.get(), MPFR_RNDN);
    }
    mpfr_mul_d(reference.seriesSum.get(), reference.seriesSum.get(), double(factor), MPFR_RNDN);
    return reference;
}
