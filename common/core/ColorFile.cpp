#include "common/core/ColorFile.h"

#include "common/core/CFormat.h"
#include "common/core/WordReader.h"

namespace quillon
{
std::string colorFileLine(const std::string& name, const ColorTriple& color)
{
    return name + cformat(" Color R %d G %d B %d\n", color.red, color.green, color.blue);
}

void readColorFileLines(const std::string& text, ColorTriple* colors, size_t count)
{
    WordReader reader(text);
    readColorFileLines(reader, colors, count);
}

void readColorFileLines(WordReader& reader, ColorTriple* colors, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        reader.skipWords(3);
        reader.readInt(colors[i].red);
        reader.skipWords(1);
        reader.readInt(colors[i].green);
        reader.skipWords(1);
        reader.readInt(colors[i].blue);
    }
}

} // namespace quillon
