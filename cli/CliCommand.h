#pragma once

#include "cli/PictureOptions.h"
#include "common/picture/PictureFile.h"

#include <QString>
#include <QStringList>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>

class QCommandLineOption;
class QCommandLineParser;

// Exit statuses of quillon-cli.
enum CliExitCode { ExitSuccess = 0, ExitFileError = 1, ExitUsageError = 2 };

// Where a command writes: data to `out`, confirmations and errors to `err`.
struct CliStreams {
    std::FILE* out;
    std::FILE* err;
};

// One module subcommand of quillon-cli.
class CliCommand
{
public:
    virtual ~CliCommand() = default;

    virtual QString name() const = 0;
    // One line for the module list of the top-level help.
    virtual QString summary() const = 0;
    // Runs with the arguments after the module name; returns a CliExitCode.
    virtual int run(const QStringList& arguments, const CliStreams& streams) const = 0;

protected:
    // Writes "quillon-cli <name>: <message>" as one line on the error stream and returns
    // ExitUsageError, for the common "that input is not valid" exit.
    int usageError(const CliStreams& streams, const QString& message) const;

    // Writes "quillon-cli <name>: <reason>" as one line on the error stream and returns
    // ExitFileError.
    int fileError(const CliStreams& streams, const std::string& reason) const;

    // Adds -h/--help to `parser` and parses `arguments`. Returns the exit status when the
    // command is done already (help shown, or an unknown option or a stray argument beyond
    // the `positionals` the command takes reported), nothing when it should go on.
    std::optional<int> parseArguments(QCommandLineParser& parser, const QStringList& arguments,
                                      const CliStreams& streams, const char* help,
                                      int positionals = 0) const;

    // Writes `text` to the output stream and flushes it. Returns ExitSuccess, or ExitFileError
    // after a one-line reason when the stream did not take it all.
    int writeOutput(const CliStreams& streams, const std::string& text) const;

    // Writes an export file whole (or not at all) and confirms it on the error stream.
    // Returns ExitSuccess, or ExitFileError after a one-line reason.
    int writeExport(const CliStreams& streams, const QString& path,
                    const std::string& contents) const;

    // Writes the text export to the file of option `txt` and the comma-separated export to
    // that of option `csv`, each when given; with neither, and no picture file asked for
    // (`picturesAsked`), the comma-separated export goes to the output stream. Returns the
    // first failure's status, or ExitSuccess.
    int writeExports(const CliStreams& streams, const QCommandLineParser& parser,
                     const QCommandLineOption& txt, const QCommandLineOption& csv,
                     const std::string& textExport, const std::string& csvExport,
                     bool picturesAsked) const;

    // Draws each picture file `request` asks for from `describe` and writes it as writeExport
    // writes an export. Returns the first failure's status, or ExitSuccess.
    int writePictures(const CliStreams& streams, const PictureRequest& request,
                      const quillon::PictureDescriber& describe) const;

    // When `option` (--colors) is given, reads the beginning of the configuration file it
    // names, as the tabs' File > Open entries do, and hands the text to `apply`. Returns
    // ExitSuccess, or ExitFileError after a one-line reason (and then applies nothing).
    int readColorsOption(const CliStreams& streams, const QCommandLineParser& parser,
                         const QCommandLineOption& option,
                         const std::function<void(const std::string&)>& apply) const;
};
