#include "pentagon/engine/PentagonFiles.h"

#include "common/core/CFormat.h"
#include "common/core/ColorFile.h"
#include "common/core/WordReader.h"

using quillon::cformat;

namespace
{

// The file's names of the seven colours. The two pentagon colours are named the other way
// round from how they are used; the reader goes by position, so the names do no harm.
constexpr std::array<const char*, 7> kColorNames = {"Point1", "Point2",  "Point3", "Point4",
                                                    "Point5", "Current", "Initial"};

} // namespace

std::string pentagonConfigurationText(const PentagonColorSettings& settings)
{
    std::string text = cformat("Five point size %d \n", settings.pointSize);
    text += cformat("All line widthes %d \n", settings.lineWidth);
    for (size_t i = 0; i < kColorNames.size(); ++i) {
        text += quillon::colorFileLine(kColorNames[i], settings.colors[i]);
    }
    return text;
}

void readPentagonConfiguration(const std::string& text, PentagonColorSettings& settings)
{
    quillon::WordReader reader(text);
    reader.skipWords(3);
    reader.readInt(settings.pointSize);
    reader.skipWords(3);
    reader.readInt(settings.lineWidth);
    quillon::readColorFileLines(reader, settings.colors.data(), settings.colors.size());
}

std::string pentagonHistoryText(const PentagonEngine& engine)
{
    std::string text;
    for (int point = 0; point < 5; ++point) {
        text += cformat("Point %d: X, Y; ", point);
    }
    text += "\n";
    for (const PentagonPoints& pentagon : engine.validPentagons()) {
        for (int point = 1; point <= 5; ++point) {
            text += cformat("%e, %e; ", double(pentagon.x(point)), double(pentagon.y(point)));
        }
        text += "\n";
    }
    return text;
}
