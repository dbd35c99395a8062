#include "cli/CliCommand.h"

#include "cli/ArgumentText.h"
#include "cli/StandardOutput.h"
#include "common/core/SafeFileWriter.h"
#include "common/core/TextFileReader.h"

#include <QCommandLineParser>

int CliCommand::usageError(const CliStreams& streams, const QString& message) const
{
    std::fprintf(streams.err, "quillon-cli %s: %s\n", qPrintable(name()), qPrintable(message));
    return ExitUsageError;
}

int CliCommand::fileError(const CliStreams& streams, const std::string& reason) const
{
    std::fprintf(streams.err, "quillon-cli %s: %s\n", qPrintable(name()), reason.c_str());
    return ExitFileError;
}

std::optional<int> CliCommand::parseArguments(QCommandLineParser& parser,
                                              const QStringList& arguments,
                                              const CliStreams& streams, const char* help,
                                              int positionals) const
{
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")}, QString());
    parser.addOption(helpOption);
    if (!parser.parse(QStringList{name()} + arguments)) {
        // The parser's message quotes the unknown option as it was given.
        return usageError(streams, shownArgument(parser.errorText()));
    }
    if (parser.isSet(helpOption)) {
        return writeOutput(streams, help);
    }
    if (parser.positionalArguments().size() > positionals) {
        return usageError(streams,
                          QStringLiteral("unexpected argument '%1'")
                              .arg(shownArgument(parser.positionalArguments().at(positionals))));
    }
    return std::nullopt;
}

int CliCommand::writeOutput(const CliStreams& streams, const std::string& text) const
{
    return ::writeOutput(streams, text, "quillon-cli " + name().toStdString());
}

int CliCommand::writeExport(const CliStreams& streams, const QString& path,
                            const std::string& contents) const
{
    std::string error;
    if (!quillon::writeFileAtomically(path.toStdString(), contents, error)) {
        return fileError(streams, error);
    }
    std::fprintf(streams.err, "save file %s done\n", qPrintable(path));
    return ExitSuccess;
}

int CliCommand::writeExports(const CliStreams& streams, const QCommandLineParser& parser,
                             const QCommandLineOption& txt, const QCommandLineOption& csv,
                             const std::string& textExport, const std::string& csvExport,
                             bool picturesAsked) const
{
    if (!parser.isSet(txt) && !parser.isSet(csv)) {
        return picturesAsked ? ExitSuccess : writeOutput(streams, csvExport);
    }
    if (parser.isSet(txt)) {
        if (const int status = writeExport(streams, parser.value(txt), textExport);
            status != ExitSuccess) {
            return status;
        }
    }
    if (parser.isSet(csv)) {
        return writeExport(streams, parser.value(csv), csvExport);
    }
    return ExitSuccess;
}

int CliCommand::writePictures(const CliStreams& streams, const PictureRequest& request,
                              const quillon::PictureDescriber& describe) const
{
    for (const PictureRequest::File& file : request.files) {
        const QByteArray bytes =
            quillon::pictureFileBytes(describe, request.size, request.referenceView, file.format);
        if (const int status = writeExport(streams, file.path, bytes.toStdString());
            status != ExitSuccess) {
            return status;
        }
    }
    return ExitSuccess;
}

int CliCommand::readColorsOption(const CliStreams& streams, const QCommandLineParser& parser,
                                 const QCommandLineOption& option,
                                 const std::function<void(const std::string&)>& apply) const
{
    if (!parser.isSet(option)) {
        return ExitSuccess;
    }
    std::string text;
    std::string error;
    if (!quillon::readTextFile(parser.value(option).toStdString(),
                               quillon::kMaxConfigurationFileBytes, text, error)) {
        return fileError(streams, error);
    }
    apply(text);
    return ExitSuccess;
}
