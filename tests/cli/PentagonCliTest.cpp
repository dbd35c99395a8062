#include "tests/cli/CliRun.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

QString golden(const QString& name)
{
    return fileText(QStringLiteral(QUILLON_PENTAGON_DATA_DIR "/") + name);
}

CliRun pentagon(QStringList arguments)
{
    arguments.prepend(QStringLiteral("pentagon"));
    return CliRun::of(arguments);
}

const char* const kHeader =
    "Point 0: X, Y; Point 1: X, Y; Point 2: X, Y; Point 3: X, Y; Point 4: X, Y; \n";

} // namespace

TEST(PentagonCli, DefaultsExportTheInitialPentagon)
{
    const CliRun run = pentagon({});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, QString::fromLatin1(kHeader) +
                           "0.000000e+00, 0.000000e+00; 0.000000e+00, 1.000000e+00; "
                           "1.000000e+00, 1.100000e+00; 1.100000e+00, 1.000000e+00; "
                           "1.000000e+00, 0.000000e+00; \n");
    EXPECT_EQ(run.err, QStringLiteral("ok\n"));
}

TEST(PentagonCli, RunsMatchTheirExports)
{
    const CliRun fiveAndFive = pentagon({"--ops", "IIIIIOOOOO"});
    EXPECT_EQ(fiveAndFive.exitCode, 0);
    EXPECT_EQ(fiveAndFive.out, golden("default-IIIIIOOOOO.txt"));
    EXPECT_EQ(fiveAndFive.err, QStringLiteral("ok\n"));
    EXPECT_EQ(pentagon({"--shape", "default", "--epsilon", "1e-1", "--ops", "IIIIIOOOOO"}).out,
              golden("default-IIIIIOOOOO.txt"));

    const CliRun regular = pentagon({"--shape", "regular", "--ops", "IOIOIOIOIO"});
    EXPECT_EQ(regular.exitCode, 0);
    EXPECT_EQ(regular.out, golden("regular-IOIOIOIOIO.txt"));
    // The regular shape takes no epsilon.
    EXPECT_EQ(pentagon({"--shape", "regular", "--epsilon", "7", "--ops", "IOIOIOIOIO"}).out,
              golden("regular-IOIOIOIOIO.txt"));
}

// A failed step is a result: the history up to it, its message on the last line, exit 0.
TEST(PentagonCli, AFailedStepIsAResult)
{
    // Epsilon -1 puts P3 on P5: the first In's line from Q5 towards Q3 is no line.
    const CliRun first = pentagon({"--epsilon", "-1", "--ops", "I"});
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.out, golden("first-step-fails.txt"));
    EXPECT_EQ(first.err, QStringLiteral("Error! Two lines are parallel! \n"));
    // Ten Ins of the Default pentagon succeed; the eleventh fails, and later steps change
    // nothing.
    const CliRun ten = pentagon({"--ops", "IIIIIIIIII"});
    EXPECT_EQ(ten.err, QStringLiteral("ok\n"));
    EXPECT_EQ(ten.out.count(QLatin1Char('\n')), 1 + 11);
    const CliRun more = pentagon({"--ops", "IIIIIIIIIIIOIO"});
    EXPECT_EQ(more.exitCode, 0);
    EXPECT_EQ(more.out, ten.out);
    EXPECT_EQ(more.err, QStringLiteral("Error! New five points can not form a pentagon! \n"));
}

TEST(PentagonCli, TxtWritesTheFile)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fünf 100%.txt"));
    const CliRun run = pentagon({"--ops", "IIIIIOOOOO", "--txt", path});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_EQ(run.err, QStringLiteral("save file %1 done\nok\n").arg(path));
    EXPECT_EQ(fileText(path), golden("default-IIIIIOOOOO.txt"));
}

TEST(PentagonCli, BadInputIsOneLineAndWritesNothing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.txt"));
    const QList<QStringList> cases = {{"--shape", "square"},
                                      {"--shape", "Regular"},
                                      {"--epsilon", "abc"},
                                      {"--epsilon", "0,1"},
                                      {"--epsilon", ""},
                                      {"--epsilon", "0x1p-3"},
                                      {"--epsilon", "inf"},
                                      {"--epsilon", "1e"},
                                      {"--ops", "IXO"},
                                      {"--ops", "io"},
                                      {"--bogus"},
                                      {"stray"},
                                      {"--ops"}};
    for (QStringList arguments : cases) {
        const QString shown = arguments.join(QLatin1Char(' '));
        arguments << QStringLiteral("--txt") << path;
        const CliRun run = pentagon(arguments);
        EXPECT_EQ(run.exitCode, 2) << shown.toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << shown.toStdString();
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli pentagon: ")))
            << run.err.toStdString();
        EXPECT_FALSE(QFile::exists(path)) << shown.toStdString();
    }
}

TEST(PentagonCli, UnwritableFileIsAFileError)
{
    QTemporaryDir folder;
    const CliRun run =
        pentagon({"--ops", "IO", "--txt", folder.filePath(QStringLiteral("missing/out.txt"))});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1);
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli pentagon: cannot write \"")));
}

TEST(PentagonCli, Help)
{
    const CliRun run = pentagon({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.startsWith("Usage: quillon-cli pentagon [--shape default|regular] "
                                   "[--epsilon E] [--ops SEQUENCE]\n"));
    for (const char* option : {"--shape", "--epsilon", "--ops", "--txt"}) {
        EXPECT_TRUE(run.out.contains(QLatin1String(option))) << option;
    }
    EXPECT_TRUE(CliRun::of({"--help"}).out.contains(QStringLiteral("pentagon")));
}
