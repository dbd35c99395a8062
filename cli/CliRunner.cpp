#include "cli/CliRunner.h"

#include "cli/ArgumentText.h"
#include "cli/StandardOutput.h"

#include <QCommandLineParser>

void CliRunner::addCommand(std::unique_ptr<CliCommand> command)
{
    commands.push_back(std::move(command));
}

const CliCommand* CliRunner::commandNamed(const QString& name) const
{
    for (const auto& command : commands) {
        if (command->name() == name) {
            return command.get();
        }
    }
    return nullptr;
}

QString CliRunner::helpText() const
{
    QString text = QStringLiteral(
        "Usage: quillon-cli <module> [options]\n"
        "Computes what a Quillon tab shows and writes its exports, without a window.\n"
        "\n"
        "Options:\n"
        "  -h, --help     Show this help, or a module's help after its name.\n"
        "  -v, --version  Show the version.\n"
        "\n"
        "Modules:\n");
    for (const auto& command : commands) {
        text += QStringLiteral("  %1  %2\n").arg(command->name(), -10).arg(command->summary());
    }
    text += QStringLiteral("\nExit status: 0 success, 1 file error, 2 usage or input error.\n");
    return text;
}

int CliRunner::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    parser.addOption(help);
    parser.addOption(version);
    if (!parser.parse(arguments)) {
        std::fprintf(streams.err, "quillon-cli: %s\n",
                     qPrintable(shownArgument(parser.errorText())));
        return ExitUsageError;
    }
    if (parser.isSet(help)) {
        return writeOutput(streams, helpText().toStdString(), "quillon-cli");
    }
    if (parser.isSet(version)) {
        return writeOutput(streams, std::string("quillon-cli ") + QUILLON_VERSION + "\n",
                           "quillon-cli");
    }
    QStringList positional = parser.positionalArguments();
    if (positional.isEmpty()) {
        std::fprintf(streams.err, "quillon-cli: no module given (try --help)\n");
        return ExitUsageError;
    }
    const QString moduleName = positional.takeFirst();
    const CliCommand* command = commandNamed(moduleName);
    if (command == nullptr) {
        std::fprintf(streams.err, "quillon-cli: unknown module '%s' (try --help)\n",
                     qPrintable(shownArgument(moduleName)));
        return ExitUsageError;
    }
    return command->run(positional, streams);
}
