#pragma once

#include <string>

// The whole contents of a file the tests ship (golden files); stops the test program with a
// message when it is missing, since every check against it would be meaningless.
std::string readTestFile(const std::string& path);
