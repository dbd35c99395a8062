#include "tests/cli/CliRun.h"
#include "tests/common/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{

QString golden(const QString& name)
{
    QFile file(QStringLiteral(QUILLON_ROOTS_DATA_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<missing golden file>");
}

CliRun roots(QStringList arguments)
{
    arguments.prepend(QStringLiteral("roots"));
    return CliRun::of(arguments);
}

QString lastLine(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last();
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing file>");
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QStringList entriesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden |
                                  QDir::System);
}

} // namespace

TEST(RootsCli, StartUpGridOnStandardOutputTraceOnStandardError)
{
    const CliRun run = roots({});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, golden("grid-startup.tsv"));
    EXPECT_EQ(run.err, QStringLiteral("1000000.000000 4.000000 \n"));
}

TEST(RootsCli, ExamplesActLikeTheMenuEntries)
{
    for (int example = 1; example <= 3; ++example) {
        const CliRun run = roots({QStringLiteral("--example"), QString::number(example)});
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.out, golden(QStringLiteral("grid-example%1.tsv").arg(example)));
    }
}

TEST(RootsCli, CoefficientsAreReadLikeTheirFields)
{
    EXPECT_EQ(roots({"--b", "4"}).out, golden("grid-example1.tsv"));
    EXPECT_EQ(roots({"--a", "1", "--b", "2.784548160", "--c", "1.938427098"}).out,
              golden("grid-single-invalid.tsv"));
    EXPECT_EQ(roots({"--c", "0.000000078", "--b", "-0.000708052"}).out,
              golden("grid-tolerance-chain.tsv"));
    // After example 3 the c field shows 250000.000000; reading it changes the double column.
    const CliRun reread = roots({"--example", "3", "--c", "250000.000000"});
    EXPECT_EQ(reread.exitCode, 0);
    EXPECT_TRUE(reread.out.contains("\t1.348699152349e-06\t")) << reread.out.toStdString();
}

TEST(RootsCli, ATooSmallForTheEngineIsRaisedToTheMinimum)
{
    const CliRun run = roots({"--a", "0.000000001"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains("4ac\t4.000000e-08\t")) << run.out.toStdString();
}

TEST(RootsCli, WritesTheTextExport)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("exämple 3 100%.txt"));
    const CliRun run = roots({"--example", "3", "--txt", path});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, golden("grid-example3.tsv"));
    EXPECT_EQ(lastLine(run.err), QStringLiteral("save file %1 done").arg(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), golden("export-example3.txt"));
}

TEST(RootsCli, BadInputIsOneLineAndWritesNothing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.txt"));
    const QList<QStringList> cases = {
        {"--example", "4"},
        {"--example", "one"},
        {"--a", "0"},
        {"--a", "-1"},
        {"--a", "1e3"},
        {"--b", "abc"},
        {"--b", "123456789"},
        {"--c", ""},
        {"--c", "1.0000000001"},
        {"--b", "1,000"},
        {"--a", "1,5"},
        {"--frobnicate"},
        {"extra"},
        {"--a"},
    };
    for (QStringList arguments : cases) {
        const QString shown = arguments.join(QLatin1Char(' '));
        arguments << QStringLiteral("--txt") << path;
        const CliRun run = roots(arguments);
        EXPECT_EQ(run.exitCode, 2) << shown.toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << shown.toStdString();
        EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
        EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli roots: ")))
            << run.err.toStdString();
        EXPECT_FALSE(QFile::exists(path)) << shown.toStdString();
    }
}

TEST(RootsCli, UnwritableExportIsAFileErrorWithNoPartialFile)
{
    QTemporaryDir folder;
    const QString plainFile = folder.filePath(QStringLiteral("plain.txt"));
    ASSERT_TRUE(writeFile(plainFile, "old bytes"));
    for (const QString& path :
         {folder.filePath(QStringLiteral("missing/out.txt")), folder.path(),
          plainFile + QStringLiteral("/out.txt"), QStringLiteral("/proc/quillon-roots.txt")}) {
        const CliRun run = roots({"--txt", path});
        EXPECT_EQ(run.exitCode, 1) << path.toStdString();
        EXPECT_TRUE(lastLine(run.err).startsWith(
            QStringLiteral("quillon-cli roots: cannot write \"%1\"").arg(path)))
            << run.err.toStdString();
    }
    EXPECT_EQ(contentsOf(plainFile), QByteArray("old bytes"));
    EXPECT_EQ(entriesIn(folder.path()), QStringList{QStringLiteral("plain.txt")});
}

