#include "inspect/engine/NumberText.h"

#include <algorithm>
#include <cctype>
#include <cmath>

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

// Moves `at` past the decimal (or hexadecimal) digits there; returns how many it passed.
size_t skipDigits(const std::string& text, size_t& at, bool hex)
{
    const size_t start = at;
    while (at < text.size() && (hex ? std::isxdigit(static_cast<unsigned char>(text[at]))
                                    : std::isdigit(static_cast<unsigned char>(text[at])))) {
        ++at;
    }
    return at - start;
}

} // namespace

bool isNumberText(const std::string& text)
{
    // Scanned by hand, in one pass: a regular expression engine that backtracks recursively
    // runs out of stack on a text of some ten thousand digits.
    const size_t signLength = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::string rest = text.substr(signLength);
    std::transform(rest.begin(), rest.end(), rest.begin(),
                   [](char ch) { return char(std::tolower(static_cast<unsigned char>(ch))); });
    if (rest == "inf" || rest == "infinity" || rest == "nan") {
        return true;
    }
    const bool hex = rest.rfind("0x", 0) == 0;
    size_t at = hex ? 2 : 0;
    size_t digits = skipDigits(rest, at, hex);
    if (at < rest.size() && rest[at] == '.') {
        ++at;
        digits += skipDigits(rest, at, hex);
    }
    if (digits == 0) {
        return false;
    }
    if (at < rest.size() && rest[at] == (hex ? 'p' : 'e')) {
        ++at;
        if (at < rest.size() && (rest[at] == '+' || rest[at] == '-')) {
            ++at;
        }
        if (skipDigits(rest, at, false) == 0) {
            return false;
        }
    }
    return at == rest.size();
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
