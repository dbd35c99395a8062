#include "tests/inspect/ReportCases.h"

#include <fstream>
#include <sstream>

std::vector<ReportCase> readReportCases(const std::string& path)
{
    std::ifstream file(path);
    std::vector<ReportCase> cases;
    std::string line;
    while (std::getline(file, line)) {
        if (line.rfind("# ", 0) == 0) {
            std::istringstream header(line.substr(2));
            ReportCase next;
            header >> next.value >> next.format >> next.reference;
            cases.push_back(next);
        } else if (!cases.empty()) {
            cases.back().report += line + '\n';
        }
    }
    return cases;
}
