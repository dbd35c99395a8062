#pragma once

#include "assoc/engine/AssoRecurrence.h"
#include "common/core/ColorTriple.h"

#include <array>
#include <string>

using AssoColors = std::array<quillon::ColorTriple, kAssoOrderCount>;

// The colours of the five orders at start-up.
constexpr AssoColors kAssoDefaultColors = {
    {{128, 0, 128}, {0, 128, 128}, {255, 69, 0}, {128, 128, 0}, {0, 255, 0}}};

// The colour configuration file: one line "FuncK Color R r G g B b" per order, K from 0.
std::string assoColorFileText(const AssoColors& colors);

// Reads a colour configuration file's text into `colors`. Per order it skips three words,
// reads red, skips a word, reads green, skips a word, reads blue; a component whose number
// cannot be read keeps its value (the word that was there is skipped as the next word).
// Values outside 0..255 are taken as they are.
void readAssoColorFile(const std::string& text, AssoColors& colors);

// The text export: one line per order; each error-free value as "%e," up to the order's first
// error, whose word ("UNDERFLOW", "OVERFLOW", "NAN") ends the line.
std::string assoTextExport(const AssoSequences& sequences);

// The comma-separated export: one row per iteration 0 .. n-1, one column per order: "%e, " for
// an error-free value, the error word and "," otherwise (later values are written again),
// ", " where an order has no such entry.
std::string assoCsvExport(const AssoSequences& sequences, int n);
