#include "tests/cli/CliRun.h"

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>

namespace
{

// An error is exactly one line on standard error and nothing on standard output.
void expectOneErrorLine(const CliRun& run, const QString& mentions)
{
    EXPECT_TRUE(run.out.isEmpty()) << run.out.toStdString();
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.endsWith(QLatin1Char('\n')));
    EXPECT_TRUE(run.err.contains(mentions)) << run.err.toStdString();
}

} // namespace

TEST(CliTopLevel, HelpDescribesUsageAndExitStatuses)
{
    for (const QString& option : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const CliRun run = CliRun::of({option});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_TRUE(run.out.startsWith("Usage: quillon-cli <module> [options]\n"))
            << run.out.toStdString();
        EXPECT_TRUE(run.out.contains("Exit status: 0 success, 1 file error, 2 usage or input"));
        EXPECT_TRUE(run.err.isEmpty());
    }
}

TEST(CliTopLevel, VersionIsTheProjectVersion)
{
    const CliRun run = CliRun::of({QStringLiteral("--version")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, QStringLiteral("quillon-cli " QUILLON_VERSION "\n"));
}

TEST(CliTopLevel, NoModuleIsAUsageError)
{
    const CliRun run = CliRun::of({});
    EXPECT_EQ(run.exitCode, 2);
    expectOneErrorLine(run, QStringLiteral("no module given"));
}

TEST(CliTopLevel, UnknownModuleIsAUsageError)
{
    const CliRun run = CliRun::of({QStringLiteral("cubic")});
    EXPECT_EQ(run.exitCode, 2);
    expectOneErrorLine(run, QStringLiteral("unknown module 'cubic'"));
}

TEST(CliTopLevel, UnknownOptionIsAUsageError)
{
    const CliRun run = CliRun::of({QStringLiteral("--verbose")});
    EXPECT_EQ(run.exitCode, 2);
    expectOneErrorLine(run, QStringLiteral("verbose"));
}

// 131,000 digits "1234567890123...", about the most one argument can hold on Linux.
QString longNumber()
{
    QString digits;
    for (int i = 1; i <= 131000; ++i) {
        digits += QLatin1Char(char('0' + i % 10));
    }
    return digits;
}

TEST(CliTopLevel, ErrorLineShowsTheStartOfALongArgument)
{
    const QString number = longNumber();
    const QString shown =
        QStringLiteral("'123456789012345678901234567890123456789012345678901234567890...'");
    const QList<QStringList> runs = {
        {"roots", "--b", number},
        {"assoc", "--r", number},
        {"assoc", "--n", number},
        {"sine", "--x", number},
        {"sine", "--n", number},
        {"pentagon", "--shape", number},
        {"pentagon", "--ops", number},
        {"pentagon", "--epsilon", number + "x"},
        {"inspect", "1", "--as", number},
        {"inspect", "x" + number},
        {"inspect", "1", "--reference", "x" + number},
        {"roots", "--example", number},
        {"roots", number},
        {number},
    };
    for (const QStringList& arguments : runs) {
        const CliRun run = CliRun::of(arguments);
        const std::string what = arguments.join(QLatin1Char(' ')).left(30).toStdString();
        EXPECT_EQ(run.exitCode, 2) << what;
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << what;
        EXPECT_LE(run.err.size(), 200) << what << ": " << run.err.left(300).toStdString();
        const QString expected =
            arguments.last().startsWith(QLatin1Char('x'))
                ? QStringLiteral(
                      "'x12345678901234567890123456789012345678901234567890123456789...'")
                : shown;
        EXPECT_TRUE(run.err.contains(expected)) << what << ": " << run.err.left(300).toStdString();
    }
}

TEST(CliTopLevel, ErrorLineCutsALongUnknownOption)
{
    const CliRun run = CliRun::of({"roots", "--" + longNumber()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1);
    EXPECT_LE(run.err.size(), 200) << run.err.left(300).toStdString();
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli roots: Unknown option '1234567890")))
        << run.err.left(300).toStdString();
}

TEST(CliTopLevel, ErrorLineStaysOneLineWhateverTheArgumentHolds)
{
    const CliRun run = CliRun::of({"assoc", "--r", "1\n2\t3"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err.toStdString(),
              "quillon-cli assoc: --r '1?2?3' cannot be typed into its field (a decimal with at "
              "most 2 decimals)\n");
}

TEST(CliTopLevel, ErrorLineNeverCutsACharacterInHalf)
{
    // The 60th and 61st UTF-16 units are the two halves of one character.
    const QString name = QString(59, QLatin1Char('a')) + QStringLiteral("\U0001F600") + "b";
    const CliRun run = CliRun::of({name});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err.toStdString(),
              "quillon-cli: unknown module '" + std::string(59, 'a') + "...' (try --help)\n");
}

// The runs under a German locale are only worth something when that locale exists: without
// it the C library stays in the C locale and every number would pass anyway.
TEST(CliTopLevel, RunsUnderTheLocaleItWasStartedFor)
{
    const char* expected = std::getenv("QUILLON_EXPECT_LOCALE");
    if (expected == nullptr) {
        GTEST_SKIP() << "started for the C locale";
    }
    const char* active = std::setlocale(LC_ALL, "");
    ASSERT_NE(active, nullptr) << expected << " is not generated on this machine";
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    std::setlocale(LC_ALL, "C");
}
