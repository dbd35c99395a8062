#include "CliCommand.h"

int CliCommand::usageError(const CliStreams& streams, const QString& message) const
{
    std::fprintf(streams.err, "quillon-cli %s: %s\n", qPrintable(name()), qPrintable(message));
    return ExitUsageError;
}
