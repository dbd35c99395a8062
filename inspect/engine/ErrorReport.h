#pragma once

#include "inspect/engine/FloatBreakdown.h"

#include <mpfr.h>

#include <string>

// The precision, in bits, that references are held and errors computed at: far below one ulp of
// binary64 (53 bits), so the figures below are those of the value alone.
constexpr mpfr_prec_t kReferenceBits = 1024;

// How far a computed value lies from the true answer.
struct ErrorReport {
    // The reference to 40 significant digits (trailing zeros dropped).
    std::string reference;
    // value - reference, and that divided by |reference|, to 17 significant digits ("n/a" for
    // a relative error against 0, and for infinite or NaN values).
    std::string absoluteError;
    std::string relativeError;
    // value - reference in units in the last place of the value's format at the reference, to
    // two decimals ("n/a" against 0, and for infinite or NaN values).
    std::string ulpError;
    // How many leading significant decimal digits agree: the largest k such that value and
    // reference rounded to 1, 2, ..., k significant digits are equal; "exact" when they are
    // the same number.
    std::string correctDigits;
};

// An MPFR number printed with mpfr_printf's `format` ("%.16Re", say) in the C locale.
std::string printedReal(const char* format, mpfr_srcptr number);

// Reads a text in isNumberText's syntax into `reference` at kReferenceBits, rounded to nearest;
// false when the text is not a whole number in that syntax.
bool readReference(const std::string& text, mpfr_t reference);

// `reference` is held at any precision; `value` is representable in `format`.
ErrorReport compareWithReference(double value, FloatFormat format, const mpfr_t reference);
