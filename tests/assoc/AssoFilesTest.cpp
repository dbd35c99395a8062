#include "assoc/engine/AssoFiles.h"
#include "tests/assoc/AssoTestSupport.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace
{

const AssoColors kDefaults = {
    {{128, 0, 128}, {0, 128, 128}, {255, 69, 0}, {128, 128, 0}, {0, 255, 0}}};

} // namespace

TEST(AssoFiles, ColorFileHasOneLinePerOrder)
{
    EXPECT_EQ(assoColorFileText(kDefaults), "Func0 Color R 128 G 0 B 128\n"
                                            "Func1 Color R 0 G 128 B 128\n"
                                            "Func2 Color R 255 G 69 B 0\n"
                                            "Func3 Color R 128 G 128 B 0\n"
                                            "Func4 Color R 0 G 255 B 0\n");
}

TEST(AssoFiles, SavedColorsReadBackExactly)
{
    const AssoColors saved = {{{1, 2, 3}, {-4, 300, 0}, {255, 255, 255}, {7, 8, 9}, {0, 0, 0}}};
    AssoColors loaded = kDefaults;
    readAssoColorFile(assoColorFileText(saved), loaded);
    EXPECT_EQ(loaded, saved);
}

TEST(AssoFiles, CrlfFilesRead)
{
    AssoColors loaded = kDefaults;
    readAssoColorFile("Func0 Color R 1 G 2 B 3\r\nFunc1 Color R 4 G 5 B 6\r\n"
                      "Func2 Color R 7 G 8 B 9\r\nFunc3 Color R 10 G 11 B 12\r\n"
                      "Func4 Color R 13 G 14 B 15\r\n",
                      loaded);
    EXPECT_EQ(loaded[0], (quillon::ColorTriple{1, 2, 3}));
    EXPECT_EQ(loaded[4], (quillon::ColorTriple{13, 14, 15}));
}

TEST(AssoFiles, TruncatedFileChangesOnlyWhatItHolds)
{
    AssoColors loaded = kDefaults;
    readAssoColorFile("Func0 Color R 9 G 8 B 7\nFunc1 Color R 6 G", loaded);
    EXPECT_EQ(loaded[0], (quillon::ColorTriple{9, 8, 7}));
    EXPECT_EQ(loaded[1], (quillon::ColorTriple{6, 128, 128}));
    for (int k = 2; k < kAssoOrderCount; ++k) {
        EXPECT_EQ(loaded[k], kDefaults[k]);
    }
}

TEST(AssoFiles, WordsWhereNumbersBelongLeaveThoseComponents)
{
    AssoColors loaded = kDefaults;
    readAssoColorFile("Func0 Color R red G 5 B 6\n", loaded);
    // "red" is not a number: red keeps 128, and the word is then skipped in place of "G".
    EXPECT_EQ(loaded[0].red, 128);
    EXPECT_EQ(loaded[0].green, 0) << "\"G\" is no number either";
}

TEST(AssoFiles, FilesWithoutNumbersChangeNothing)
{
    AssoColors loaded = kDefaults;
    readAssoColorFile(std::string(100000, 'x'), loaded);
    readAssoColorFile("", loaded);
    readAssoColorFile(std::string("\0\0\0", 3), loaded);
    EXPECT_EQ(loaded, kDefaults);
}

TEST(AssoFiles, HugeNumbersSaturate)
{
    AssoColors loaded = kDefaults;
    readAssoColorFile("Func0 Color R 99999999999999999999 G -99999999999999999999 B 5", loaded);
    EXPECT_EQ(loaded[0], (quillon::ColorTriple{INT32_MAX, INT32_MIN, 5}));
}

TEST(AssoFiles, DefaultExportsMatchTheGoldenFiles)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 300);
    EXPECT_EQ(assoTextExport(sequences), assoGolden("default.txt"));
    EXPECT_EQ(assoCsvExport(sequences, 300), assoGolden("default.csv"));
    const std::string text = assoTextExport(sequences);
    EXPECT_EQ(text.substr(0, 26), "5.000000e-01,1.250000e+00,");
}

TEST(AssoFiles, OneIterationExportsOneValueEach)
{
    const AssoSequences sequences = computed(3.0f, 0.5f, 1);
    EXPECT_EQ(assoTextExport(sequences), assoGolden("n1.txt"));
    EXPECT_EQ(assoCsvExport(sequences, 1), assoGolden("n1.csv"));
    EXPECT_EQ(assoCsvExport(sequences, 1),
              "5.000000e-01, 5.000000e-01, 5.000000e-01, 5.000000e-01, 5.000000e-01, \n");
}

TEST(AssoFiles, OverflowEndsTheTextLineButNotTheCsvColumn)
{
    const AssoSequences sequences = computed(3.01f, 0.7f, 300);
    const std::string text = assoTextExport(sequences);
    const std::string csv = assoCsvExport(sequences, 300);
    EXPECT_EQ(text, assoGolden("overflow.txt"));
    EXPECT_EQ(csv, assoGolden("overflow.csv"));
    const std::string firstLine = text.substr(0, text.find('\n'));
    EXPECT_EQ(firstLine.substr(firstLine.size() - 9), ",OVERFLOW");
    size_t commas = 0;
    for (char c : firstLine) {
        commas += c == ',' ? 1 : 0;
    }
    EXPECT_EQ(commas, 43u);
    // Row 43 has the word; row 44 has a value again in the first column.
    size_t row = 0;
    size_t start = 0;
    for (; row < 43; ++row) {
        start = csv.find('\n', start) + 1;
    }
    EXPECT_EQ(csv.substr(start, 9), "OVERFLOW,");
    const size_t next = csv.find('\n', start) + 1;
    EXPECT_NE(csv.substr(next, 1), "O");
    EXPECT_EQ(csv.substr(next + 12, 2), ", ");
}

TEST(AssoFiles, CsvWritesNoRowsForNoIterations)
{
    EXPECT_EQ(assoCsvExport(computed(3.0f, 0.5f, 0), 0), "");
}
