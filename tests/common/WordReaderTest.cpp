#include "common/core/WordReader.h"

#include <climits>
#include <gtest/gtest.h>

using quillon::WordReader;

TEST(WordReader, ReadsWordsAndNumbersOfAColourLine)
{
    WordReader reader("Func0 Color R 128 G 0 B 128\n");
    std::string word;
    int red = -1;
    int green = -1;
    int blue = -1;
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "Func0");
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "Color");
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "R");
    ASSERT_TRUE(reader.readInt(red));
    ASSERT_TRUE(reader.readWord(word));
    ASSERT_TRUE(reader.readInt(green));
    ASSERT_TRUE(reader.readWord(word));
    ASSERT_TRUE(reader.readInt(blue));
    EXPECT_EQ(red, 128);
    EXPECT_EQ(green, 0);
    EXPECT_EQ(blue, 128);
    EXPECT_FALSE(reader.readWord(word));
    EXPECT_FALSE(reader.readInt(red));
    EXPECT_EQ(red, 128);
}

TEST(WordReader, CarriageReturnsAreWhitespace)
{
    WordReader reader("G\r\n7\r\n");
    std::string word;
    int value = 0;
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "G");
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(reader.readWord(word));
}

TEST(WordReader, AWordWhereANumberIsExpectedStaysForTheNextWordRead)
{
    WordReader reader("  green 5");
    int value = 99;
    EXPECT_FALSE(reader.readInt(value));
    EXPECT_EQ(value, 99);
    std::string word;
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "green");
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, 5);
}

TEST(WordReader, SignsAndOutOfRangeNumbers)
{
    WordReader reader("-12 +300 99999999999999999999 -99999999999999999999 -2147483648 - 4");
    int value = 0;
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, -12);
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, 300);
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, INT_MAX);
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, INT_MIN);
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, INT_MIN);
    EXPECT_FALSE(reader.readInt(value)) << "a lone sign is not a number";
    std::string word;
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "-");
}

TEST(WordReader, NumberFollowedByTextStopsAtTheText)
{
    WordReader reader("12abc");
    int value = 0;
    ASSERT_TRUE(reader.readInt(value));
    EXPECT_EQ(value, 12);
    std::string word;
    ASSERT_TRUE(reader.readWord(word));
    EXPECT_EQ(word, "abc");
}

TEST(WordReader, AVeryLongWordComesInBoundedPieces)
{
    const std::string longWord(10000, 'x');
    WordReader reader(longWord + " tail");
    std::string word;
    size_t total = 0;
    int pieces = 0;
    while (reader.readWord(word) && word != "tail") {
        EXPECT_LE(word.size(), WordReader::kMaxWordLength);
        total += word.size();
        ++pieces;
    }
    EXPECT_EQ(total, longWord.size());
    EXPECT_EQ(pieces, 40);
    EXPECT_EQ(word, "tail");
}

TEST(WordReader, EmptyAndBlankTextsHaveNoWords)
{
    std::string word = "kept";
    EXPECT_FALSE(WordReader("").readWord(word));
    EXPECT_FALSE(WordReader(" \t\r\n ").readWord(word));
    EXPECT_EQ(word, "kept");
}
