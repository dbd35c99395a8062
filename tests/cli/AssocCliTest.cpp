#include "tests/cli/CliRun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

QString golden(const QString& name)
{
    QFile file(QStringLiteral(QUILLON_ASSOC_DATA_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<missing golden file>");
}

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

CliRun assoc(QStringList arguments)
{
    arguments.prepend(QStringLiteral("assoc"));
    return CliRun::of(arguments);
}

} // namespace

TEST(AssocCli, DefaultsGoToStandardOutputAsCsv)
{
    const CliRun run = assoc({});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, golden("default.csv"));
    EXPECT_TRUE(run.err.isEmpty());
}

TEST(AssocCli, WritesBothExports)
{
    QTemporaryDir folder;
    const QString txt = folder.filePath(QStringLiteral("über 100%.txt"));
    const QString csv = folder.filePath(QStringLiteral("data.csv"));
    const CliRun run = assoc({"--r", "3.01", "--x0", "0.7", "--txt", txt, "--csv", csv});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_EQ(run.err, QStringLiteral("save file %1 done\nsave file %2 done\n").arg(txt, csv));
    EXPECT_EQ(contents(txt), golden("overflow.txt"));
    EXPECT_EQ(contents(csv), golden("overflow.csv"));
}

TEST(AssocCli, OneIteration)
{
    QTemporaryDir folder;
    const QString txt = folder.filePath(QStringLiteral("n1.txt"));
    EXPECT_EQ(assoc({"--n", "1", "--txt", txt}).exitCode, 0);
    EXPECT_EQ(contents(txt), golden("n1.txt"));
    EXPECT_EQ(assoc({"--n", "1"}).out, golden("n1.csv"));
}

TEST(AssocCli, TypeableTextReadsLikeTheTab)
{
    // "0" and "99999" can be typed into the iteration field; "-" into R, reading as 0.
    EXPECT_EQ(assoc({"--n", "0"}).out, QString());
    const CliRun many = assoc({"--n", "99999"});
    EXPECT_EQ(many.exitCode, 0);
    EXPECT_EQ(many.out.count(QLatin1Char('\n')), 99999);
    const CliRun zeroGrowth = assoc({"--r", "-", "--n", "3"});
    EXPECT_EQ(zeroGrowth.exitCode, 0);
    EXPECT_EQ(zeroGrowth.out.count(QStringLiteral("5.000000e-01, ")), 15);
}

TEST(AssocCli, BadInputIsOneLineAndWritesNothing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    const QList<QStringList> cases = {
        {"--n", "-1"},    {"--n", "100000"},  {"--n", "1.5"},  {"--n", "abc"},  {"--r", "1e3"},
        {"--r", "3.001"}, {"--x0", "100000"}, {"--x0", " 1"},  {"--bogus"},     {"stray"},
        {"--r"},          {"--r", "1,000"},   {"--x0", "1,5"}, {"--n", "1,000"}};
    for (QStringList arguments : cases) {
        const QString shown = arguments.join(QLatin1Char(' '));
        arguments << QStringLiteral("--csv") << path;
        const CliRun run = assoc(arguments);
        EXPECT_EQ(run.exitCode, 2) << shown.toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << shown.toStdString();
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli assoc: ")));
        EXPECT_FALSE(QFile::exists(path)) << shown.toStdString();
    }
}

TEST(AssocCli, NumberTooLargeForADoubleCannotBeTyped)
{
    // Ten digits cannot be typed into R or X0, so neither can four hundred, whose value no
    // double holds.
    const QString ones(400, QLatin1Char('1'));
    for (const QStringList& arguments : {QStringList{"--r", ones}, QStringList{"--x0", "-" + ones},
                                         QStringList{"--r", ones + ".5"}}) {
        const CliRun run = assoc(arguments + QStringList{"--n", "3"});
        EXPECT_EQ(run.exitCode, 2) << arguments.first().toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << run.out.left(200).toStdString();
        EXPECT_TRUE(
            run.err.startsWith(QStringLiteral("quillon-cli assoc: %1 '").arg(arguments.first())))
            << run.err.left(200).toStdString();
    }
}

TEST(AssocCli, UnwritableFileIsAFileError)
{
    QTemporaryDir folder;
    const CliRun run = assoc({"--txt", folder.filePath(QStringLiteral("missing/x.txt"))});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli assoc: cannot write")));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList());
}

TEST(AssocCli, Help)
{
    const CliRun run = assoc({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.startsWith("Usage: quillon-cli assoc"));
    EXPECT_TRUE(CliRun::of({"--help"}).out.contains("assoc"));
}
