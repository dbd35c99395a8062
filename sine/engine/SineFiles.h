#pragma once

#include "common/core/ColorTriple.h"
#include "sine/engine/SineApproaches.h"

#include <array>
#include <string>

// The library sine's colour first, then Func1 .. Func12; the selections count the same way.
constexpr int kSineLibrarySlot = 0;
using SineColors = std::array<quillon::ColorTriple, kSineApproachCount + 1>;

// The colours at start-up: black for the library sine, then the twelve approaches'.
constexpr SineColors kSineDefaultColors = {{{0, 0, 0},
                                            {255, 192, 203},
                                            {255, 20, 147},
                                            {199, 21, 133},
                                            {139, 0, 0},
                                            {255, 0, 0},
                                            {255, 69, 0},
                                            {255, 215, 0},
                                            {128, 128, 0},
                                            {0, 255, 0},
                                            {0, 255, 255},
                                            {0, 0, 128},
                                            {106, 90, 205}}};

// The colour configuration file: "Sine Color R r G g B b", then "FuncK Color ..." for K = 1..12.
std::string sineColorFileText(const SineColors& colors);

// Reads a colour configuration file's text into `colors` (words skipped, not compared; a file
// with fewer lines leaves the remaining colours as they were).
void readSineColorFile(const std::string& text, SineColors& colors);

// The text export: per approach a line "Sine values, <short code>" with each partial sum as
// "%.12e," and the error word of a trailing code, then per approach a line "Terms, <short
// code>" with the terms likewise.
std::string sineTextExport(const SineResults& results);

// The comma-separated export: a header of 24 columns ("Sine <code>" then "Term <code>"), then
// one row per series index with the twelve partial sums and the twelve terms ("%e, ", the
// error word and ",", or ", " where a series has no entry), up to and including the first row
// in which every series has no entry.
std::string sineCsvExport(const SineResults& results);
