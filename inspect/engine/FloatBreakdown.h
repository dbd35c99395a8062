#pragma once

#include <optional>
#include <string>

// The two IEEE 754 binary formats the program computes in.
enum class FloatFormat { Single, Double };

// Everything one binary32 or binary64 value stores, and what it stands for exactly. Every
// decimal here is the exact value, with every digit and no rounding.
struct FloatBreakdown {
    FloatFormat format = FloatFormat::Single;
    // "normal", "subnormal", "zero", "infinity" or "NaN".
    std::string kind;
    int sign = 0;
    // The exponent field as stored, and the power of two it stands for (1 - bias for
    // subnormals and zeros, whose significand has no hidden 1).
    int biasedExponent = 0;
    int unbiasedExponent = 0;
    // The significand with its hidden bit: "1." or "0." then every fraction bit.
    std::string significand;
    // The bit pattern in hexadecimal ("0x3dcccccd") and the value as a C99 hex-float.
    std::string bits;
    std::string hexFloat;
    std::string exactDecimal;
    // The representable values either side (towards -infinity and +infinity).
    std::string nextDown;
    std::string nextUp;
    // The unit in the last place at this value's binade: 2^(exponent - fraction bits), the
    // step to the next value away from zero ("n/a" for infinities and NaN).
    std::string ulp;
};

// The value of `text` (in isNumberText's syntax) rounded once to the format, as a double (every
// binary32 value is one); nothing when the text is not a number.
std::optional<double> readFloatText(const std::string& text, FloatFormat format);

// `value` must be representable in `format`.
FloatBreakdown breakDown(double value, FloatFormat format);

// The exact decimal of a finite double
// ("0.1000000000000000055511151231257827021181583404541015625",
// "-0", "16777216"), or "inf", "-inf", "nan", "-nan": the sign bit is always shown.
std::string exactDecimal(double value);

// The unit in the last place of `format` for a real number of this binary exponent (the
// exponent e with 2^e <= |x| < 2^(e+1)); below the normal range it is the subnormals' step.
int ulpExponent(int binaryExponent, FloatFormat format);

const char* formatName(FloatFormat format);
