#include "cli/PentagonCommand.h"

#include "cli/ArgumentText.h"
#include "cli/PictureOptions.h"
#include "common/core/CLocaleScope.h"
#include "pentagon/engine/PentagonEngine.h"
#include "pentagon/engine/PentagonFiles.h"
#include "pentagon/picture/PentagonPlotPicture.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <cstdlib>
#include <string>

namespace
{

// The help's option descriptions start at this column.
constexpr int kHelpColumn = 20;

const char* const kHelpStart =
    "Usage: quillon-cli pentagon [--shape default|regular] [--epsilon E] [--ops SEQUENCE]\n"
    "                            [--txt FILE] [--colors FILE] [--png FILE] [--svg FILE]\n"
    "                            [--size WxH]\n"
    "Applies In and Out steps to a pentagon in single precision, as the Pentagon tab does, and\n"
    "writes the history export: the points of the initial pentagon and of every successful step.\n"
    "\n"
    "Options:\n"
    "  --shape SHAPE     default (the Default pentagon, shaped by epsilon) or regular (the\n"
    "                    regular unit pentagon). Default: default.\n"
    "  --epsilon E       The Default pentagon's epsilon, a decimal number in standard or\n"
    "                    exponent notation, rounded to single precision once. Default: 0.1.\n"
    "                    The regular shape ignores it.\n"
    "  --ops SEQUENCE    The steps, in order: I for In, O for Out (may be empty). Default: none.\n"
    "  --txt FILE        Write the history export to FILE instead of standard output.\n"
    "  --colors FILE     Draw the pictures in the colours, line width and point size from FILE,\n"
    "                    a configuration file as File > Open a configuration file reads it.\n";

const char* const kHelpEnd =
    "  -h, --help        Show this help.\n"
    "\n"
    "With neither --txt nor a picture file the history export goes to standard output.\n"
    "The last line on standard error is the final status: the message of the step that failed\n"
    "(such as \"Error! Two lines are parallel! \") or \"ok\". A failed step is a result: the exit\n"
    "status is still 0. Steps after a failed one change nothing.\n";

// Reads a decimal number as typed, in standard or exponent notation, rounded to single
// precision once; false for anything else.
bool readEpsilon(const QString& text, float& value)
{
    static const QRegularExpression decimal(
        QStringLiteral("^[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?$"));
    if (!decimal.match(text).hasMatch()) {
        return false;
    }
    const std::string digits = text.toStdString();
    const quillon::CLocaleScope cLocale;
    value = std::strtof(digits.c_str(), nullptr);
    return true;
}

} // namespace

QString PentagonCommand::name() const
{
    return QStringLiteral("pentagon");
}

QString PentagonCommand::summary() const
{
    return QStringLiteral("the Pentagon tab: In and Out steps that should undo each other");
}

int PentagonCommand::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    const QCommandLineOption shape(QStringLiteral("shape"), QString(), QStringLiteral("SHAPE"));
    const QCommandLineOption epsilon(QStringLiteral("epsilon"), QString(), QStringLiteral("E"));
    const QCommandLineOption ops(QStringLiteral("ops"), QString(), QStringLiteral("SEQUENCE"));
    const QCommandLineOption txt(QStringLiteral("txt"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption colors(QStringLiteral("colors"), QString(), QStringLiteral("FILE"));
    parser.addOptions({shape, epsilon, ops, txt, colors});
    const PictureOptions pictureOptions(quillon::kDefaultPlotViewSize);
    pictureOptions.addTo(parser);
    const std::string help = kHelpStart + pictureOptions.help(kHelpColumn).toStdString() + kHelpEnd;
    if (const auto done = parseArguments(parser, arguments, streams, help.c_str())) {
        return *done;
    }
    const QString shapeName = parser.isSet(shape) ? parser.value(shape) : QStringLiteral("default");
    if (shapeName != QLatin1String("default") && shapeName != QLatin1String("regular")) {
        return usageError(streams, QStringLiteral("--shape '%1' is neither default nor regular")
                                       .arg(shownArgument(shapeName)));
    }
    float epsilonValue = 0.1f;
    if (parser.isSet(epsilon) && !readEpsilon(parser.value(epsilon), epsilonValue)) {
        return usageError(streams, QStringLiteral("--epsilon '%1' is not a decimal number")
                                       .arg(shownArgument(parser.value(epsilon))));
    }
    const QString sequence = parser.value(ops);
    static const QRegularExpression steps(QStringLiteral("^[IO]*$"));
    if (!steps.match(sequence).hasMatch()) {
        return usageError(streams, QStringLiteral("--ops '%1' holds something other than I and O")
                                       .arg(shownArgument(sequence)));
    }
    PictureRequest pictures;
    if (const auto refusal = pictureOptions.read(parser, pictures)) {
        return usageError(streams, *refusal);
    }
    PentagonColorSettings colours;
    if (const int status = readColorsOption(
            streams, parser, colors,
            [&colours](const std::string& text) { readPentagonConfiguration(text, colours); });
        status != ExitSuccess) {
        return status;
    }

    PentagonEngine engine;
    engine.setRegular(shapeName == QLatin1String("regular"));
    engine.setEpsilon(epsilonValue);
    engine.resetHistory();
    for (const QChar step : sequence) {
        if (step == QLatin1Char('I')) {
            engine.in();
        } else {
            engine.out();
        }
    }
    const std::string history = pentagonHistoryText(engine);
    int status = ExitSuccess;
    if (parser.isSet(txt)) {
        status = writeExport(streams, parser.value(txt), history);
    } else if (pictures.empty()) {
        status = writeOutput(streams, history);
    }
    if (status == ExitSuccess) {
        status = writePictures(streams, pictures, [&](QSize viewSize) {
            return pentagonFinishedPicture(engine, colours, viewSize);
        });
    }
    if (status == ExitSuccess) {
        const std::string message = pentagonStatusMessage(engine.lastStatus());
        std::fprintf(streams.err, "%s\n",
                     message.empty() ? "ok" : message.substr(0, message.size() - 1).c_str());
    }
    return status;
}
