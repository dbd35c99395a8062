#include "sine/engine/SineFiles.h"

#include "common/core/CFormat.h"
#include "common/core/ColorFile.h"
#include "sine/engine/SineEngine.h"

using quillon::cformat;

namespace
{

const char* exportWord(int32_t code)
{
    switch (code) {
    case SineOverflow:
        return "OVERFLOW";
    case SineUnderflow:
        return "UNDERFLOW";
    default:
        return "NAN";
    }
}

// One export line of an approach: every entry of its codes list, the value with "%.12e,"
// where the code is 0, the error word otherwise.
std::string textLine(const char* lead, const SineApproach& approach,
                     const std::vector<int32_t>& codes, const std::vector<float>& values)
{
    std::string line = std::string(lead) + approach.shortCode;
    for (size_t i = 0; i < codes.size(); ++i) {
        line += codes[i] == SineOk ? cformat("%.12e,", double(values[i])) : exportWord(codes[i]);
    }
    return line + "\n";
}

// One cell of the comma-separated export; false in `present` when the series has no entry.
std::string csvCell(const std::vector<int32_t>& codes, const std::vector<float>& values, size_t row,
                    bool& present)
{
    present = row < codes.size();
    if (!present) {
        return ", ";
    }
    if (codes[row] != SineOk) {
        return std::string(exportWord(codes[row])) + ",";
    }
    return cformat("%e, ", double(values[row]));
}

} // namespace

std::string sineColorFileText(const SineColors& colors)
{
    std::string text = quillon::colorFileLine("Sine", colors[0]);
    for (int k = 1; k <= kSineApproachCount; ++k) {
        text += quillon::colorFileLine(cformat("Func%d", k), colors[k]);
    }
    return text;
}

void readSineColorFile(const std::string& text, SineColors& colors)
{
    quillon::readColorFileLines(text, colors.data(), colors.size());
}

std::string sineTextExport(const SineResults& results)
{
    const auto& approaches = sineApproaches();
    std::string text;
    for (int k = 0; k < kSineApproachCount; ++k) {
        text += textLine("Sine values, ", approaches[k], results.series[k].codes,
                         results.series[k].sums);
    }
    for (int k = 0; k < kSineApproachCount; ++k) {
        text +=
            textLine("Terms, ", approaches[k], results.series[k].codes, results.series[k].terms);
    }
    return text;
}

std::string sineCsvExport(const SineResults& results)
{
    const auto& approaches = sineApproaches();
    std::string text;
    for (const char* lead : {"Sine ", "Term "}) {
        for (const SineApproach& approach : approaches) {
            text += std::string(lead) + approach.shortCode;
        }
    }
    text += "\n";
    for (size_t row = 0;; ++row) {
        bool anyPresent = false;
        for (bool sums : {true, false}) {
            for (const SineSeries& series : results.series) {
                bool present = false;
                text += csvCell(series.codes, sums ? series.sums : series.terms, row, present);
                anyPresent = anyPresent || present;
            }
        }
        text += "\n";
        if (!anyPresent) {
            return text;
        }
    }
}
