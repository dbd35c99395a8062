#pragma once

#include "inspect/engine/MpfrNumber.h"
#include "pentagon/engine/PentagonGeometry.h"

#include <array>
#include <string>
#include <vector>

// The exact pentagons behind the history: the same In and Out steps replayed from the same
// single-precision initial points with exact rational arithmetic, where an In followed by an
// Out gives back exactly the pentagon it started from.
struct PentagonReplay {
    // The ten coordinates (P1.x, P1.y, ..., P5.x, P5.y) of the pentagon after the replayed
    // steps, rounded to kReferenceBits only for printing; valid when `complete`.
    std::array<MpfrNumber, 10> coordinates;
    bool complete = false;
    // Why the replay stopped short: too many steps, two lines that do not cross, or numbers
    // grown past the limit.
    std::string why;
};

// The replay stays cheap for this many steps: the exact coordinates grow with every step in
// one direction (64 Ins of the Default pentagon take about 80 ms, 160 take 0.7 s).
constexpr size_t kPentagonReplayStepLimit = 64;
// A guard for shapes whose numbers grow faster: no numerator or denominator beyond this.
constexpr size_t kPentagonReplayBitLimit = 1000000;

// Replays the first `steps` of `kinds` (false = In, true = Out) from `initial`.
PentagonReplay replayExactly(const PentagonPoints& initial, const std::vector<bool>& kinds,
                             size_t steps);
