#pragma once

#include "assoc/engine/AssoRecurrence.h"
#include "inspect/gui/Inspection.h"

// What the inspector shows for one node of the associative-law plot: order `order`'s value at
// `iteration`, against the true trajectory from the same single-precision X0 and R, with every
// order's value at that iteration and its distance to the truth in ulps.
Inspection assoInspection(const AssoSequences& sequences, float x0, float r, int order,
                          int iteration);
