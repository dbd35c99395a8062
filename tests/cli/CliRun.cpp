#include "tests/cli/CliRun.h"

#include "tests/common/FilePermissionsEnforced.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <csignal>
#include <unistd.h>

namespace
{

// Sends the child's standard output where `sink` says; `pipeWriter` is the writing end of a
// pipe whose reading end is closed, used only in the child, between fork and exec.
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
    int pipeEnds[2] = {-1, -1};
    if (sink == OutputSink::PipeWithoutReader && ::pipe(pipeEnds) == 0) {
        ::close(pipeEnds[0]);
    }
    QProcess process;
    directOutput(process, sink, pipeEnds[1]);
    const CliRun run = runToTheEnd(process, arguments);
    if (pipeEnds[1] >= 0) {
        ::close(pipeEnds[1]);
    }
    return run;
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

CliRun CliRun::inEnvironment(const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    return runToTheEnd(process, arguments);
}

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<cannot read %1>").arg(path);
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll()
                                          : QStringLiteral("<cannot read %1>").arg(path).toUtf8();
}

bool writeFileBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

QStringList folderEntries(const QString& folder)
{
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden |
                                  QDir::System);
}
