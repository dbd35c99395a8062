#include "tests/roots/GoldenGrid.h"

#include "tests/support/TestFiles.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

std::string goldenFile(const std::string& name)
{
    return readTestFile(std::string(QUILLON_TEST_DATA_DIR) + "/" + name);
}

GoldenGrid GoldenGrid::load(const std::string& name)
{
    std::istringstream lines(goldenFile(name));
    std::string line;
    std::getline(lines, line);
    GoldenGrid grid;
    for (int row = 0; row < kRootsRowCount; ++row) {
        if (!std::getline(lines, line)) {
            std::fprintf(stderr, "golden file %s has too few rows\n", name.c_str());
            std::abort();
        }
        std::istringstream fields(line);
        std::string field;
        std::getline(fields, field, '\t');
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            std::getline(fields, grid.texts[row][variant], '\t');
        }
        std::getline(fields, field, '\t');
        grid.agreements[row] = std::atoi(field.c_str());
    }
    return grid;
}
