#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What the harnesses share: the input as text, and a check that stops the fuzzer with the
// input shown when a property of the code under test does not hold (libFuzzer then keeps the
// input as a crash, so the failure can be replayed).

// The fuzzer's bytes as a string (any bytes, NULs included).
std::string inputText(const uint8_t* data, size_t size);

// `text` with every byte outside printable ASCII written as \xNN, for messages.
std::string printable(const std::string& text);

// Prints "check failed: <what>" and the input, then aborts when `condition` is false.
void check(bool condition, const std::string& what, const std::string& input);
