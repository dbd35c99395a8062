#include "sine/engine/SineFiles.h"
#include "tests/sine/SineGolden.h"

#include <algorithm>
#include <gtest/gtest.h>

TEST(SineFiles, TextExportOfTheDefaultState)
{
    SineResults results;
    computeSine(250, 300, results);
    EXPECT_EQ(sineTextExport(results), sineGolden("default.txt"));
}

TEST(SineFiles, CsvExportOfTheDefaultState)
{
    SineResults results;
    computeSine(250, 300, results);
    EXPECT_EQ(sineCsvExport(results), sineGolden("default.csv"));
}

TEST(SineFiles, AStoppedSeriesEndsItsLineWithTheErrorWord)
{
    SineResults results;
    computeSine(250, 300, results);
    const std::string text = sineTextExport(results);
    const std::string first = text.substr(0, text.find('\n'));
    // Func1 stopped at term 17: the lead's two commas, 17 values, then the word.
    EXPECT_EQ(std::count(first.begin(), first.end(), ','), 2 + 17);
    EXPECT_EQ(first.substr(first.size() - 10), ",UNDERFLOW");
    EXPECT_EQ(first.rfind("Sine values, EX-DE-NA, ", 0), 0u);
}

TEST(SineFiles, CsvOfNoTermsIsTheHeaderAndOneEmptyRow)
{
    SineResults results;
    computeSine(250, 0, results);
    const std::string csv = sineCsvExport(results);
    const std::string header = csv.substr(0, csv.find('\n') + 1);
    EXPECT_EQ(header.rfind("Sine EX-DE-NA, Sine EX-DE-NP, ", 0), 0u);
    EXPECT_EQ(header.substr(header.size() - 16), "Term RX-TU-KH, \n");
    std::string emptyRow;
    for (int i = 0; i < 24; ++i) {
        emptyRow += ", ";
    }
    EXPECT_EQ(csv.substr(header.size()), emptyRow + "\n");
}

TEST(SineFiles, ColourFileRoundTrip)
{
    SineColors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = {int32_t(i), int32_t(255 - i), int32_t(i * 7)};
    }
    const std::string text = sineColorFileText(colors);
    EXPECT_EQ(text.substr(0, text.find('\n') + 1), "Sine Color R 0 G 255 B 0\n");
    EXPECT_NE(text.find("\nFunc12 Color R 12 G 243 B 84\n"), std::string::npos);
    SineColors read{};
    readSineColorFile(text, read);
    EXPECT_EQ(read, colors);
}

TEST(SineFiles, ShortColourFileLeavesTheRestAlone)
{
    SineColors colors;
    colors.fill({9, 9, 9});
    readSineColorFile("Sine Color R 1 G 2 B 3\r\nFunc1 Color R 400 G -4 B 5\r\n", colors);
    EXPECT_EQ(colors[0], (quillon::ColorTriple{1, 2, 3}));
    EXPECT_EQ(colors[1], (quillon::ColorTriple{400, -4, 5}));
    EXPECT_EQ(colors[2], (quillon::ColorTriple{9, 9, 9}));
    EXPECT_EQ(colors[12], (quillon::ColorTriple{9, 9, 9}));
}

namespace
{

struct ExportCase {
    int degrees;
    int count;
    const char* golden;
};

} // namespace

// Beyond the defaults: Term update overflowing without reduction (20000 degrees), sums that
// overflow both NegPos accumulators and become inf and then NaN with code 0 (5200 degrees),
// and a single term.
TEST(SineFiles, ExportsOfOverflowingAndShortSeries)
{
    const ExportCase cases[] = {
        {20000, 300, "x20000-n300"}, {5200, 300, "x5200-n300"}, {250, 1, "x250-n1"}};
    for (const ExportCase& c : cases) {
        SineResults results;
        computeSine(c.degrees, c.count, results);
        EXPECT_EQ(sineTextExport(results), sineGolden(std::string(c.golden) + ".txt")) << c.golden;
        EXPECT_EQ(sineCsvExport(results), sineGolden(std::string(c.golden) + ".csv")) << c.golden;
    }
}
