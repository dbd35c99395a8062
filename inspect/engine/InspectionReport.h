#pragma once

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/FloatBreakdown.h"

#include <string>
#include <vector>

// One item of an inspection: its name and its value, both single-line texts.
struct ReportLine {
    std::string name;
    std::string value;

    friend bool operator==(const ReportLine& a, const ReportLine& b)
    {
        return a.name == b.name && a.value == b.value;
    }
};

// The shortest decimal that reads back as `value` in `format` ("0.1" for the binary32 nearest
// 0.1).
std::string shortestText(double value, FloatFormat format);

// Everything about the value: format, value, kind, sign, biased exponent, unbiased exponent,
// significand, bits, hex float, exact decimal, next down, next up, ulp; with a reference also
// reference, absolute error, relative error, error in ulps, correct digits.
std::vector<ReportLine> inspectionReport(double value, FloatFormat format,
                                         mpfr_srcptr reference = nullptr);

// The report of the number a typed `text` stands for, `value` being the text rounded to
// `format`: inspectionReport's lines, with a "range" line after "value" when the text is a
// finite number that overflowed the format or one other than 0 that underflowed it.
std::vector<ReportLine> textReport(const std::string& text, double value, FloatFormat format,
                                   mpfr_srcptr reference = nullptr);

// One "name<TAB>value" line per item.
std::string reportText(const std::vector<ReportLine>& lines);
