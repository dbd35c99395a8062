#pragma once

#include "common/core/ColorTriple.h"
#include "sine/engine/SineApproaches.h"

#include <array>
#include <string>

// The library sine's colour first, then Func1 .. Func12.
using SineColors = std::array<quillon::ColorTriple, kSineApproachCount + 1>;

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
