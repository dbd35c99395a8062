#include "cli/RootsCommand.h"

#include "cli/ArgumentText.h"
#include "cli/PictureOptions.h"
#include "roots/engine/RootsFieldRule.h"
#include "roots/engine/RootsSolver.h"
#include "roots/engine/RootsTextExport.h"
#include "roots/picture/RootsGridPicture.h"

#include <QCommandLineParser>
#include <optional>

namespace
{

// The help's option descriptions start at this column.
constexpr int kHelpColumn = 15;

const char* const kHelpStart =
    "Usage: quillon-cli roots [--example 1|2|3] [--a TEXT] [--b TEXT] [--c TEXT] [--txt FILE]\n"
    "                         [--png FILE] [--svg FILE] [--size WxH]\n"
    "Solves a x^2 + b x + c = 0 four ways, as the Roots tab does, starting from a = 1,\n"
    "b = 1000, c = 1. --example takes an example as its menu entry does; then each given\n"
    "coefficient is read as pressing Enter in its field does, in the order a, b, c.\n"
    "\n"
    "Options:\n"
    "  --example N  1: regular example, 2: b^2 >> 4ac, 3: b^2 ~ 4ac.\n"
    "  --a TEXT     a, a decimal number from 1e-11 to 1e8 with at most 9 decimals.\n"
    "  --b TEXT     b, a decimal number from -1e8 to 1e8 with at most 9 decimals.\n"
    "  --c TEXT     c, likewise.\n"
    "  --txt FILE   Also write the text export to FILE.\n";

const char* const kHelpEnd =
    "  -h, --help   Show this help.\n"
    "\n"
    "Standard output: a header line, then one tab-separated line per grid row: the row's\n"
    "name, the four cells as the grid shows them, and the row's agreement class.\n"
    "A picture shows the equation and the result grid, each row's cells in the colours of its\n"
    "agreement class (black where the tab would keep a cell's earlier colour).\n";

struct Coefficient {
    const char* option;
    const RootsFieldRange& range;
};

const Coefficient kCoefficients[] = {
    {"a", kRootsAField}, {"b", kRootsBCField}, {"c", kRootsBCField}};

std::string gridText(const RootsSolver& solver)
{
    std::string text = "quantity";
    for (const char* heading : kRootsVariantNames) {
        text += std::string("\t") + heading;
    }
    text += "\tagreement\n";
    const RootsGrid grid = solver.showResults();
    const RootsAgreements agreements = solver.classifyRows();
    for (int row = 0; row < kRootsRowCount; ++row) {
        text += kRootsRowNames[row];
        for (const std::string& cell : grid[row]) {
            text += "\t" + cell;
        }
        text += "\t" + std::to_string(agreements[row]) + "\n";
    }
    return text;
}

} // namespace

QString RootsCommand::name() const
{
    return QStringLiteral("roots");
}

QString RootsCommand::summary() const
{
    return QStringLiteral("the Roots tab: four ways to solve a quadratic equation");
}

int RootsCommand::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    const QCommandLineOption example(QStringLiteral("example"), QString(), QStringLiteral("N"));
    const QCommandLineOption txt(QStringLiteral("txt"), QString(), QStringLiteral("FILE"));
    parser.addOption(example);
    parser.addOption(txt);
    for (const Coefficient& coefficient : kCoefficients) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(coefficient.option), QString(),
                                            QStringLiteral("TEXT")));
    }
    const PictureOptions pictureOptions(kRootsPictureSize);
    pictureOptions.addTo(parser);
    const std::string help = kHelpStart + pictureOptions.help(kHelpColumn).toStdString() + kHelpEnd;
    if (const auto done = parseArguments(parser, arguments, streams, help.c_str())) {
        return *done;
    }
    std::optional<int> exampleNumber;
    if (parser.isSet(example)) {
        const QString value = parser.value(example);
        if (value != QLatin1String("1") && value != QLatin1String("2") &&
            value != QLatin1String("3")) {
            return usageError(
                streams,
                QStringLiteral("--example must be 1, 2 or 3, not '%1'").arg(shownArgument(value)));
        }
        exampleNumber = value.toInt();
    }
    for (const Coefficient& coefficient : kCoefficients) {
        const QString option = QString::fromLatin1(coefficient.option);
        if (parser.isSet(option) &&
            !isAcceptableFieldText(parser.value(option).toStdString(), coefficient.range)) {
            return usageError(streams,
                              QStringLiteral("--%1 '%2' is not a number its field accepts (a "
                                             "decimal from %3 to %4 with at most %5 decimals)")
                                  .arg(option, shownArgument(parser.value(option)))
                                  .arg(coefficient.range.bottom)
                                  .arg(coefficient.range.top)
                                  .arg(coefficient.range.decimals));
        }
    }
    PictureRequest pictures;
    if (const auto refusal = pictureOptions.read(parser, pictures)) {
        return usageError(streams, *refusal);
    }

    RootsSolver solver(streams.err);
    if (exampleNumber) {
        solver.useExample(*exampleNumber);
    }
    if (parser.isSet(QStringLiteral("a"))) {
        solver.readA(parser.value(QStringLiteral("a")).toStdString());
        solver.recomputeAll();
    }
    if (parser.isSet(QStringLiteral("b"))) {
        solver.readB(parser.value(QStringLiteral("b")).toStdString());
        solver.recomputeAll();
    }
    if (parser.isSet(QStringLiteral("c"))) {
        solver.readC(parser.value(QStringLiteral("c")).toStdString());
        solver.recomputeAll();
    }
    if (const int status = writeOutput(streams, gridText(solver)); status != ExitSuccess) {
        return status;
    }
    if (parser.isSet(txt)) {
        if (const int status = writeExport(streams, parser.value(txt), rootsTextExport(solver));
            status != ExitSuccess) {
            return status;
        }
    }
    return writePictures(streams, pictures,
                         [&](QSize viewSize) { return rootsGridPicture(solver, viewSize); });
}
