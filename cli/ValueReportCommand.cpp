#include "cli/ValueReportCommand.h"

#include "cli/ArgumentText.h"
#include "inspect/engine/InspectionReport.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace
{

const char* const kHelp =
    "Usage: quillon-cli inspect VALUE [--as single|double] [--reference NUMBER]\n"
    "Shows what VALUE becomes when it is rounded once to single (binary32) or double\n"
    "(binary64) precision: its sign, exponent and significand bits, its bit pattern, the exact\n"
    "decimal it stands for, its two neighbours and its ulp; and, with a reference, how far it\n"
    "lies from it.\n"
    "\n"
    "Arguments:\n"
    "  VALUE                A decimal number in standard or exponent notation, a C99 hex-float\n"
    "                       (0x1.8p+1), inf or nan, with an optional sign. A negative VALUE\n"
    "                       may stand anywhere, or after \"--\" as in: inspect -- -5\n"
    "\n"
    "Options:\n"
    "  --as FORMAT          single or double. Default: single.\n"
    "  --reference NUMBER   The true answer, written as VALUE is, held to 1024 bits.\n"
    "  -h, --help           Show this help.\n"
    "\n"
    "Standard output: one \"name<TAB>value\" line per item, in this order:\n"
    "  format             binary32 or binary64\n"
    "  value              the shortest decimal that reads back as the value\n"
    "  range              only when VALUE overflowed the format (became an infinity) or\n"
    "                     underflowed it (a number other than 0 became a zero)\n"
    "  kind               normal, subnormal, zero, infinity or NaN\n"
    "  sign               the sign bit, 0 or 1\n"
    "  biased exponent    the exponent field as stored\n"
    "  unbiased exponent  the power of two it stands for (1 - bias for subnormals and zeros)\n"
    "  significand        the hidden bit, a point and every fraction bit\n"
    "  bits               the bit pattern in hexadecimal\n"
    "  hex float          the value as a C99 hex-float\n"
    "  exact decimal      the value exactly, every digit\n"
    "  next down          the representable value below, exactly\n"
    "  next up            the representable value above, exactly\n"
    "  ulp                the unit in the last place at this value, exactly\n"
    "With --reference, also:\n"
    "  reference          the reference to 40 significant digits\n"
    "  absolute error     value - reference, 17 significant digits\n"
    "  relative error     |value - reference| / |reference|, 17 significant digits; n/a\n"
    "                     against 0\n"
    "  error in ulps      value - reference in ulps of the format at the reference, two\n"
    "                     decimals; n/a against 0\n"
    "  correct digits     how many leading significant digits agree at every rounding, or\n"
    "                     exact\n";

// A VALUE with a minus sign would read as an option; one that looks like a negative number
// and does not follow an option that takes it is moved behind "--", so that it reads as VALUE.
// What the caller put behind a "--" of their own is VALUE already and goes there too.
QStringList negativeValueLast(const QStringList& arguments, const QStringList& valueOptions)
{
    static const QRegularExpression negative(QStringLiteral("^-([0-9.]|inf|nan)"),
                                             QRegularExpression::CaseInsensitiveOption);
    QStringList ordered;
    QStringList moved;
    for (int i = 0; i < int(arguments.size()); ++i) {
        const bool optionValue = i > 0 && valueOptions.contains(arguments[i - 1]);
        if (!optionValue && arguments[i] == QLatin1String("--")) {
            moved << arguments.mid(i + 1);
            break;
        }
        if (!optionValue && negative.match(arguments[i]).hasMatch()) {
            moved << arguments[i];
        } else {
            ordered << arguments[i];
        }
    }
    if (!moved.isEmpty()) {
        ordered << QStringLiteral("--") << moved;
    }
    return ordered;
}

} // namespace

QString ValueReportCommand::name() const
{
    return QStringLiteral("inspect");
}

QString ValueReportCommand::summary() const
{
    return QStringLiteral("the bits, the exact value and the error of one number");
}

int ValueReportCommand::run(const QStringList& arguments, const CliStreams& streams) const
{
    QCommandLineParser parser;
    const QCommandLineOption as(QStringLiteral("as"), QString(), QStringLiteral("FORMAT"));
    const QCommandLineOption reference(QStringLiteral("reference"), QString(),
                                       QStringLiteral("DECIMAL"));
    parser.addOptions({as, reference});
    const QStringList valueOptions = {QStringLiteral("--as"), QStringLiteral("--reference")};
    if (const auto done =
            parseArguments(parser, negativeValueLast(arguments, valueOptions), streams, kHelp, 1)) {
        return *done;
    }
    if (parser.positionalArguments().isEmpty()) {
        return usageError(streams, QStringLiteral("VALUE is missing"));
    }
    const QString formatName = parser.isSet(as) ? parser.value(as) : QStringLiteral("single");
    if (formatName != QLatin1String("single") && formatName != QLatin1String("double")) {
        return usageError(streams, QStringLiteral("--as '%1' is neither single nor double")
                                       .arg(shownArgument(formatName)));
    }
    const FloatFormat format =
        formatName == QLatin1String("single") ? FloatFormat::Single : FloatFormat::Double;
    const QString valueText = parser.positionalArguments().first();
    const std::optional<double> value = readFloatText(valueText.toStdString(), format);
    if (!value) {
        return usageError(
            streams, QStringLiteral("VALUE '%1' is not a number").arg(shownArgument(valueText)));
    }
    std::vector<ReportLine> lines;
    if (parser.isSet(reference)) {
        mpfr_t exact;
        mpfr_init2(exact, kReferenceBits);
        const bool read = readReference(parser.value(reference).toStdString(), exact);
        if (read) {
            lines = textReport(valueText.toStdString(), *value, format, exact);
        }
        mpfr_clear(exact);
        if (!read) {
            return usageError(streams, QStringLiteral("--reference '%1' is not a number")
                                           .arg(shownArgument(parser.value(reference))));
        }
    } else {
        lines = textReport(valueText.toStdString(), *value, format);
    }
    return writeOutput(streams, reportText(lines));
}
