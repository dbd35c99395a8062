#include "inspect/gui/PentagonInspection.h"

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/PentagonReference.h"

#include <QObject>

Inspection pentagonInspection(const PentagonEngine& engine, int entry, int point)
{
    const PentagonPoints& pentagon = *std::next(engine.getHistory().begin(), entry);
    const PentagonReplay replay =
        replayExactly(engine.getHistory().front(), engine.getOperationKinds(), size_t(entry));
    Inspection inspection;
    int ins = 0;
    int outs = 0;
    if (entry > 0) {
        const PentagonOperationCount& counts = engine.getOperationCounts()[size_t(entry - 1)];
        ins = counts.numIns;
        outs = counts.numOuts;
    }
    // Numbered from 0, as the history export's "Point 0: X, Y; " .. "Point 4: X, Y; " do.
    const int exportedPoint = point - 1;
    inspection.source =
        entry == 0 ? QObject::tr("Pentagon 0 (the initial one), point %1, x").arg(exportedPoint)
                   : QObject::tr("Pentagon %1 (after %2 Ins and %3 Outs), point %4, x")
                         .arg(entry)
                         .arg(ins)
                         .arg(outs)
                         .arg(exportedPoint);
    inspection.value = double(pentagon.x(point));
    inspection.format = FloatFormat::Single;
    const double y = double(pentagon.y(point));
    inspection.context = {{"y", shortestText(y, FloatFormat::Single)},
                          {"y exact decimal", exactDecimal(y)}};
    if (!replay.complete) {
        inspection.referenceNote = QObject::tr("No true value: the exact replay stopped at %1.")
                                       .arg(QString::fromStdString(replay.why));
        return inspection;
    }
    inspection.reference = replay.coordinates[size_t(2 * (point - 1))];
    const ErrorReport yError = compareWithReference(
        y, FloatFormat::Single, replay.coordinates[size_t(2 * point - 1)].get());
    inspection.context.push_back({"y reference", yError.reference});
    inspection.context.push_back({"y absolute error", yError.absoluteError});
    inspection.context.push_back({"y error in ulps", yError.ulpError});
    inspection.referenceNote =
        entry == 0
            ? QObject::tr("True value: the initial pentagon itself, whose single-precision "
                          "points every step starts from.")
            : QObject::tr("True value: the same %1 steps replayed from the same single-precision "
                          "initial points with exact rational arithmetic (GMP), where an Out "
                          "undoes an In exactly; shown to %2 bits. Histories up to %3 steps are "
                          "replayed.")
                  .arg(entry)
                  .arg(kReferenceBits)
                  .arg(kPentagonReplayStepLimit);
    return inspection;
}
