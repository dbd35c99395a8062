#include "inspect/engine/NumberText.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <regex>

namespace
{

// Of the texts isNumberText accepts, only "inf", "infinity" and "nan" hold an 'n': no digit,
// hex digit or marker is one.
bool isInfinityOrNan(const std::string& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](char ch) { return std::tolower(static_cast<unsigned char>(ch)) == 'n'; });
}

// Whether the digits before the exponent include one other than 0: the text stands for a
// number other than 0.
bool hasNonZeroDigit(const std::string& text)
{
    const bool hex = text.find_first_of("xX") != std::string::npos;
    const std::string significand = text.substr(0, text.find_first_of(hex ? "pP" : "eE"));
    const size_t start = hex ? significand.find_first_of("xX") + 1 : 0;
    return significand.find_first_of(hex ? "123456789abcdefABCDEF" : "123456789", start) !=
           std::string::npos;
}

} // namespace

bool isNumberText(const std::string& text)
{
    static const std::regex number("[+-]?("
                                   "([0-9]+[.]?[0-9]*|[.][0-9]+)(e[+-]?[0-9]+)?|"
                                   "0x([0-9a-f]+[.]?[0-9a-f]*|[.][0-9a-f]+)(p[+-]?[0-9]+)?|"
                                   "inf|infinity|nan)",
                                   std::regex::icase | std::regex::optimize);
    return std::regex_match(text, number);
}

TextRange textRange(const std::string& text, double rounded)
{
    if (isInfinityOrNan(text)) {
        return TextRange::Kept;
    }
    if (std::isinf(rounded)) {
        return TextRange::Overflowed;
    }
    if (rounded == 0 && hasNonZeroDigit(text)) {
        return TextRange::Underflowed;
    }
    return TextRange::Kept;
}
