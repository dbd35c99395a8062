#include "sine/engine/SineApproaches.h"
#include "sine/engine/SineEngine.h"
#include "tests/sine/SineGolden.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace
{

// The expected lists of one series, as hexadecimal bit patterns (codes as integers).
std::vector<std::string> goldenList(const std::string& kind, int k)
{
    std::istringstream lines(sineGolden("x250-n300-series.tsv"));
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> words = sineWords(line);
        if (words.size() >= 2 && words[0] == kind && std::stoi(words[1]) == k + 1) {
            return std::vector<std::string>(words.begin() + 2, words.end());
        }
    }
    ADD_FAILURE() << "no " << kind << " line for Func" << k + 1;
    return {};
}

std::vector<std::string> hexOf(const std::vector<float>& values)
{
    std::vector<std::string> texts;
    for (float value : values) {
        char text[9];
        std::snprintf(text, sizeof text, "%08X", sineBits(value));
        texts.push_back(text);
    }
    return texts;
}

std::string bitsText(const std::optional<float>& value)
{
    if (!value) {
        return "-";
    }
    return hexOf({*value})[0];
}

} // namespace

TEST(SineApproaches, NamesAndCodesInIndexOrder)
{
    const auto& approaches = sineApproaches();
    EXPECT_STREQ(approaches[0].longName, "Original X + Direct eva + Naive");
    EXPECT_STREQ(approaches[0].shortCode, "EX-DE-NA, ");
    EXPECT_STREQ(approaches[4].longName, "Original X + Term update + NegPos");
    EXPECT_STREQ(approaches[4].termFirstName, "Term update + Original X + NegPos");
    // Func8's short code carries "NI", as the files have always had it.
    EXPECT_STREQ(approaches[7].shortCode, "RX-DE-NI, ");
    EXPECT_STREQ(approaches[7].longName, "Reduced X + Direct eva + NegPos");
    EXPECT_STREQ(approaches[11].shortCode, "RX-TU-KH, ");
    EXPECT_STREQ(approaches[11].termFirstName, "Term update + Reduced X + Kahan");
    for (int k = 0; k < kSineApproachCount; ++k) {
        EXPECT_EQ(approaches[k].input, k < 6 ? SineInput::Original : SineInput::Reduced);
        EXPECT_EQ(approaches[k].termMethod,
                  k % 6 < 3 ? SineTermMethod::DirectEvaluation : SineTermMethod::TermUpdate);
        EXPECT_EQ(int(approaches[k].summation), k % 3);
    }
}

// Every case of the reference table: the radians, the library sine, and per approach the
// number of terms, the trailing code, the error iteration, the value and its error.
TEST(SineApproaches, EveryCaseMatchesTheReference)
{
    std::istringstream lines(sineGolden("cases.tsv"));
    SineResults results;
    int checked = 0;
    for (std::string line; std::getline(lines, line);) {
        const std::vector<std::string> w = sineWords(line);
        if (w.empty() || w[0][0] == '#') {
            continue;
        }
        const int degrees = std::stoi(w[1]);
        const int count = std::stoi(w[2]);
        if (w[0] == "case") {
            computeSine(degrees, count, results);
            EXPECT_EQ(hexOf({sineDegreesToRadians(degrees)})[0], w[3]) << degrees;
            EXPECT_EQ(hexOf({results.librarySine})[0], w[4]) << degrees;
            continue;
        }
        const int k = std::stoi(w[3]) - 1;
        const SineSeries& series = results.series[k];
        const std::string where =
            std::to_string(degrees) + " degrees, " + std::to_string(count) + " terms, Func" + w[3];
        EXPECT_EQ(series.terms.size(), size_t(std::stoi(w[4]))) << where;
        const int trailing = series.codes.size() > series.terms.size() ? series.codes.back() : 0;
        EXPECT_EQ(trailing, std::stoi(w[5])) << where;
        EXPECT_EQ(series.sums.size(), series.terms.size()) << where;
        EXPECT_EQ(results.errorIteration[k], std::stoi(w[6])) << where;
        EXPECT_EQ(bitsText(results.value[k]), w[7]) << where;
        EXPECT_EQ(bitsText(results.error[k]), w[8]) << where;
        ++checked;
    }
    EXPECT_EQ(checked, 18 * kSineApproachCount);
}

