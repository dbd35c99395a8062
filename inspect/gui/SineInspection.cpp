#include "inspect/gui/SineInspection.h"

#include "inspect/engine/SineReference.h"
#include "sine/engine/SineEngine.h"

#include <QObject>

namespace
{

// The difference a - b to 17 significant digits.
std::string differenceText(mpfr_srcptr a, mpfr_srcptr b)
{
    MpfrNumber difference(kReferenceBits);
    mpfr_sub(difference.get(), a, b, MPFR_RNDN);
    return printedReal("%.16Re", difference.get());
}

} // namespace

Inspection sineInspection(const SineResults& results, int approach, int index)
{
    const SineApproach& way = sineApproaches()[size_t(approach)];
    float factor = 1.0f;
    int degrees = results.degrees;
    if (way.input == SineInput::Reduced) {
        sineReduceRange(factor, degrees);
    }
    const float argument = sineDegreesToRadians(degrees);
    const SineReference reference = sineReference(results.degrees, argument, factor, index + 1);

    Inspection inspection;
    // The approach by the long name its legend entry shows.
    inspection.source = QObject::tr("Sine, %1, the sum of %2 terms")
                            .arg(QLatin1String(way.longName))
                            .arg(index + 1);
    inspection.value = double(results.series[size_t(approach)].sums[size_t(index)]);
    inspection.format = FloatFormat::Single;
    inspection.reference = reference.trueSine;
    inspection.referenceNote =
        QObject::tr("True value: sin(%1 degrees) for the exact angle, with MPFR at %2 bits. "
                    "The error splits into the argument's (sin of the single-precision "
                    "argument against the truth), the truncation's (the series cut after %3 "
                    "terms, summed exactly) and the rounding's (the single-precision sum "
                    "against the exact one).")
            .arg(results.degrees)
            .arg(kReferenceBits)
            .arg(index + 1);
    MpfrNumber value(64);
    mpfr_set_d(value.get(), inspection.value, MPFR_RNDN);
    std::string argumentText = shortestText(double(argument), FloatFormat::Single) + " rad";
    if (way.input == SineInput::Reduced) {
        argumentText +=
            " (" + std::to_string(degrees) + " degrees, sign " + (factor < 0 ? "-1" : "+1") + ")";
    }
    inspection.context = {
        {"argument", argumentText},
        {"argument error", differenceText(reference.argumentSine.get(), reference.trueSine.get())},
        {"truncation error",
         differenceText(reference.seriesSum.get(), reference.argumentSine.get())},
        {"rounding error", differenceText(value.get(), reference.seriesSum.get())},
    };
    return inspection;
}
