#include "roots/engine/RootsTextExport.h"
#include "roots/engine/RootsSolver.h"
#include "tests/roots/GoldenGrid.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace
{

struct ExportCase {
    const char* golden;
    int example;
    const char* a;
    const char* b;
    const char* c;
};

std::string exportOf(const ExportCase& exportCase)
{
    std::FILE* sink = std::tmpfile();
    RootsSolver solver(sink);
    solver.useExample(exportCase.example);
    if (exportCase.a != nullptr) {
        solver.readA(exportCase.a);
        solver.readB(exportCase.b);
        solver.readC(exportCase.c);
        solver.recomputeAll();
    }
    std::fclose(sink);
    return rootsTextExport(solver);
}

} // namespace

TEST(RootsTextExport, StartUpValues)
{
    EXPECT_EQ(exportOf({"export-startup.txt", 0, nullptr, nullptr, nullptr}),
              goldenFile("export-startup.txt"));
}

TEST(RootsTextExport, ExampleThreeWritesTheSingleCoefficients)
{
    const std::string text = exportOf({"export-example3.txt", 3, nullptr, nullptr, nullptr});
    EXPECT_EQ(text, goldenFile("export-example3.txt"));
    EXPECT_EQ(text.substr(0, text.find('\n') + 1),
              "a: 1.000000e-02, b 1.000000e+02, c 2.500000e+05 \n");
}

TEST(RootsTextExport, VariantsWithoutRootsWriteWords)
{
    const std::string text =
        exportOf({"export-single-invalid.txt", 0, "1", "2.784548160", "1.938427098"});
    EXPECT_EQ(text, goldenFile("export-single-invalid.txt"));
    EXPECT_NE(text.find("sqrt(b^2 - 4ac): No real value, No real value, 2.517129e-04, \n"),
              std::string::npos);
    EXPECT_NE(text.find("large root: No real root, No real root, "), std::string::npos);
    EXPECT_NE(text.find("result: N/A, N/A, "), std::string::npos);
}

TEST(RootsTextExport, HasNineLinesEachValueLineEndingInASeparator)
{
    const std::string text = exportOf({"", 1, nullptr, nullptr, nullptr});
    int lines = 0;
    size_t start = 0;
    for (size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1) {
        const std::string line = text.substr(start, end - start);
        if (lines >= 4) {
            EXPECT_EQ(line.substr(line.size() - 2), ", ") << line;
        }
        ++lines;
    }
    EXPECT_EQ(lines, 9);
    EXPECT_EQ(start, text.size());
}
