#include "tests/cli/CliRun.h"
#include "tests/inspect/ReportCases.h"

#include <gtest/gtest.h>

namespace
{

CliRun inspect(QStringList arguments)
{
    arguments.prepend(QStringLiteral("inspect"));
    return CliRun::of(arguments);
}

} // namespace

// The same reports as the engine's, worked out independently; negative values are given as
// they are typed, without "--".
TEST(InspectCli, PrintsTheWholeReport)
{
    const std::vector<ReportCase> cases = readReportCases(QUILLON_INSPECT_DATA_DIR "/reports.txt");
    ASSERT_EQ(cases.size(), 17u);
    for (const ReportCase& testCase : cases) {
        QStringList arguments = {QString::fromStdString(testCase.value), QStringLiteral("--as"),
                                 QString::fromStdString(testCase.format)};
        if (!testCase.reference.empty()) {
            arguments << QStringLiteral("--reference")
                      << QString::fromStdString(testCase.reference);
        }
        const CliRun run = inspect(arguments);
        EXPECT_EQ(run.exitCode, 0) << testCase.value;
        EXPECT_EQ(run.out.toStdString(), testCase.report) << testCase.value;
        EXPECT_TRUE(run.err.isEmpty()) << testCase.value;
    }
}

TEST(InspectCli, SingleIsTheDefaultAndNegativeReferencesRead)
{
    const CliRun run = inspect({"0.1"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains(QStringLiteral("exact decimal\t0.100000001490116119384765625\n")));
    EXPECT_TRUE(run.out.contains(QStringLiteral("bits\t0x3dcccccd\n")));
    const CliRun negative = inspect({"--reference", "-0.1", "-0.1"});
    EXPECT_EQ(negative.exitCode, 0);
    EXPECT_TRUE(negative.out.contains(QStringLiteral("bits\t0xbdcccccd\n")));
    EXPECT_TRUE(negative.out.contains(QStringLiteral("error in ulps\t-0.20\n")));
}

TEST(InspectCli, NegativeValueMayFollowADoubleDash)
{
    // -5 in single precision: sign 1, biased exponent 129, fraction .01 (binary).
    const CliRun plain = inspect({"-5"});
    EXPECT_EQ(plain.exitCode, 0);
    EXPECT_TRUE(plain.out.contains(QStringLiteral("bits\t0xc0a00000\n")))
        << plain.out.toStdString();
    const CliRun dashed = inspect({"--", "-5"});
    EXPECT_EQ(dashed.exitCode, 0) << dashed.err.toStdString();
    EXPECT_EQ(dashed.out.toStdString(), plain.out.toStdString());
    EXPECT_TRUE(dashed.err.isEmpty()) << dashed.err.toStdString();

    // With a reference of -4.5 the error is -0.5, that is -2^20 ulps of 2^-21 each.
    for (const QStringList& arguments :
         {QStringList{"--reference", "-4.5", "-5"}, QStringList{"--reference", "-4.5", "--", "-5"},
          QStringList{"--as", "single", "--reference=-4.5", "--", "-5"}}) {
        const CliRun run = inspect(arguments);
        EXPECT_EQ(run.exitCode, 0) << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.out.contains(QStringLiteral("bits\t0xc0a00000\n")))
            << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.out.contains(QStringLiteral("error in ulps\t-1048576.00\n")))
            << arguments.join(' ').toStdString() << run.out.toStdString();
    }
    const CliRun twoValues = inspect({"--", "-5", "-6"});
    EXPECT_EQ(twoValues.exitCode, 2);
}

TEST(InspectCli, BadInputIsAUsageError)
{
    const QList<QStringList> bad = {
        {},
        {"abc"},
        {"0.1", "0.2"},
        {"0.1", "--as", "quad"},
        {"0.1", "--reference", "ten"},
        // The reference reads what VALUE reads, none of MPFR's own forms.
        {"5", "--reference", "0b101"},
        {"5", "--reference", "1@5"},
        {"5", "--reference", "@nan@"},
        {"1,5"},
        {"0.1", "--bogus"},
    };
    for (const QStringList& arguments : bad) {
        const CliRun run = inspect(arguments);
        EXPECT_EQ(run.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << arguments.join(' ').toStdString();
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli inspect: ")))
            << arguments.join(' ').toStdString();
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << arguments.join(' ').toStdString();
    }
}

// Texts the format cannot hold say where they went, in either format.
TEST(InspectCli, OverflowAndUnderflowAreNamed)
{
    const CliRun over = inspect({"1e309", "--as", "double"});
    EXPECT_EQ(over.exitCode, 0);
    EXPECT_TRUE(over.out.contains(QStringLiteral("\nvalue\tinf\nrange\toverflow: the number is too "
                                                 "large for binary64 and rounded to inf\n")));
    const CliRun under = inspect({"-1e-46"});
    EXPECT_EQ(under.exitCode, 0);
    EXPECT_TRUE(under.out.contains(QStringLiteral("\nvalue\t-0\nrange\tunderflow: the number is "
                                                  "too small for binary32 and rounded to -0\n")));
    const CliRun longText = inspect({QString(100000, QLatin1Char('9'))});
    EXPECT_EQ(longText.exitCode, 0);
    EXPECT_TRUE(longText.out.contains(QStringLiteral("\nrange\toverflow: ")));
    const CliRun kept = inspect({"1e-40"});
    EXPECT_EQ(kept.exitCode, 0);
    EXPECT_FALSE(kept.out.contains(QStringLiteral("range\t")));
}

TEST(InspectCli, HelpNamesEveryItem)
{
    const CliRun run = inspect({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    for (const char* item :
         {"format", "value", "range", "kind", "sign", "biased exponent", "unbiased exponent",
          "significand", "bits", "hex float", "exact decimal", "next down", "next up", "ulp",
          "reference", "absolute error", "relative error", "error in ulps", "correct digits"}) {
        EXPECT_TRUE(run.out.contains(QStringLiteral("\n  ") + QLatin1String(item) + ' ')) << item;
    }
}
