#pragma once

#include "cli/CliCommand.h"

// quillon-cli sine: the sine tab's twelve series as its exports.
class SineCommand : public CliCommand
{
public:
    QString name() const override;
    QString summary() const override;
    int run(const QStringList& arguments, const CliStreams& streams) const override;
};
