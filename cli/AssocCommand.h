#pragma once

#include "cli/CliCommand.h"

// quillon-cli assoc: the associative-law tab's five sequences as its exports.
class AssocCommand : public CliCommand
{
public:
    QString name() const override;
    QString summary() const override;
    int run(const QStringList& arguments, const CliStreams& streams) const override;
};
