#include "inspect/engine/InspectionReport.h"
#include "tests/inspect/ReportCases.h"

#include <gtest/gtest.h>

#include <cmath>

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
        return reportText(textReport(testCase.value, *value, format));
    }
    mpfr_t reference;
    mpfr_init2(reference, kReferenceBits);
    const bool read = readReference(testCase.reference, reference);
    const std::string text = read
                                 ? reportText(textReport(testCase.value, *value, format, reference))
                                 : "unreadable reference";
    mpfr_clear(reference);
    return text;
}

} // namespace

// The expected reports were worked out from the formats' definitions with exact rational
// arithmetic, independently of this code. Among them: a NaN keeps its sign everywhere, a text
// that overflows or underflows the format says so, and against a reference of 0 neither the
// relative error nor ulps are given.
TEST(InspectionReport, WholeReportsOfKnownValues)
{
    const std::vector<ReportCase> cases = readReportCases(QUILLON_TEST_DATA_DIR "/reports.txt");
    ASSERT_EQ(cases.size(), 17u);
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
    // Besides plain mistakes, forms that one of the underlying readers would take on its own:
    // MPFR's binary prefix, '@' exponents and "@nan@", the C library's NaN payloads.
    for (const char* text : {"", " 1", "1 ", "1,5", "0.1x", "abc", "--1", "0b101", "1@5", "@nan@",
                             "@inf@", "nan(1)", "0x", "1e", "0x1p", "infinit", "."}) {
        EXPECT_FALSE(readFloatText(text, FloatFormat::Single).has_value()) << text;
        mpfr_t reference;
        mpfr_init2(reference, kReferenceBits);
        EXPECT_FALSE(readReference(text, reference)) << text;
        mpfr_clear(reference);
    }
}

// The value and the reference read the same texts as the same numbers.
TEST(InspectionReport, ValueAndReferenceReadOneSyntax)
{
    const std::vector<std::pair<const char*, double>> texts = {
        {"12", 12.0},      {"+1.5", 1.5},
        {".5e-3", 0.0005}, {"1.", 1.0},
        {"2E3", 2000.0},   {"0x1.8p+1", 3.0},
        {"-0X10", -16.0},  {"0x.8P1", 1.0},
        {"inf", INFINITY}, {"-Infinity", -INFINITY},
        {"NAN", NAN},
    };
    for (const auto& [text, expected] : texts) {
        const std::optional<double> value = readFloatText(text, FloatFormat::Double);
        mpfr_t reference;
        mpfr_init2(reference, kReferenceBits);
        const bool read = readReference(text, reference);
        const double referenceValue = mpfr_get_d(reference, MPFR_RNDN);
        mpfr_clear(reference);
        ASSERT_TRUE(value.has_value()) << text;
        ASSERT_TRUE(read) << text;
        if (std::isnan(expected)) {
            EXPECT_TRUE(std::isnan(*value) && std::isnan(referenceValue)) << text;
        } else {
            EXPECT_EQ(*value, expected) << text;
            EXPECT_EQ(referenceValue, expected) << text;
        }
    }
}

// Texts as long as a command line allows are read in one pass, not by a recursion as deep as
// the text is long.
TEST(InspectionReport, LongTextsAreRead)
{
    const std::string ones(130000, '1');
    EXPECT_EQ(readFloatText(ones, FloatFormat::Single), INFINITY);
    const std::string tiny = "0." + std::string(130000, '0') + "1";
    EXPECT_EQ(readFloatText(tiny, FloatFormat::Double), 0.0);
    mpfr_t reference;
    mpfr_init2(reference, kReferenceBits);
    EXPECT_TRUE(readReference("-0." + ones, reference));
    // -0.111... is -1/9 but for the last 10^-130000.
    EXPECT_EQ(mpfr_get_d(reference, MPFR_RNDN), -1.0 / 9.0);
    mpfr_clear(reference);
}

TEST(InspectionReport, ExactDecimals)
{
    EXPECT_EQ(exactDecimal(0.5), "0.5");
    EXPECT_EQ(exactDecimal(-3.0), "-3");
    EXPECT_EQ(exactDecimal(0.0), "0");
    EXPECT_EQ(exactDecimal(1e22), "10000000000000000000000");
    EXPECT_EQ(exactDecimal(0.1), "0.1000000000000000055511151231257827021181583404541015625");
    EXPECT_EQ(exactDecimal(-INFINITY), "-inf");
    EXPECT_EQ(exactDecimal(-NAN), "-nan");
    EXPECT_EQ(exactDecimal(NAN), "nan");
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

// Against 0 an ulp would be the smallest subnormal's, so 0.5 would be 2^148 of them off in
// binary32 and 2^1073 in binary64.
TEST(InspectionReport, NoUlpsAgainstZero)
{
    mpfr_t zero;
    mpfr_init2(zero, kReferenceBits);
    mpfr_set_zero(zero, 1);
    for (const FloatFormat format : {FloatFormat::Single, FloatFormat::Double}) {
        const ErrorReport report = compareWithReference(0.5, format, zero);
        EXPECT_EQ(report.ulpError, "n/a");
        EXPECT_EQ(report.relativeError, "n/a");
        EXPECT_EQ(report.absoluteError, "5.0000000000000000e-01");
        EXPECT_EQ(report.correctDigits, "0");
    }
    mpfr_clear(zero);
}

// A text beyond the format says where it went, with its sign; so does one that reaches it
// only after rounding to the largest finite value or to the smallest subnormal, not at all.
TEST(InspectionReport, TextsOutsideTheFormatSaySo)
{
    const auto rangeLine = [](const std::string& text, FloatFormat format) {
        const std::optional<double> value = readFloatText(text, format);
        if (!value) {
            return std::string("unreadable");
        }
        for (const ReportLine& line : textReport(text, *value, format)) {
            if (line.name == "range") {
                return line.value;
            }
        }
        return std::string("none");
    };
    EXPECT_EQ(rangeLine("1e309", FloatFormat::Double),
              "overflow: the number is too large for binary64 and rounded to inf");
    EXPECT_EQ(rangeLine("-1e-400", FloatFormat::Double),
              "underflow: the number is too small for binary64 and rounded to -0");
    EXPECT_EQ(rangeLine("-0x1p-150", FloatFormat::Single),
              "underflow: the number is too small for binary32 and rounded to -0");
    // 2^-150 is half the smallest binary32 subnormal, a tie that goes to 0; a hair above it
    // rounds up to the subnormal.
    EXPECT_EQ(rangeLine("0x1.000002p-150", FloatFormat::Single), "none");
    // FLT_MAX + half an ulp (2^128 - 2^103) rounds to inf; a hair below it to FLT_MAX.
    EXPECT_EQ(rangeLine("0x1.ffffffp+127", FloatFormat::Single),
              "overflow: the number is too large for binary32 and rounded to inf");
    EXPECT_EQ(rangeLine("0x1.fffffefffp+127", FloatFormat::Single), "none");
    for (const char* kept : {"0", "-0.000", "0x0p+5", "0e999", "inf", "-nan", "1e-40"}) {
        EXPECT_EQ(rangeLine(kept, FloatFormat::Single), "none") << kept;
    }
}
