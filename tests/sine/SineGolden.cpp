#include "tests/sine/SineGolden.h"

#include "tests/support/TestFiles.h"

#include <cstring>
#include <sstream>

uint32_t sineBits(float value)
{
    uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

float sineFloatOf(const std::string& hexBits)
{
    const uint32_t bits = static_cast<uint32_t>(std::stoul(hexBits, nullptr, 16));
    float value = 0.0f;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

std::string sineGolden(const std::string& name)
{
    return readTestFile(std::string(QUILLON_TEST_DATA_DIR "/") + name);
}

std::vector<std::string> sineWords(const std::string& text)
{
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;) {
        words.push_back(word);
    }
    return words;
}
