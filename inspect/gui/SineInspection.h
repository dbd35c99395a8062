#pragma once

#include "inspect/gui/Inspection.h"
#include "sine/engine/SineApproaches.h"

// What the inspector shows for one node of the sine plot: approach `approach`'s partial sum of
// the first index + 1 terms against sin of the exact angle, with the error split into its
// argument, truncation and rounding parts.
Inspection sineInspection(const SineResults& results, int approach, int index);
