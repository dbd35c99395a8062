#pragma once

#include "cli/CliCommand.h"

// quillon-cli inspect: what a number becomes in single or double precision, bit by bit and
// exactly, and how far it lies from a reference.
class ValueReportCommand : public CliCommand
{
public:
    QString name() const override;
    QString summary() const override;
    int run(const QStringList& arguments, const CliStreams& streams) const override;
};
