#include "tests/cli/CliRun.h"

#include <QFile>

#include <QProcess>

CliRun CliRun::of(const QStringList& arguments)
{
    QProcess process;
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

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<cannot read %1>").arg(path);
}
