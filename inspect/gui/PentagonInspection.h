#pragma once

#include "inspect/gui/Inspection.h"
#include "pentagon/engine/PentagonEngine.h"

// What the inspector shows for one vertex of a drawn pentagon: its x coordinate in the report
// and its y coordinate after it, each against the same steps replayed exactly.
Inspection pentagonInspection(const PentagonEngine& engine, int entry, int point);
