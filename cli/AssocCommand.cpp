#include "cli/AssocCommand.h"

#include "assoc/engine/AssoFiles.h"
#include "assoc/engine/AssoRecurrence.h"
#include "assoc/picture/AssoPlotPicture.h"
#include "cli/ArgumentText.h"
#include "common/core/FieldValidation.h"

#include <QCommandLineParser>

namespace
{

// The help's option descriptions start at this column.
constexpr int kHelpColumn = 17;

const char* const kHelpStart =
    "Usage: quillon-cli assoc [--r R] [--x0 X0] [--n N] [--txt FILE] [--csv FILE]\n"
    "                         [--colors FILE] [--png FILE] [--svg FILE] [--size WxH]\n"
    "Iterates X_n = (R + 1) X_{n-1} - R X_{n-1}^2 in five algebraically equal orders in single\n"
    "precision, as the Associative Law tab does (defaults R = 3, X0 = 0.5, N = 300).\n"
    "\n"
    "Options:\n"
    "  --r R          The growth rate, as its field takes it: a decimal with at most 2 digits\n"
    "                 after the point, typed within -99999.99..99999.99.\n"
    "  --x0 X0        The initial value, likewise.\n"
    "  --n N          The number of iterations, a whole number of at most 5 digits.\n"
    "  --txt FILE     Write the text export to FILE.\n"
    "  --csv FILE     Write the comma-separated export to FILE.\n"
    "  --colors FILE  Draw the pictures in the orders' colours from FILE, a configuration file\n"
    "                 as File > Open a configuration file reads it.\n";

const char* const kHelpEnd =
    "  -h, --help     Show this help.\n"
    "\n"
    "With none of --txt, --csv, --png and --svg the comma-separated export goes to standard\n"
    "output; with only picture files asked for, nothing is written there.\n"
    "Text a field takes but cannot read as a number (such as \"-\") reads as 0, as in the tab.\n";

// The panel's fields: R and X0 take decimals from -10000 to 10000 with 2 decimals, N whole
// numbers from 1 to 10000; anything they let a user type is taken.
bool typeableDecimal(const QString& text)
{
    return quillon::validateDecimalField(text.toStdString(), -10000.0, 10000.0, 2) !=
           quillon::FieldState::Invalid;
}

bool typeableCount(const QString& text)
{
    return quillon::validateIntegerField(text.toStdString(), 1, 10000) !=
           quillon::FieldState::Invalid;
}

} // namespace

QString AssocCommand::name() const
{
    return QStringLiteral("assoc");
}

QString AssocCommand::summary() const
{
    return QStringLiteral("the Associative Law tab: one recurrence in five orders");
}

int AssocCommand::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    const QCommandLineOption r(QStringLiteral("r"), QString(), QStringLiteral("R"));
    const QCommandLineOption x0(QStringLiteral("x0"), QString(), QStringLiteral("X0"));
    const QCommandLineOption n(QStringLiteral("n"), QString(), QStringLiteral("N"));
    const QCommandLineOption txt(QStringLiteral("txt"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption csv(QStringLiteral("csv"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption colors(QStringLiteral("colors"), QString(), QStringLiteral("FILE"));
    parser.addOptions({r, x0, n, txt, csv, colors});
    const PictureOptions pictureOptions(quillon::kDefaultPlotViewSize);
    pictureOptions.addTo(parser);
    const std::string help = kHelpStart + pictureOptions.help(kHelpColumn).toStdString() + kHelpEnd;
    if (const auto done = parseArguments(parser, arguments, streams, help.c_str())) {
        return *done;
    }
    for (const QCommandLineOption& option : {r, x0}) {
        const QString value = parser.value(option);
        if (parser.isSet(option) && !typeableDecimal(value)) {
            return usageError(streams, QStringLiteral("--%1 '%2' cannot be typed into its field "
                                                      "(a decimal with at most 2 decimals)")
                                           .arg(option.names().first(), shownArgument(value)));
        }
    }
    if (parser.isSet(n) && !typeableCount(parser.value(n))) {
        return usageError(streams, QStringLiteral("--n '%1' cannot be typed into its field (a "
                                                  "whole number of at most 5 digits)")
                                       .arg(shownArgument(parser.value(n))));
    }
    PictureRequest pictures;
    if (const auto refusal = pictureOptions.read(parser, pictures)) {
        return usageError(streams, *refusal);
    }
    AssoColors colours = kAssoDefaultColors;
    if (const int status = readColorsOption(
            streams, parser, colors,
            [&colours](const std::string& text) { readAssoColorFile(text, colours); });
        status != ExitSuccess) {
        return status;
    }

    // The fields' texts are read the way the tab reads them: unreadable text is 0.
    const float growth = parser.isSet(r) ? parser.value(r).toFloat() : 3.0f;
    const float start = parser.isSet(x0) ? parser.value(x0).toFloat() : 0.5f;
    const int count = parser.isSet(n) ? parser.value(n).toInt() : 300;
    AssoSequences sequences;
    computeSequences(growth, start, count, sequences);

    if (const int status = writeExports(streams, parser, txt, csv, assoTextExport(sequences),
                                        assoCsvExport(sequences, count), !pictures.empty());
        status != ExitSuccess) {
        return status;
    }
    return writePictures(streams, pictures, [&](QSize viewSize) {
        return assoFinishedPicture(growth, start, count, colours, viewSize);
    });
}
