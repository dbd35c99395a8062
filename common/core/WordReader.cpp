#include "common/core/WordReader.h"

#include <climits>
#include <utility>

namespace quillon
{

WordReader::WordReader(std::string text) : text(std::move(text)) {}

bool WordReader::isWhitespaceAt(size_t index) const
{
    switch (text[index]) {
    case ' ':
    case '\t':
    case '\n':
    case '\v':
    case '\f':
    case '\r':
        return true;
    default:
        return false;
    }
}

bool WordReader::isDigitAt(size_t index) const
{
    return index < text.size() && text[index] >= '0' && text[index] <= '9';
}

void WordReader::skipWhitespace()
{
    while (position < text.size() && isWhitespaceAt(position)) {
        ++position;
    }
}

bool WordReader::readWord(std::string& word)
{
    skipWhitespace();
    const size_t start = position;
    while (position < text.size() && !isWhitespaceAt(position) &&
           position - start < kMaxWordLength) {
        ++position;
    }
    if (position == start) {
        return false;
    }
    word.assign(text, start, position - start);
    return true;
}

void WordReader::skipWords(int count)
{
    std::string ignored;
    for (int i = 0; i < count; ++i) {
        readWord(ignored);
    }
}

bool WordReader::readInt(int& value)
{
    skipWhitespace();
    size_t cursor = position;
    const bool negative = cursor < text.size() && text[cursor] == '-';
    if (cursor < text.size() && (text[cursor] == '-' || text[cursor] == '+')) {
        ++cursor;
    }
    if (!isDigitAt(cursor)) {
        return false;
    }
    // Accumulate towards the sign's own limit so that INT_MIN is reachable and larger
    // magnitudes stop at the limit.
    const long long limit = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    long long magnitude = 0;
    for (; isDigitAt(cursor); ++cursor) {
        magnitude = magnitude * 10 + (text[cursor] - '0');
        if (magnitude > limit) {
            magnitude = limit;
        }
    }
    position = cursor;
    value = static_cast<int>(negative ? -magnitude : magnitude);
    return true;
}

} // namespace quillon
