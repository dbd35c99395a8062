#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Reading the sine tests' golden files in tests/sine/data, whose values are binary32 bit
// patterns in hexadecimal.

// The bit pattern of a float, and the float of a bit pattern written in hexadecimal.
uint32_t sineBits(float value);
float sineFloatOf(const std::string& hexBits);

// The whole contents of tests/sine/data/<name>.
std::string sineGolden(const std::string& name);

// The whitespace-separated words of a text.
std::vector<std::string> sineWords(const std::string& text);
