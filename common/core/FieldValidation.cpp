#include "common/core/FieldValidation.h"

#include <charconv>
#include <cmath>
#include <cstdint>
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
// decimal point (none in an integer) with at most `decimals` digits after it, a sign only at
// the start, and group separators only right after a digit of the whole part. Returns the
// text without its separators, or nothing when a character is out of place.
std::optional<std::string> scanCharacters(const std::string& text, bool integer, int decimals)
{
    std::string kept;
    bool fractional = false;
    char last = '\0';
    for (char character : text) {
        if (isDigit(character)) {
            if (fractional && decimals-- == 0) {
                return std::nullopt;
            }
        } else if (character == '.') {
            if (integer || fractional) {
                return std::nullopt;
            }
            fractional = true;
        } else if (character == '+' || character == '-') {
            if (last != '\0') {
                return std::nullopt;
            }
        } else if (character == ',') {
            if (fractional || !isDigit(last)) {
                return std::nullopt;
            }
        } else {
            return std::nullopt;
        }
        last = character;
        if (character != ',') {
            kept += character;
        }
    }
    return kept;
}

// The number a text denotes in the C locale: an optional sign, digits grouped by ','
// correctly (one to three digits, then groups of exactly three) or not at all, an optional
// fraction. Nothing for anything else.
std::optional<double> parseCLocaleNumber(const std::string& text)
{
    size_t position = 0;
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        position = 1;
    }
    std::string digits;
    int group = 0;
    bool grouped = false;
    for (; position < text.size() && text[position] != '.'; ++position) {
        const char character = text[position];
        if (character == ',') {
            if (grouped ? group != 3 : (group < 1 || group > 3)) {
                return std::nullopt;
            }
            grouped = true;
            group = 0;
        } else {
            digits += character;
            ++group;
        }
    }
    if (grouped && group != 3) {
        return std::nullopt;
    }
    digits += text.substr(position);
    if (digits.empty() || digits == ".") {
        return std::nullopt;
    }
    double magnitude = 0.0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size()) {
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
    const std::optional<std::string> kept = scanCharacters(text, false, decimals);
    if (!kept) {
        return FieldState::Invalid;
    }
    if (kept->empty()) {
        return FieldState::Intermediate;
    }
    if (bottom >= 0 && (*kept)[0] == '-') {
        return FieldState::Invalid;
    }
    if (top < 0 && (*kept)[0] == '+') {
        return FieldState::Invalid;
    }
    const std::optional<double> value = parseCLocaleNumber(text);
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
    const std::optional<std::string> kept = scanCharacters(text, true, 0);
    if (!kept) {
        return FieldState::Invalid;
    }
    if (kept->empty()) {
        return FieldState::Intermediate;
    }
    const bool minus = (*kept)[0] == '-';
    const bool plus = (*kept)[0] == '+';
    if ((bottom >= 0 && minus) || (top < 0 && plus)) {
        return FieldState::Invalid;
    }
    if (kept->size() == 1 && (minus || plus)) {
        return FieldState::Intermediate;
    }
    long long entered = 0;
    const char* begin = kept->data() + (plus ? 1 : 0);
    const auto result = std::from_chars(begin, kept->data() + kept->size(), entered);
    if (result.ec != std::errc()) {
        return FieldState::Invalid;
    }
    if (bottom <= entered && entered <= top) {
        return parseCLocaleNumber(text) ? FieldState::Acceptable : FieldState::Intermediate;
    }
    // The length that decides whether a number is too long to be still typed counts a minus
    // sign but not a plus sign.
    const long long length = static_cast<long long>(kept->size()) - (plus ? 1 : 0);
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
