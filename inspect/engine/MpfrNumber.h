#pragma once

#include <mpfr.h>

// An MPFR number that owns its storage: initialised at a precision, cleared when it goes.
class MpfrNumber
{
public:
    explicit MpfrNumber(mpfr_prec_t bits) { mpfr_init2(number, bits); }
    ~MpfrNumber() { mpfr_clear(number); }
    MpfrNumber(const MpfrNumber& other) : MpfrNumber(mpfr_get_prec(other.number))
    {
        mpfr_set(number, other.number, MPFR_RNDN);
    }
    MpfrNumber& operator=(const MpfrNumber& other)
    {
        mpfr_set_prec(number, mpfr_get_prec(other.number));
        mpfr_set(number, other.number, MPFR_RNDN);
        return *this;
    }

    mpfr_ptr get() { return number; }
    mpfr_srcptr get() const { return number; }

private:
    mpfr_t number;
};
