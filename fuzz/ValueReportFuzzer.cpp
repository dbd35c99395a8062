// The inspector's readers (the value and the reference, as `quillon-cli inspect VALUE
// --reference REFERENCE` reads them) and the report it prints. The first byte picks the
// format; the rest is the value's text, then, after a line break, the reference's.
#include "fuzz/FuzzCheck.h"
#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/FloatBreakdown.h"
#include "inspect/engine/InspectionReport.h"
#include "inspect/engine/MpfrNumber.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace
{

constexpr size_t kValueItems = 13;
constexpr size_t kReferenceItems = 5;

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// A number the report prints must read back as the value it stands for.
void checkReadsBackAs(double value, const std::string& text, FloatFormat format, const char* what,
                      const std::string& input)
{
    const std::optional<double> again = readFloatText(text, format);
    check(again && sameBits(*again, value),
          std::string(what) + " \"" + text + "\" does not read back as the value", input);
}

void checkReport(const std::vector<ReportLine>& lines, size_t items, const std::string& input)
{
    check(lines.size() == items, "the report does not have its " + std::to_string(items) + " items",
          input);
    for (const ReportLine& line : lines) {
        const bool oneLine = line.name.find_first_of("\t\n") == std::string::npos &&
                             line.value.find_first_of("\t\n") == std::string::npos;
        check(oneLine, "the item \"" + printable(line.name) + "\" is not a single-line text",
              input);
    }
    const std::string text = reportText(lines);
    check(size_t(std::count(text.begin(), text.end(), '\n')) == items,
          "the printed report does not have one line per item", input);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string input = inputText(data, size);
    const FloatFormat format = (data[0] & 1) ? FloatFormat::Double : FloatFormat::Single;
    const std::string texts = input.substr(1);
    const size_t lineBreak = texts.find('\n');
    const std::optional<double> value = readFloatText(texts.substr(0, lineBreak), format);
    if (!value) {
        return 0;
    }
    if (!std::isnan(*value)) {
        checkReadsBackAs(*value, exactDecimal(*value), format, "the exact decimal", input);
        checkReadsBackAs(*value, shortestText(*value, format), format, "the shortest text", input);
    }
    if (lineBreak == std::string::npos) {
        checkReport(inspectionReport(*value, format), kValueItems, input);
        return 0;
    }
    MpfrNumber reference(kReferenceBits);
    if (readReference(texts.substr(lineBreak + 1), reference.get())) {
        checkReport(inspectionReport(*value, format, reference.get()),
                    kValueItems + kReferenceItems, input);
    }
    return 0;
}
