#include "cli/AssocCommand.h"
#include "cli/CliRunner.h"
#include "cli/PentagonCommand.h"
#include "cli/RootsCommand.h"
#include "cli/SineCommand.h"
#include "cli/StandardOutput.h"
#include "cli/ValueReportCommand.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    prepareStandardStreams();
    QCoreApplication application(argc, argv);
    CliRunner runner;
    runner.addCommand(std::make_unique<RootsCommand>());
    runner.addCommand(std::make_unique<AssocCommand>());
    runner.addCommand(std::make_unique<SineCommand>());
    runner.addCommand(std::make_unique<PentagonCommand>());
    runner.addCommand(std::make_unique<ValueReportCommand>());
    return runner.run(QCoreApplication::arguments(), {stdout, stderr});
}
