#pragma once

#include <string>

namespace quillon
{

// What a number field of the program makes of a text, as its validator judges it: text that
// cannot be typed at all, text that can stand in the field but does not trigger Enter, and
// finished input.
enum class FieldState { Invalid, Intermediate, Acceptable };

// The judgement of a decimal field in the C locale with standard notation (no exponent),
// accepting bottom..top with at most `decimals` digits after the point. Group separators
// (',') are refused, as the program's fields refuse them, and so is a number too large for a
// double: like any number with more whole digits than the bounds, it cannot be typed.
FieldState validateDecimalField(const std::string& text, double bottom, double top, int decimals);

// The judgement of an integer field in the C locale accepting bottom..top, group separators
// refused.
FieldState validateIntegerField(const std::string& text, int bottom, int top);

} // namespace quillon