TEST(RootsCli, ExportCutShortLeavesTheOldFileUntouched)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("export.txt"));
    ASSERT_TRUE(writeFile(path, "old bytes"));
    CliRun run;
    {
        const FileSizeLimit diskAlmostFull(100);
        run = roots({"--example", "3", "--txt", path});
    }
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(lastLine(run.err).startsWith(
        QStringLiteral("quillon-cli roots: cannot write \"%1\": ").arg(path)))
        << run.err.toStdString();
    EXPECT_EQ(contentsOf(path), QByteArray("old bytes"));
    EXPECT_EQ(entriesIn(folder.path()), QStringList{QStringLiteral("export.txt")});
}

TEST(RootsCli, ReadOnlyFolderLeavesTheOldFileUntouched)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("export.txt"));
    ASSERT_TRUE(writeFile(path, "old bytes"));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    const CliRun run = CliRun::obeyingFilePermissions({"roots", "--example", "3", "--txt", path});
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(lastLine(run.err).startsWith(
        QStringLiteral("quillon-cli roots: cannot write \"%1\": ").arg(path)))
        << run.err.toStdString();
    EXPECT_EQ(contentsOf(path), QByteArray("old bytes"));
    EXPECT_EQ(entriesIn(folder.path()), QStringList{QStringLiteral("export.txt")});
}

TEST(RootsCli, WritesThroughALinkAndKeepsIt)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("links")));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("files")));
    const QString target = folder.filePath(QStringLiteral("files/export.txt"));
    const QString link = folder.filePath(QStringLiteral("links/export.txt"));
    ASSERT_TRUE(writeFile(target, "old bytes"));
    ASSERT_TRUE(QFile::link(target, link));
    const CliRun run = roots({"--example", "3", "--txt", link});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(lastLine(run.err), QStringLiteral("save file %1 done").arg(link));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QFileInfo(link).symLinkTarget(), target);
    EXPECT_EQ(QString::fromUtf8(contentsOf(target)), golden("export-example3.txt"));
    EXPECT_EQ(entriesIn(folder.filePath(QStringLiteral("links"))), QStringList{"export.txt"});
    EXPECT_EQ(entriesIn(folder.filePath(QStringLiteral("files"))), QStringList{"export.txt"});
}

TEST(RootsCli, ReaderOfANamedPipeReceivesTheExport)
{
    QTemporaryDir folder;
    const QString fifo = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    QProcess reader;
    reader.start(QStringLiteral("cat"), {fifo});
    ASSERT_TRUE(reader.waitForStarted());
    const CliRun run = roots({"--example", "3", "--txt", fifo});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(reader.waitForFinished(10000)) << "the reader never saw the end of the export";
    EXPECT_EQ(QString::fromUtf8(reader.readAllStandardOutput()), golden("export-example3.txt"));
    struct stat info;
    ASSERT_EQ(::lstat(QFile::encodeName(fifo).constData(), &info), 0);
    EXPECT_TRUE(S_ISFIFO(info.st_mode));
}

TEST(RootsCli, LongestNamesSave)
{
    QTemporaryDir folder;
    const QString name = QString(246, QLatin1Char('r')) + QStringLiteral(".txt");
    ASSERT_EQ(name.toUtf8().size(), 250);
    const CliRun run = roots({"--example", "3", "--txt", folder.filePath(name)});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(contentsOf(folder.filePath(name))), golden("export-example3.txt"));
    EXPECT_EQ(entriesIn(folder.path()), QStringList{name});
}

TEST(RootsCli, HelpDescribesTheOptions)
{
    const CliRun run = roots({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.startsWith("Usage: quillon-cli roots [--example 1|2|3]"));
    for (const char* option : {"--example", "--a", "--b", "--c", "--txt"}) {
        EXPECT_TRUE(run.out.contains(QLatin1String(option))) << option;
    }
    EXPECT_TRUE(CliRun::of({"--help"}).out.contains("roots"));
}
