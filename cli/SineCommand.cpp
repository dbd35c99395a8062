#include "cli/SineCommand.h"

#include "cli/ArgumentText.h"
#include "cli/PictureOptions.h"
#include "common/core/FieldValidation.h"
#include "sine/engine/SineApproaches.h"
#include "sine/engine/SineFiles.h"
#include "sine/picture/SinePlotPicture.h"

#include <QCommandLineParser>

namespace
{

// The help's option descriptions start at this column.
constexpr int kHelpColumn = 17;

const char* const kHelpStart =
    "Usage: quillon-cli sine [--x DEGREES] [--n N] [--txt FILE] [--csv FILE]\n"
    "                        [--colors FILE] [--png FILE] [--svg FILE] [--size WxH]\n"
    "Sums the Taylor series of sin(x) term by term in twelve ways in single precision, as the\n"
    "Sine tab does (defaults X = 250 degrees, N = 300 terms).\n"
    "\n"
    "Options:\n"
    "  --x DEGREES    The angle in whole degrees, as its field takes it: typed within\n"
    "                 -1000000..1000000 (at most 7 digits).\n"
    "  --n N          The number of terms, a whole number of at most 5 digits.\n"
    "  --txt FILE     Write the text export to FILE.\n"
    "  --csv FILE     Write the comma-separated export to FILE.\n"
    "  --colors FILE  Draw the pictures in the colours from FILE, a configuration file as\n"
    "                 File > Open a configuration file reads it.\n";

const char* const kHelpEnd =
    "  -h, --help     Show this help.\n"
    "\n"
    "With none of --txt, --csv, --png and --svg the comma-separated export goes to standard\n"
    "output; with only picture files asked for, nothing is written there.\n"
    "Text a field takes but cannot read as a number (such as \"-\") reads as 0, as in the tab.\n";

// The panel's fields: the angle takes whole degrees from -1000000 to 1000000, the number of
// terms whole numbers from 1 to 10000; anything they let a user type is taken.
constexpr int kMaxDegrees = 1000000;
constexpr int kMaxTerms = 10000;

bool typeable(const QString& text, int bottom, int top)
{
    return quillon::validateIntegerField(text.toStdString(), bottom, top) !=
           quillon::FieldState::Invalid;
}

} // namespace

QString SineCommand::name() const
{
    return QStringLiteral("sine");
}

QString SineCommand::summary() const
{
    return QStringLiteral("the Sine tab: sin(x) by its Taylor series in twelve ways");
}

int SineCommand::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    const QCommandLineOption x(QStringLiteral("x"), QString(), QStringLiteral("DEGREES"));
    const QCommandLineOption n(QStringLiteral("n"), QString(), QStringLiteral("N"));
    const QCommandLineOption txt(QStringLiteral("txt"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption csv(QStringLiteral("csv"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption colors(QStringLiteral("colors"), QString(), QStringLiteral("FILE"));
    parser.addOptions({x, n, txt, csv, colors});
    const PictureOptions pictureOptions(quillon::kDefaultPlotViewSize);
    pictureOptions.addTo(parser);
    const std::string help = kHelpStart + pictureOptions.help(kHelpColumn).toStdString() + kHelpEnd;
    if (const auto done = parseArguments(parser, arguments, streams, help.c_str())) {
        return *done;
    }
    if (parser.isSet(x) && !typeable(parser.value(x), -kMaxDegrees, kMaxDegrees)) {
        return usageError(streams, QStringLiteral("--x '%1' cannot be typed into its field (whole "
                                                  "degrees from -1000000 to 1000000)")
                                       .arg(shownArgument(parser.value(x))));
    }
    if (parser.isSet(n) && !typeable(parser.value(n), 1, kMaxTerms)) {
        return usageError(streams, QStringLiteral("--n '%1' cannot be typed into its field (a "
                                                  "whole number of at most 5 digits)")
                                       .arg(shownArgument(parser.value(n))));
    }

    PictureRequest pictures;
    if (const auto refusal = pictureOptions.read(parser, pictures)) {
        return usageError(streams, *refusal);
    }
    SineColors colours = kSineDefaultColors;
    if (const int status = readColorsOption(
            streams, parser, colors,
            [&colours](const std::string& text) { readSineColorFile(text, colours); });
        status != ExitSuccess) {
        return status;
    }

    // The fields' texts are read the way the tab reads them: unreadable text is 0.
    const int degrees = parser.isSet(x) ? parser.value(x).toInt() : 250;
    const int count = parser.isSet(n) ? parser.value(n).toInt() : 300;
    SineResults results;
    computeSine(degrees, count, results);
    if (const int status = writeExports(streams, parser, txt, csv, sineTextExport(results),
                                        sineCsvExport(results), !pictures.empty());
        status != ExitSuccess) {
        return status;
    }
    return writePictures(streams, pictures, [&](QSize viewSize) {
        return sineFinishedPicture(degrees, count, colours, viewSize);
    });
}
