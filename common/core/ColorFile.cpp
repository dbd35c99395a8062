#include "common/core/ColorFile.h"

#include "common/core/CFormat.h"
#include "common/core/WordReader.h"

namespace quillon
{
namespace
{

void skipWords(WordReader& reader, int count)
{
    std::string ignored;
    for (int i = 0; i < count; ++i) {
        reader.readWord(ignored);
    }
}

} // namespace

std::string colorFileLine(const std::string& name, const ColorTriple& color)
{
    return name + cformat(" Color R %d G %d B %d\n", color.red, color.green, color.blue);
}

void readColorFileLines(const std::string& text, ColorTriple* colors, size_t count)
{
    WordReader reader(text);
    for (size_t i = 0; i < count; ++i) {
        skipWords(reader, 3);
        reader.readInt(colors[i].red);
        skipWords(reader, 1);
        reader.readInt(colors[i].green);
        skipWords(reader, 1);
        reader.readInt(colors[i].blue);
    }
}

} // namespace quillon
