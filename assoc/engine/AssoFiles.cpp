#include "assoc/engine/AssoFiles.h"

#include "common/core/CFormat.h"
#include "common/core/ColorFile.h"

using quillon::cformat;

namespace
{

const char* exportWord(int32_t code)
{
    switch (code) {
    case AssoUnderflow:
        return "UNDERFLOW";
    case AssoOverflow:
        return "OVERFLOW";
    default:
        return "NAN";
    }
}

} // namespace

std::string assoColorFileText(const AssoColors& colors)
{
    std::string text;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        text += quillon::colorFileLine(cformat("Func%d", k), colors[k]);
    }
    return text;
}

void readAssoColorFile(const std::string& text, AssoColors& colors)
{
    quillon::readColorFileLines(text, colors.data(), colors.size());
}

std::string assoTextExport(const AssoSequences& sequences)
{
    std::string text;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        const std::vector<float>& values = sequences.values[k];
        const std::vector<int32_t>& errors = sequences.errors[k];
        for (size_t n = 0; n < values.size(); ++n) {
            if (errors[n] != AssoOk) {
                text += exportWord(errors[n]);
                break;
            }
            text += cformat("%e,", double(values[n]));
        }
        text += "\n";
    }
    return text;
}

std::string assoCsvExport(const AssoSequences& sequences, int n)
{
    std::string text;
    for (int row = 0; row < n; ++row) {
        bool anyEntry = false;
        for (int k = 0; k < kAssoOrderCount; ++k) {
            if (size_t(row) >= sequences.values[k].size()) {
                text += ", ";
                continue;
            }
            anyEntry = true;
            const int32_t code = sequences.errors[k][row];
            text += code == AssoOk ? cformat("%e, ", double(sequences.values[k][row]))
                                   : std::string(exportWord(code)) + ",";
        }
        text += "\n";
        if (!anyEntry) {
            break;
        }
    }
    return text;
}
