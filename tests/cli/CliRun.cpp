#include "tests/cli/CliRun.h"

#include "tests/common/FilePermissionsEnforced.h"

#include <QFile>
#include <QProcess>
#include <csignal>
#include <optional>
#include <unistd.h>

namespace
{

// A pipe whose reading end is already closed: writing to the other end fails with EPIPE (or
// raises SIGPIPE). Closes the writing end when it goes.
class PipeWithoutReader
{
public:
    PipeWithoutReader()
    {
        int ends[2] = {-1, -1};
        if (::pipe(ends) == 0) {
            ::close(ends[0]);
            writer = ends[1];
        }
    }
    ~PipeWithoutReader()
    {
        if (writer >= 0) {
            ::close(writer);
        }
    }
    PipeWithoutReader(const PipeWithoutReader&) = delete;
    PipeWithoutReader& operator=(const PipeWithoutReader&) = delete;

    int writingEnd() const { return writer; }

private:
    int writer = -1;
};

// Sends the child's standard output where `sink` says; `pipeWriter` is the writing end of a
// PipeWithoutReader, used only in the child, between fork and exec.
void directOutput(QProcess& process, OutputSink sink, int pipeWriter)
{
    switch (sink) {
    case OutputSink::Captured:
        break;
    case OutputSink::FullDisk:
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        break;
    case OutputSink::Closed:
        process.setChildProcessModifier([] { ::close(STDOUT_FILENO); });
        break;
    case OutputSink::PipeWithoutReader:
        // A shell starts a pipeline's programs with the default SIGPIPE action, which kills.
        process.setChildProcessModifier([pipeWriter] {
            std::signal(SIGPIPE, SIG_DFL);
            ::dup2(pipeWriter, STDOUT_FILENO);
        });
        break;
    }
}

// Starts the quillon-cli this build made and waits for it.
CliRun runToTheEnd(QProcess& process, const QStringList& arguments)
{
    process.start(QStringLiteral(QUILLON_CLI_PATH), arguments);
    CliRun run;
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        return run;
    }
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

} // namespace

CliRun CliRun::of(const QStringList& arguments, OutputSink sink)
{
    QProcess process;
    std::optional<PipeWithoutReader> pipe;
    if (sink == OutputSink::PipeWithoutReader) {
        pipe.emplace();
    }
    directOutput(process, sink, pipe ? pipe->writingEnd() : -1);
    return runToTheEnd(process, arguments);
}

CliRun CliRun::obeyingFilePermissions(const QStringList& arguments)
{
    QProcess process;
    process.setChildProcessModifier([] {
        if (!FilePermissionsEnforced::giveUpForGood()) {
            static const char kMessage[] = "cannot give up the permission overrides\n";
            [[maybe_unused]] const ssize_t written =
                ::write(STDERR_FILENO, kMessage, sizeof kMessage - 1);
            ::_exit(126);
        }
    });
    return runToTheEnd(process, arguments);
}

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<cannot read %1>").arg(path);
}
