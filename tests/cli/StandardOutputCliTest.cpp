#include "tests/cli/CliRun.h"

#include <cerrno>
#include <clocale>
#include <cstring>
#include <gtest/gtest.h>
#include <locale.h>

namespace
{

// A run that writes to standard output, and who its error line names.
struct Writer {
    QStringList arguments;
    QString who;
};

const QList<Writer>& everyWriter()
{
    static const QList<Writer> writers = {
        {{"--help"}, "quillon-cli"},
        {{"--version"}, "quillon-cli"},
        {{"roots"}, "quillon-cli roots"},
        {{"roots", "--help"}, "quillon-cli roots"},
        {{"assoc"}, "quillon-cli assoc"},
        {{"assoc", "--help"}, "quillon-cli assoc"},
        {{"sine"}, "quillon-cli sine"},
        {{"sine", "--help"}, "quillon-cli sine"},
        {{"pentagon"}, "quillon-cli pentagon"},
        {{"pentagon", "--help"}, "quillon-cli pentagon"},
        {{"inspect", "1"}, "quillon-cli inspect"},
        {{"inspect", "--help"}, "quillon-cli inspect"},
    };
    return writers;
}

// The C library's text for `errorNumber` in the locale of the environment, which quillon-cli
// takes on as it starts.
QString reasonInTheUsersLocale(int errorNumber)
{
    const locale_t users = ::newlocale(LC_ALL_MASK, "", static_cast<locale_t>(nullptr));
    const QString reason = QString::fromLocal8Bit(
        ::strerror_l(errorNumber, users != nullptr ? users : LC_GLOBAL_LOCALE));
    if (users != nullptr) {
        ::freelocale(users);
    }
    return reason;
}

QString lastLine(const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last();
}

// A failed write to standard output is a file error: exit status 1, and as the last line on
// standard error the one error line, naming the reason.
void expectFileError(const CliRun& run, const Writer& writer, int errorNumber)
{
    const std::string shown = writer.arguments.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(run.exitCode, 1) << shown;
    const QString expected = QStringLiteral("%1: cannot write standard output: %2")
                                 .arg(writer.who, reasonInTheUsersLocale(errorNumber));
    EXPECT_EQ(lastLine(run.err).toStdString(), expected.toStdString()) << shown;
    EXPECT_EQ(run.err.count(QStringLiteral("cannot write")), 1) << run.err.toStdString();
}

} // namespace

TEST(CliStandardOutput, FullDiskIsAFileErrorForEveryCommandAndHelp)
{
    for (const Writer& writer : everyWriter()) {
        expectFileError(CliRun::of(writer.arguments, OutputSink::FullDisk), writer, ENOSPC);
    }
}

TEST(CliStandardOutput, ClosedStandardOutputIsAFileError)
{
    for (const Writer& writer : everyWriter()) {
        expectFileError(CliRun::of(writer.arguments, OutputSink::Closed), writer, EBADF);
    }
}

TEST(CliStandardOutput, PipeWithoutReaderIsAFileErrorNotASignal)
{
    for (const Writer& writer : everyWriter()) {
        expectFileError(CliRun::of(writer.arguments, OutputSink::PipeWithoutReader), writer, EPIPE);
    }
}

TEST(CliStandardOutput, LongOutputCutShortByAFullDiskIsAFileError)
{
    // Far more than one buffer of output: the write fails in the middle, not at the end.
    const Writer sine{{"sine", "--n", "10000"}, "quillon-cli sine"};
    expectFileError(CliRun::of(sine.arguments, OutputSink::FullDisk), sine, ENOSPC);
}

TEST(CliStandardOutput, PentagonReportsNoStatusAfterAFailedHistory)
{
    const CliRun run = CliRun::of({"pentagon", "--ops", "IO"}, OutputSink::FullDisk);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << run.err.toStdString();
}
