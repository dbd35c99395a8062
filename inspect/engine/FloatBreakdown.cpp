#include "inspect/engine/FloatBreakdown.h"

#include "common/core/CFormat.h"
#include "common/core/CLocaleScope.h"
#include "inspect/engine/NumberText.h"

#include <gmp.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{

struct FormatTraits {
    int fractionBits;
    int exponentBits;
    int bias;
};

FormatTraits traitsOf(FloatFormat format)
{
    return format == FloatFormat::Single ? FormatTraits{23, 8, 127} : FormatTraits{52, 11, 1023};
}

uint64_t bitPattern(double value, FloatFormat format)
{
    if (format == FloatFormat::Single) {
        const float single = float(value);
        uint32_t bits = 0;
        std::memcpy(&bits, &single, sizeof bits);
        return bits;
    }
    uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double nextToward(double value, FloatFormat format, double direction)
{
    if (format == FloatFormat::Single) {
        return double(std::nextafter(float(value), float(direction)));
    }
    return std::nextafter(value, direction);
}

// 2^exponent written out exactly.
std::string exactPowerOfTwo(int exponent)
{
    return exactDecimal(std::ldexp(1.0, exponent));
}

} // namespace

const char* formatName(FloatFormat format)
{
    return format == FloatFormat::Single ? "binary32" : "binary64";
}

std::optional<double> readFloatText(const std::string& text, FloatFormat format)
{
    if (!isNumberText(text)) {
        return std::nullopt;
    }
    const quillon::CLocaleScope cLocale;
    char* end = nullptr;
    errno = 0;
    // Read straight into the format: a decimal read into double first and then rounded to
    // single could be rounded twice.
    const double value = format == FloatFormat::Single ? double(std::strtof(text.c_str(), &end))
                                                       : std::strtod(text.c_str(), &end);
    if (end != text.c_str() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::string exactDecimal(double value)
{
    const std::string sign = std::signbit(value) ? "-" : "";
    if (std::isnan(value)) {
        return sign + "nan";
    }
    if (std::isinf(value)) {
        return sign + "inf";
    }
    if (value == 0) {
        return sign + "0";
    }
    // |value| = mantissa * 2^exponent with a 53-bit integer mantissa.
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    const auto mantissa = static_cast<unsigned long>(std::ldexp(fraction, 53));
    exponent -= 53;
    mpz_t digits;
    mpz_init_set_ui(digits, mantissa);
    int decimals = 0;
    if (exponent >= 0) {
        mpz_mul_2exp(digits, digits, static_cast<mp_bitcnt_t>(exponent));
    } else {
        // m / 2^k = m * 5^k / 10^k: the digits of m * 5^k with k of them after the point.
        mpz_t five;
        mpz_init(five);
        mpz_ui_pow_ui(five, 5, static_cast<unsigned long>(-exponent));
        mpz_mul(digits, digits, five);
        mpz_clear(five);
        decimals = -exponent;
    }
    std::string text(mpz_sizeinbase(digits, 10) + 2, '\0');
    mpz_get_str(text.data(), 10, digits);
    mpz_clear(digits);
    text.resize(std::strlen(text.c_str()));
    if (decimals > 0) {
        if (int(text.size()) <= decimals) {
            text.insert(0, size_t(decimals - int(text.size()) + 1), '0');
        }
        text.insert(text.size() - size_t(decimals), 1, '.');
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return sign + text;
}

int ulpExponent(int binaryExponent, FloatFormat format)
{
    const FormatTraits traits = traitsOf(format);
    return std::max(binaryExponent, 1 - traits.bias) - traits.fractionBits;
}

FloatBreakdown breakDown(double value, FloatFormat format)
{
    const FormatTraits traits = traitsOf(format);
    const uint64_t bits = bitPattern(value, format);
    const int width = 1 + traits.exponentBits + traits.fractionBits;
    const uint64_t fractionMask = (uint64_t(1) << traits.fractionBits) - 1;
    const uint64_t exponentMask = (uint64_t(1) << traits.exponentBits) - 1;

    FloatBreakdown breakdown;
    breakdown.format = format;
    breakdown.sign = int(bits >> (width - 1));
    breakdown.biasedExponent = int((bits >> traits.fractionBits) & exponentMask);
    const uint64_t fraction = bits & fractionMask;
    const bool special = breakdown.biasedExponent == int(exponentMask);
    const bool subnormalOrZero = breakdown.biasedExponent == 0;
    breakdown.unbiasedExponent =
        subnormalOrZero ? 1 - traits.bias : breakdown.biasedExponent - traits.bias;
    if (special) {
        breakdown.kind = fraction == 0 ? "infinity" : "NaN";
    } else if (subnormalOrZero) {
        breakdown.kind = fraction == 0 ? "zero" : "subnormal";
    } else {
        breakdown.kind = "normal";
    }

    // Infinities and NaNs have no hidden bit: only their fraction field is shown.
    breakdown.significand = special ? "" : subnormalOrZero ? "0." : "1.";
    for (int bit = traits.fractionBits - 1; bit >= 0; --bit) {
        breakdown.significand += ((fraction >> bit) & 1) != 0 ? '1' : '0';
    }
    breakdown.bits = quillon::cformat("0x%0*llx", width / 4, static_cast<unsigned long long>(bits));
    breakdown.hexFloat = quillon::cformat("%a", value);
    breakdown.exactDecimal = exactDecimal(value);
    breakdown.nextDown = exactDecimal(nextToward(value, format, -INFINITY));
    breakdown.nextUp = exactDecimal(nextToward(value, format, INFINITY));
    breakdown.ulp =
        special ? "n/a" : exactPowerOfTwo(ulpExponent(breakdown.unbiasedExponent, format));
    return breakdown;
}
