#pragma once

#include <string>
#include <vector>

// One case of data/reports.txt: the value's text, "single" or "double", the reference's text
// (empty for none) and the whole report expected for them.
struct ReportCase {
    std::string value;
    std::string format;
    std::string reference;
    std::string report;
};

// The cases of a reports file: each starts with a line "# VALUE FORMAT [REFERENCE]", followed
// by its report lines.
std::vector<ReportCase> readReportCases(const std::string& path);
