#pragma once

#include "inspect/engine/FloatBreakdown.h"
#include "inspect/engine/InspectionReport.h"
#include "inspect/engine/MpfrNumber.h"

#include <QString>
#include <optional>
#include <vector>

// One number picked for the inspector: where it came from, the value in the format it was
// computed in and, when known, the true value it stands for with how that was worked out.
struct Inspection {
    QString source;
    double value = 0;
    FloatFormat format = FloatFormat::Single;
    std::optional<MpfrNumber> reference;
    QString referenceNote;
    // Related values shown after the report (the other orders at the same iteration, say).
    std::vector<ReportLine> context;
};
