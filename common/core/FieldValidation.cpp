#include "common/core/FieldValidation.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace quillon
{
namespace
{

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

// The characters of a number as the field's validator scans them: digits, at most one
// decimal point (none in an integer) with at most `decimals` digits after it, and a sign only
// at the start. Anything else, a group separator included, is out of place.
bool hasOnlyNumberCharacters(const std::string& text, bool integer, int decimals)
{
    bool fractional = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        if (isDigit(character)) {
            if (fractional && decimals-- == 0) {
                return false;
            }
        } else if (character == '.') {
            if (integer || fractional) {
                return false;
            }
            fractional = true;
        } else if (character != '+' && character != '-') {
            return false;
        } else if (i != 0) {
            return false;
        }
    }
    return true;
}

// Whether unsigned digits with an optional fraction have a whole part other than zero.
bool hasNonZeroWholePart(const std::string& digits)
{
    for (const char character : digits) {
        if (character == '.') {
            return false;
        }
        if (character != '0') {
            return true;
        }
    }
    return false;
}

// The number a text of number characters denotes: an optional sign, digits with an optional
// fraction. A number too large for a double is an infinity of its sign, so that it lies
// beyond every bound, as its digits do. Nothing when there is no digit.
std::optional<double> parseNumber(const std::string& text)
{
    const bool negative = !text.empty() && text[0] == '-';
    const size_t start = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const std::string digits = text.substr(start);
    if (digits.empty() || digits == ".") {
        return std::nullopt;
    }
    double magnitude = 0.0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    if (result.ptr != digits.data() + digits.size()) {
        return std::nullopt;
    }
    if (result.ec == std::errc::result_out_of_range && hasNonZeroWholePart(digits)) {
        magnitude = std::numeric_limits<double>::infinity();
    } else if (result.ec != std::errc()) {
        return std::nullopt;
    }
    return negative ? -magnitude : magnitude;
}

int digitCount(long long value)
{
    int count = 1;
    while (value >= 10) {
        value /= 10;
        ++count;
    }
    return count;
}

} // namespace

FieldState validateDecimalField(const std::string& text, double bottom, double top, int decimals)
{
    if (!hasOnlyNumberCharacters(text, false, decimals)) {
        return FieldState::Invalid;
    }
    if (text.empty()) {
        return FieldState::Intermediate;
    }
    if ((bottom >= 0 && text[0] == '-') || (top < 0 && text[0] == '+')) {
        return FieldState::Invalid;
    }
    const std::optional<double> value = parseNumber(text);
    if (!value) {
        return FieldState::Intermediate;
    }
    if (bottom <= *value && *value <= top) {
        return FieldState::Acceptable;
    }
    // Beyond the range: still typeable while it has no more whole digits than the larger
    // bound, so that a number can be typed digit by digit.
    const double largest = std::max(std::fabs(bottom), std::fabs(top));
    const double limit = std::pow(10.0, digitCount((long long)largest));
    if (std::fabs(*value) > limit - std::pow(10.0, -decimals)) {
        return FieldState::Invalid;
    }
    return FieldState::Intermediate;
}

FieldState validateIntegerField(const std::string& text, int bottom, int top)
{
    if (!hasOnlyNumberCharacters(text, true, 0)) {
        return FieldState::Invalid;
    }
    if (text.empty()) {
        return FieldState::Intermediate;
    }
    const bool minus = text[0] == '-';
    const bool plus = text[0] == '+';
    if ((bottom >= 0 && minus) || (top < 0 && plus)) {
        return FieldState::Invalid;
    }
    if (text.size() == 1 && (minus || plus)) {
        return FieldState::Intermediate;
    }
    long long entered = 0;
    const char* begin = text.data() + (plus ? 1 : 0);
    const auto result = std::from_chars(begin, text.data() + text.size(), entered);
    if (result.ec != std::errc()) {
        return FieldState::Invalid;
    }
    if (bottom <= entered && entered <= top) {
        return FieldState::Acceptable;
    }
    // The length that decides whether a number is too long to be still typed counts a minus
    // sign but not a plus sign.
    const long long length = static_cast<long long>(text.size()) - (plus ? 1 : 0);
    if (entered >= 0) {
        const bool tooLong = entered > top && -entered < bottom &&
                             length > digitCount(std::llabs(static_cast<long long>(top)));
        return tooLong ? FieldState::Invalid : FieldState::Intermediate;
    }
    const bool tooLong =
        entered < bottom && length > digitCount(std::llabs(static_cast<long long>(bottom)));
    return tooLong ? FieldState::Invalid : FieldState::Intermediate;
}

} // namespace quillon
