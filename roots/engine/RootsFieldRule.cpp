#include "RootsFieldRule.h"

#include <charconv>
#include <cstddef>

namespace
{

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

// Checks the shape of the text; counts the digits before and after the point.
bool hasDecimalShape(const std::string& text, size_t start, int& integerDigits, int& fractionDigits)
{
    bool seenPoint = false;
    integerDigits = 0;
    fractionDigits = 0;
    for (size_t i = start; i < text.size(); ++i) {
        if (text[i] == '.' && !seenPoint) {
            seenPoint = true;
        } else if (isDigit(text[i])) {
            ++(seenPoint ? fractionDigits : integerDigits);
        } else {
            return false;
        }
    }
    return integerDigits + fractionDigits > 0;
}

} // namespace

bool isAcceptableFieldText(const std::string& text, const RootsFieldRange& range)
{
    if (text.empty()) {
        return false;
    }
    const bool negative = text[0] == '-';
    const bool signed_ = negative || text[0] == '+';
    if (negative && range.bottom >= 0) {
        return false;
    }
    int integerDigits = 0;
    int fractionDigits = 0;
    const size_t start = signed_ ? 1 : 0;
    if (!hasDecimalShape(text, start, integerDigits, fractionDigits) ||
        fractionDigits > range.decimals) {
        return false;
    }
    double magnitude = 0.0;
    const auto result = std::from_chars(text.data() + start, text.data() + text.size(), magnitude);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
        return false;
    }
    const double value = negative ? -magnitude : magnitude;
    return range.bottom <= value && value <= range.top;
}
