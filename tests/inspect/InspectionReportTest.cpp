#include "inspect/engine/InspectionReport.h"
#include "tests/inspect/ReportCases.h"

#include <gtest/gtest.h>

namespace
{

FloatFormat formatNamed(const std::string& name)
{
    return name == "single" ? FloatFormat::Single : FloatFormat::Double;
}

std::string reportFor(const ReportCase& testCase)
{
    const FloatFormat format = formatNamed(testCase.format);
    const std::optional<double> value = readFloatText(testCase.value, format);
    if (!value) {
        return "unreadable value";
    }
    if (testCase.reference.empty()) {
        return reportText(inspectionReport(*value, format));
    }
    mpfr_t reference;
    mpfr_init2(reference, kReferenceBits);
    const bool read = readReference(testCase.reference, reference);
    const std::string text =
        read ? reportText(inspectionReport(*value, format, reference)) : "unreadable reference";
    mpfr_clear(reference);
    return text;
}

} // namespace

// The expected reports were worked out from the formats' definitions with exact rational
// arithmetic, independently of this code.
TEST(InspectionReport, WholeReportsOfKnownValues)
{
    const std::vector<ReportCase> cases = readReportCases(QUILLON_TEST_DATA_DIR "/reports.txt");
    ASSERT_EQ(cases.size(), 13u);
    for (const ReportCase& testCase : cases) {
        EXPECT_EQ(reportFor(testCase), testCase.report)
            << testCase.value << " " << testCase.format << " " << testCase.reference;
    }
}

TEST(InspectionReport, TextIsRoundedOnceToTheFormat)
{
    // 1 + 2^-24 + 2^-60: read into double first it would round to 1 + 2^-24 and then, as a
    // tie, to 1; read straight into single it is above the tie and rounds up.
    const std::optional<double> single = readFloatText(
        "1.000000059604644776257986737988403547205962240695953369140625", FloatFormat::Single);
    ASSERT_TRUE(single.has_value());
    EXPECT_EQ(*single, 1.00000011920928955078125);
    EXPECT_EQ(readFloatText("0x1.8p+1", FloatFormat::Double), 3.0);
    EXPECT_EQ(readFloatText("16777217", FloatFormat::Single), 16777216.0);
}

TEST(InspectionReport, TextThatIsNotANumberIsRefused)
{
    for (const char* text : {"", " 1", "1 ", "1,5", "0.1x", "abc", "--1"}) {
        EXPECT_FALSE(readFloatText(text, FloatFormat::Single).has_value()) << text;
        mpfr_t reference;
        mpfr_init2(reference, kReferenceBits);
        EXPECT_FALSE(readReference(text, reference)) << text;
        mpfr_clear(reference);
    }
}

TEST(InspectionReport, ExactDecimals)
{
    EXPECT_EQ(exactDecimal(0.5), "0.5");
    EXPECT_EQ(exactDecimal(-3.0), "-3");
    EXPECT_EQ(exactDecimal(0.0), "0");
    EXPECT_EQ(exactDecimal(1e22), "10000000000000000000000");
    EXPECT_EQ(exactDecimal(0.1), "0.1000000000000000055511151231257827021181583404541015625");
}

// 2 against 3: no digit agrees, and in binary64 at 3 (2^1 <= 3 < 2^2) an ulp is 2^-51.
TEST(InspectionReport, ErrorsWhenNoDigitAgrees)
{
    mpfr_t three;
    mpfr_init2(three, kReferenceBits);
    ASSERT_TRUE(readReference("3", three));
    const ErrorReport report = compareWithReference(2.0, FloatFormat::Double, three);
    mpfr_clear(three);
    EXPECT_EQ(report.reference, "3");
    EXPECT_EQ(report.absoluteError, "-1.0000000000000000e+00");
    EXPECT_EQ(report.relativeError, "3.3333333333333333e-01");
    EXPECT_EQ(report.ulpError, "-2251799813685248.00");
    EXPECT_EQ(report.correctDigits, "0");
}
