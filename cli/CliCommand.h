#pragma once

#include <QString>
#include <QStringList>
#include <cstdio>

// Exit statuses of quillon-cli.
enum CliExitCode { ExitSuccess = 0, ExitFileError = 1, ExitUsageError = 2 };

// Where a command writes: data to `out`, confirmations and errors to `err`.
struct CliStreams {
    std::FILE* out;
    std::FILE* err;
};

// One module subcommand of quillon-cli.
class CliCommand
{
public:
    virtual ~CliCommand() = default;

    virtual QString name() const = 0;
    // One line for the module list of the top-level help.
    virtual QString summary() const = 0;
    // Runs with the arguments after the module name; returns a CliExitCode.
    virtual int run(const QStringList& arguments, const CliStreams& streams) const = 0;

protected:
    // Writes "quillon-cli <name>: <message>" as one line on the error stream and returns
    // ExitUsageError, for the common "that input is not valid" exit.
    int usageError(const CliStreams& streams, const QString& message) const;
};
