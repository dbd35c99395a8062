#include "inspect/engine/ErrorReport.h"

#include "common/core/CLocaleScope.h"
#include "inspect/engine/MpfrNumber.h"
#include "inspect/engine/NumberText.h"

#include <cmath>

namespace
{

constexpr int kMostDigitsCompared = 40;

} // namespace

std::string printedReal(const char* format, mpfr_srcptr number)
{
    const quillon::CLocaleScope cLocale;
    char* text = nullptr;
    if (mpfr_asprintf(&text, format, number) < 0) {
        return "n/a";
    }
    std::string result(text);
    mpfr_free_str(text);
    return result;
}

namespace
{

// The significant digits and decimal exponent of `number` rounded to `digits` digits.
std::pair<std::string, mpfr_exp_t> roundedDigits(mpfr_srcptr number, int digits)
{
    mpfr_exp_t exponent = 0;
    char* text = mpfr_get_str(nullptr, &exponent, 10, size_t(digits), number, MPFR_RNDN);
    std::pair<std::string, mpfr_exp_t> result(text, exponent);
    mpfr_free_str(text);
    return result;
}

std::string agreeingDigits(mpfr_srcptr value, mpfr_srcptr reference)
{
    if (mpfr_equal_p(value, reference)) {
        return "exact";
    }
    if (mpfr_zero_p(value) || mpfr_zero_p(reference)) {
        return "0";
    }
    int agreeing = 0;
    while (agreeing < kMostDigitsCompared &&
           roundedDigits(value, agreeing + 1) == roundedDigits(reference, agreeing + 1)) {
        ++agreeing;
    }
    return std::to_string(agreeing);
}

} // namespace

bool readReference(const std::string& text, mpfr_t reference)
{
    // MPFR alone would also take its own forms ("0b101", "1@5", "@nan@"): the syntax is checked
    // first, so that a reference reads exactly what a value reads.
    if (!isNumberText(text)) {
        return false;
    }
    const quillon::CLocaleScope cLocale;
    char* end = nullptr;
    mpfr_set_prec(reference, kReferenceBits);
    mpfr_strtofr(reference, text.c_str(), &end, 0, MPFR_RNDN);
    return end == text.c_str() + text.size();
}

ErrorReport compareWithReference(double value, FloatFormat format, const mpfr_t reference)
{
    ErrorReport report;
    report.reference = printedReal("%.40Rg", reference);
    if (!std::isfinite(value) || !mpfr_number_p(reference)) {
        report.absoluteError = report.relativeError = report.ulpError = "n/a";
        report.correctDigits = "0";
        return report;
    }
    MpfrNumber exactValue(64);
    mpfr_set_d(exactValue.get(), value, MPFR_RNDN);
    MpfrNumber difference(kReferenceBits);
    mpfr_sub(difference.get(), exactValue.get(), reference, MPFR_RNDN);
    report.absoluteError = printedReal("%.16Re", difference.get());

    report.correctDigits = agreeingDigits(exactValue.get(), reference);
    // Both measures scale the error by the reference: against 0 neither means anything (an
    // ulp there would be the smallest subnormal's, and any error billions of them).
    if (mpfr_zero_p(reference)) {
        report.relativeError = report.ulpError = "n/a";
        return report;
    }
    MpfrNumber relative(kReferenceBits);
    mpfr_div(relative.get(), difference.get(), reference, MPFR_RNDN);
    mpfr_abs(relative.get(), relative.get(), MPFR_RNDN);
    report.relativeError = printedReal("%.16Re", relative.get());

    // 2^e <= |reference| < 2^(e+1) with e = MPFR's exponent - 1.
    const int binaryExponent = int(mpfr_get_exp(reference)) - 1;
    MpfrNumber inUlps(kReferenceBits);
    mpfr_mul_2si(inUlps.get(), difference.get(), -ulpExponent(binaryExponent, format), MPFR_RNDN);
    report.ulpError = printedReal("%.2Rf", inUlps.get());
    return report;
}
