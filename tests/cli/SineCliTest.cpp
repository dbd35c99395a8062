#include "tests/cli/CliRun.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

QString golden(const QString& name)
{
    return fileText(QStringLiteral(QUILLON_SINE_DATA_DIR "/") + name);
}

CliRun sine(QStringList arguments)
{
    arguments.prepend(QStringLiteral("sine"));
    return CliRun::of(arguments);
}

} // namespace

TEST(SineCli, DefaultsGoToStandardOutputAsCsv)
{
    const CliRun run = sine({});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, golden("default.csv"));
    EXPECT_TRUE(run.err.isEmpty());
    EXPECT_EQ(sine({"--x", "250", "--n", "300"}).out, golden("default.csv"));
}

TEST(SineCli, WritesBothExports)
{
    QTemporaryDir folder;
    const QString txt = folder.filePath(QStringLiteral("sinus 100%.txt"));
    const QString csv = folder.filePath(QStringLiteral("sinus.csv"));
    const CliRun run = sine({"--txt", txt, "--csv", csv});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_EQ(run.err, QStringLiteral("save file %1 done\nsave file %2 done\n").arg(txt, csv));
    EXPECT_EQ(fileText(txt), golden("default.txt"));
    EXPECT_EQ(fileText(csv), golden("default.csv"));
}

TEST(SineCli, TypeableTextReadsLikeTheTab)
{
    // "-" can stand in the angle field and reads as 0 degrees: every partial sum is 0.
    const CliRun zero = sine({"--x", "-", "--n", "3"});
    EXPECT_EQ(zero.exitCode, 0);
    EXPECT_EQ(zero.out.count(QStringLiteral("0.000000e+00, ")), 3 * 24);
    // "0" can stand in the iteration field: no terms, the header and one empty row.
    const CliRun none = sine({"--n", "0"});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_EQ(none.out.count(QLatin1Char('\n')), 2);
    // Five digits can be typed into the iteration field, beyond its top of 10000.
    const CliRun many = sine({"--x", "30", "--n", "12345"});
    EXPECT_EQ(many.exitCode, 0);
    EXPECT_EQ(many.out.count(QLatin1Char('\n')), 1 + 12345 + 1);
}

TEST(SineCli, BadInputIsOneLineAndWritesNothing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    const QList<QStringList> cases = {{"--x", "1.5"},    {"--x", "12345678"}, {"--x", "1,000"},
                                      {"--x", "abc"},    {"--x", "1e3"},      {"--n", "-1"},
                                      {"--n", "100000"}, {"--n", "1,000"},    {"--n", "2.5"},
                                      {"--bogus"},       {"stray"},           {"--x"}};
    for (QStringList arguments : cases) {
        const QString shown = arguments.join(QLatin1Char(' '));
        arguments << QStringLiteral("--csv") << path;
        const CliRun run = sine(arguments);
        EXPECT_EQ(run.exitCode, 2) << shown.toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << shown.toStdString();
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli sine: ")));
        EXPECT_FALSE(QFile::exists(path)) << shown.toStdString();
    }
}

TEST(SineCli, UnwritableFileIsAFileError)
{
    QTemporaryDir folder;
    const CliRun run = sine({"--txt", folder.filePath(QStringLiteral("missing/out.txt"))});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1);
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli sine: cannot write \"")));
}

TEST(SineCli, FolderThatRefusesNewFilesIsNamedAsTheCause)
{
    const CliRun run = sine({"--txt", "/proc/version"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.toStdString(), "quillon-cli sine: cannot write \"/proc/version\": its folder "
                                     "does not allow a new file\n");
}

TEST(SineCli, Help)
{
    const CliRun run = sine({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.startsWith(
        "Usage: quillon-cli sine [--x DEGREES] [--n N] [--txt FILE] [--csv FILE]\n"));
    for (const char* option : {"--x", "--n", "--txt", "--csv"}) {
        EXPECT_TRUE(run.out.contains(QLatin1String(option))) << option;
    }
    EXPECT_TRUE(CliRun::of({"--help"}).out.contains(QStringLiteral("sine")));
}
