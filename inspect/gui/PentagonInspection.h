#pragma once

#include "inspect/gui/Inspection.h"
#include "pentagon/engine/PentagonEngine.h"

// What the inspector shows for one vertex of a drawn pentagon: its x coordinate in the report
// and its y coordinate after it, each against the same steps replayed exactly. `point` is the
// engine's 1 .. 5; the inspector names it 0 .. 4, as the history export does.
Inspection pentagonInspection(const PentagonEngine& engine, int entry, int point);
