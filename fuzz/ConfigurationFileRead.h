#pragma once

#include <string>

// The file's text as the program's load routines get it: `bytes` are written to a file in a
// temporary folder and read back with readTextFile, which must return them unchanged (up to
// its size limit).
std::string readThroughFile(const std::string& bytes);
