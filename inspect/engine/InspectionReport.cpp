#include "inspect/engine/InspectionReport.h"

#include "common/core/CFormat.h"
#include "inspect/engine/NumberText.h"

#include <iterator>

namespace
{

constexpr int kMostDigits[] = {9, 17};

} // namespace

std::string shortestText(double value, FloatFormat format)
{
    const int most = kMostDigits[format == FloatFormat::Single ? 0 : 1];
    std::string text;
    for (int digits = 1; digits <= most; ++digits) {
        text = quillon::cformat("%.*g", digits, value);
        const std::optional<double> back = readFloatText(text, format);
        if (back && (*back == value || (*back != *back && value != value))) {
            break;
        }
    }
    return text;
}

std::vector<ReportLine> inspectionReport(double value, FloatFormat format, mpfr_srcptr reference)
{
    const FloatBreakdown breakdown = breakDown(value, format);
    std::vector<ReportLine> lines = {
        {"format", formatName(format)},
        {"value", shortestText(value, format)},
        {"kind", breakdown.kind},
        {"sign", std::to_string(breakdown.sign)},
        {"biased exponent", std::to_string(breakdown.biasedExponent)},
        {"unbiased exponent", std::to_string(breakdown.unbiasedExponent)},
        {"significand", breakdown.significand},
        {"bits", breakdown.bits},
        {"hex float", breakdown.hexFloat},
        {"exact decimal", breakdown.exactDecimal},
        {"next down", breakdown.nextDown},
        {"next up", breakdown.nextUp},
        {"ulp", breakdown.ulp},
    };
    if (reference != nullptr) {
        const ErrorReport error = compareWithReference(value, format, reference);
        lines.push_back({"reference", error.reference});
        lines.push_back({"absolute error", error.absoluteError});
        lines.push_back({"relative error", error.relativeError});
        lines.push_back({"error in ulps", error.ulpError});
        lines.push_back({"correct digits", error.correctDigits});
    }
    return lines;
}

std::vector<ReportLine> textReport(const std::string& text, double value, FloatFormat format,
                                   mpfr_srcptr reference)
{
    std::vector<ReportLine> lines = inspectionReport(value, format, reference);
    const TextRange range = textRange(text, value);
    if (range != TextRange::Kept) {
        const std::string what = range == TextRange::Overflowed
                                     ? "overflow: the number is too large for "
                                     : "underflow: the number is too small for ";
        const auto afterValue = std::next(lines.begin(), 2);
        lines.insert(afterValue, {"range", what + formatName(format) + " and rounded to " +
                                               exactDecimal(value)});
    }
    return lines;
}

std::string reportText(const std::vector<ReportLine>& lines)
{
    std::string text;
    for (const ReportLine& line : lines) {
        text += line.name + '\t' + line.value + '\n';
    }
    return text;
}
