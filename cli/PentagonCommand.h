#pragma once

#include "cli/CliCommand.h"

// quillon-cli pentagon: In and Out steps on a built-in pentagon, as the history export.
class PentagonCommand : public CliCommand
{
public:
    QString name() const override;
    QString summary() const override;
    int run(const QStringList& arguments, const CliStreams& streams) const override;
};
