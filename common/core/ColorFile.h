#pragma once

#include "common/core/ColorTriple.h"

#include <cstddef>
#include <string>

namespace quillon
{

// One line of a colour configuration file: "<name> Color R r G g B b\n".
std::string colorFileLine(const std::string& name, const ColorTriple& color);

// Reads `count` colour lines from a configuration file's text into colors[0 .. count-1]. Per
// line it skips three words (the name, "Color", "R"), reads red, skips a word, reads green,
// skips a word, reads blue; the words are not compared. A component whose number cannot be
// read keeps its value (the word that was there is skipped as the next word), so a file with
// fewer lines leaves the remaining colours as they were. Values outside 0..255 are taken as
// they are.
void readColorFileLines(const std::string& text, ColorTriple* colors, size_t count);

class WordReader;

// The same, reading on from where `reader` stands (for files that hold other lines first).
void readColorFileLines(WordReader& reader, ColorTriple* colors, size_t count);

} // namespace quillon
