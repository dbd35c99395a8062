#pragma once

#include "cli/CliCommand.h"

#include <memory>
#include <vector>

// The top level of quillon-cli: "--help", "--version", and dispatch to a module's command.
class CliRunner
{
public:
    void addCommand(std::unique_ptr<CliCommand> command);

    // `arguments` starts with the program name, as QCoreApplication::arguments() does.
    int run(const QStringList& arguments, const CliStreams& streams) const;

private:
    QString helpText() const;
    const CliCommand* commandNamed(const QString& name) const;

    std::vector<std::unique_ptr<CliCommand>> commands;
};
