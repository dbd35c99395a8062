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
