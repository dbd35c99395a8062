#pragma once

#include <string>

// The one syntax in which the inspector reads a number, the value and the reference alike: an
// optional sign, then a decimal in standard or exponent notation ("12", "1.5", ".5e-3"), a C99
// hex-float ("0x1.8p+1", "0x10"), "inf", "infinity" or "nan", letters in either case. Nothing
// else: no blanks, no other bases, no other exponent markers.
bool isNumberText(const std::string& text);

// What rounding a number text to a format did to its range.
enum class TextRange {
    Kept,
    // A finite number too large for the format: it became an infinity.
    Overflowed,
    // A number other than 0 too small for the format: it became a zero.
    Underflowed,
};

// `text` is one isNumberText accepts and `rounded` its value in the format.
TextRange textRange(const std::string& text, double rounded);
