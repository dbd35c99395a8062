#pragma once

#include "cli/CliCommand.h"

// quillon-cli roots: the Roots tab's grid for given coefficients, and its text export.
class RootsCommand : public CliCommand
{
public:
    QString name() const override;
    QString summary() const override;
    int run(const QStringList& arguments, const CliStreams& streams) const override;
};
