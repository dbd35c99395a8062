#include "inspect/gui/AssoInspection.h"

#include "inspect/engine/AssoReference.h"
#include "inspect/engine/ErrorReport.h"

#include <QObject>

Inspection assoInspection(const AssoSequences& sequences, float x0, float r, int order,
                          int iteration)
{
    const AssoReference reference = assoReference(x0, r, iteration);
    Inspection inspection;
    inspection.source =
        QObject::tr("Associative Law, order %1, iteration %2").arg(order + 1).arg(iteration);
    inspection.value = double(sequences.values[size_t(order)][size_t(iteration)]);
    inspection.format = FloatFormat::Single;
    inspection.reference = reference.value;
    inspection.referenceNote =
        QObject::tr("True value: X_n = (R + 1) X_n-1 - R X_n-1^2 from the same single-precision "
                    "X0 and R, with MPFR, starting at %1 bits and keeping %2 bits beyond what "
                    "the remaining steps can lose; %3")
            .arg(reference.startBits)
            .arg(kAssoReferenceTargetBits)
            .arg(reference.checked
                     ? QObject::tr("recomputed at twice the precision, it agrees.")
                     : QObject::tr("recomputed at twice the precision, it differs: treat "
                                   "it with care."));
    if (sequences.errors[size_t(order)][size_t(iteration)] != AssoOk) {
        inspection.referenceNote +=
            QObject::tr(" This evaluation failed (out of range); the value is what it left.");
    }
    for (int k = 0; k < kAssoOrderCount; ++k) {
        const double value = double(sequences.values[size_t(k)][size_t(iteration)]);
        const ErrorReport error =
            compareWithReference(value, FloatFormat::Single, reference.value.get());
        inspection.context.push_back(
            {"order " + std::to_string(k + 1),
             shortestText(value, FloatFormat::Single) + " (" + error.ulpError + " ulps)"});
    }
    return inspection;
}
