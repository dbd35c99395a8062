#include "inspect/engine/AssoReference.h"

#include <algorithm>
#include <cmath>

namespace
{

// Each step multiplies an error by the map's slope, (R + 1) - 2 R X, at most |R| + 1 in size
// while X stays within [0, 1 + 1/R]: log2(|R| + 1) bits a step, at least one.
long bitsLostPerStep(float r)
{
    return std::max(1L, long(std::ceil(std::log2(std::fabs(double(r)) + 1.0))));
}

// The recurrence at working precisions scaled by `scale`: at step k of n, enough bits for the
// target plus what the remaining n - k steps can lose.
MpfrNumber iterate(float x0, float r, int iteration, long scale)
{
    const long perStep = bitsLostPerStep(r);
    const auto bitsAt = [&](int step) {
        return (kAssoReferenceTargetBits + 64 + perStep * long(iteration - step)) * scale;
    };
    MpfrNumber x(bitsAt(0));
    mpfr_set_flt(x.get(), x0, MPFR_RNDN);
    MpfrNumber square(64);
    // R is a float (24 bits), R + 1 at most 25 bits more than its exponent span: both exact.
    MpfrNumber rValue(64);
    mpfr_set_flt(rValue.get(), r, MPFR_RNDN);
    MpfrNumber rPlusOne(300);
    mpfr_add_ui(rPlusOne.get(), rValue.get(), 1, MPFR_RNDN);
    for (int step = 1; step <= iteration; ++step) {
        const long bits = bitsAt(step);
        mpfr_prec_round(x.get(), bits, MPFR_RNDN);
        mpfr_set_prec(square.get(), bits);
        mpfr_sqr(square.get(), x.get(), MPFR_RNDN);
        mpfr_mul(square.get(), square.get(), rValue.get(), MPFR_RNDN);
        mpfr_mul(x.get(), x.get(), rPlusOne.get(), MPFR_RNDN);
        mpfr_sub(x.get(), x.get(), square.get(), MPFR_RNDN);
    }
    return x;
}

} // namespace

AssoReference assoReference(float x0, float r, int iteration)
{
    AssoReference reference;
    reference.startBits = kAssoReferenceTargetBits + 64 + bitsLostPerStep(r) * long(iteration);
    reference.value = iterate(x0, r, iteration, 1);
    const MpfrNumber twice = iterate(x0, r, iteration, 2);
    MpfrNumber difference(64);
    mpfr_sub(difference.get(), reference.value.get(), twice.get(), MPFR_RNDN);
    if (mpfr_zero_p(difference.get())) {
        reference.checked = true;
    } else if (!mpfr_zero_p(twice.get()) && mpfr_number_p(difference.get())) {
        // |difference| <= 2^-target |value|, compared through exponents.
        reference.checked =
            mpfr_get_exp(difference.get()) <= mpfr_get_exp(twice.get()) - kAssoReferenceTargetBits;
    }
    return reference;
}
