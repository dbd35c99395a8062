#pragma once

#include <cstddef>
#include <string>

namespace quillon
{

// Reads a configuration file's text the way a C "%s" / "%d" scanner does, but bounded:
// words are whitespace-separated (carriage returns count as whitespace, so CRLF files read
// like LF files), a word longer than kMaxWordLength is returned in pieces of that length,
// and numbers too large for an int saturate instead of overflowing.
class WordReader
{
public:
    static constexpr size_t kMaxWordLength = 255;

    explicit WordReader(std::string text);

    // Skips whitespace and reads the next word. False at the end of the text.
    bool readWord(std::string& word);

    // Reads and drops `count` words (fewer at the end of the text).
    void skipWords(int count);

    // Skips whitespace and reads an optionally signed decimal integer. When the next word
    // does not start with one, returns false, leaves `value` alone and consumes nothing but
    // the whitespace, so the word is still there for readWord.
    bool readInt(int& value);

private:
    void skipWhitespace();
    bool isWhitespaceAt(size_t index) const;
    bool isDigitAt(size_t index) const;

    std::string text;
    size_t position = 0;
};

} // namespace quillon