TEST(SineApproaches, DefaultSeriesMatchTheReferenceToTheBit)
{
    SineResults results;
    computeSine(250, 300, results);
    for (int k = 0; k < kSineApproachCount; ++k) {
        const SineSeries& series = results.series[k];
        EXPECT_EQ(hexOf(series.sums), goldenList("sums", k)) << "Func" << k + 1;
        EXPECT_EQ(hexOf(series.terms), goldenList("terms", k)) << "Func" << k + 1;
        std::vector<std::string> codes;
        for (int32_t code : series.codes) {
            codes.push_back(std::to_string(code));
        }
        EXPECT_EQ(codes, goldenList("codes", k)) << "Func" << k + 1;
    }
}

TEST(SineApproaches, OriginalArgumentSwingsWidelyBeforeSettling)
{
    SineResults results;
    computeSine(250, 300, results);
    const std::vector<float>& sums = results.series[0].sums;
    EXPECT_GT(*std::max_element(sums.begin(), sums.end()), 4.3f);
    EXPECT_LT(*std::min_element(sums.begin(), sums.end()), -9.4f);
    // The reduced argument's partial sums stay within 0.33 of the library value.
    for (float sum : results.series[6].sums) {
        EXPECT_LT(std::abs(sum - results.librarySine), 0.33f);
    }
}

TEST(SineApproaches, DirectEvaluationEndsAtTerm17WithTheSignRule)
{
    SineResults results;
    computeSine(250, 300, results);
    // Original X (factor 1): term 17 has sigma = -1, so sigma * factor < 0: Underflow. Reduced X
    // of 250 degrees has factor -1: sigma * factor > 0: Overflow.
    for (int k : {0, 1, 2}) {
        EXPECT_EQ(results.series[k].codes.size(), 18u);
        EXPECT_EQ(results.series[k].codes.back(), SineUnderflow);
        EXPECT_EQ(results.errorIteration[k], 16);
    }
    for (int k : {6, 7, 8}) {
        EXPECT_EQ(results.series[k].codes.back(), SineOverflow);
    }
    for (int k : {3, 4, 5, 9, 10, 11}) {
        EXPECT_EQ(results.series[k].terms.size(), 300u);
        EXPECT_EQ(results.errorIteration[k], 299);
    }
}

TEST(SineApproaches, ZeroDegreesGivesZeroEverywhere)
{
    SineResults results;
    computeSine(0, 7, results);
    EXPECT_EQ(results.librarySine, 0.0f);
    for (int k = 0; k < kSineApproachCount; ++k) {
        ASSERT_EQ(results.series[k].sums.size(), 7u);
        for (float sum : results.series[k].sums) {
            EXPECT_EQ(sum, 0.0f);
        }
        EXPECT_EQ(results.value[k], 0.0f);
        EXPECT_EQ(results.error[k], 0.0f);
    }
}

TEST(SineApproaches, CountsBelowOneGiveEmptyListsAndNoValue)
{
    for (int count : {0, -5}) {
        SineResults results;
        computeSine(250, count, results);
        for (int k = 0; k < kSineApproachCount; ++k) {
            EXPECT_TRUE(results.series[k].terms.empty());
            EXPECT_TRUE(results.series[k].codes.empty());
            EXPECT_TRUE(results.series[k].sums.empty());
            EXPECT_EQ(results.errorIteration[k], count - 1);
            EXPECT_FALSE(results.value[k].has_value());
        }
    }
}

TEST(SineApproaches, ASeriesThatStopsAtItsFirstTermHasNoValue)
{
    EXPECT_EQ(sineErrorIteration({SineOverflow}, 300), -1);
    EXPECT_EQ(sineErrorIteration({SineOk, SineOk, SineUnderflow}, 300), 1);
    EXPECT_EQ(sineErrorIteration({SineOk, SineOk}, 2), 1);
    // A code beyond the count is not looked at.
    EXPECT_EQ(sineErrorIteration({SineOk, SineOk, SineOverflow}, 2), 1);
}

TEST(SineApproaches, ThousandsOfDegreesOverflowTheTermUpdateSeries)
{
    SineResults results;
    computeSine(20000, 300, results);
    for (int k : {3, 4, 5}) {
        EXPECT_GT(results.series[k].codes.size(), results.series[k].terms.size());
        EXPECT_NE(results.series[k].codes.back(), SineOk);
    }
    // The reduced argument does not.
    for (int k : {9, 10, 11}) {
        EXPECT_EQ(results.series[k].terms.size(), 300u);
    }
}
