#pragma once

#include "inspect/engine/MpfrNumber.h"

// The true value of the associative-law recurrence X_n = (R + 1) X_{n-1} - R X_{n-1}^2 at
// iteration n, from the same single-precision X0 and R the five orders start from. All five
// orders are this one function; only their rounding differs.
struct AssoReference {
    MpfrNumber value{64};
    // Bits of working precision at the first step; each later step keeps as many bits as the
    // steps still to come can amplify errors by, plus the target.
    long startBits = 0;
    // True when working at twice those precisions gave the same value to the target's bits
    // (far below one ulp of binary64).
    bool checked = false;
};

// Bits the reference is meant to be right to: far below one ulp of binary64.
constexpr long kAssoReferenceTargetBits = 85;

AssoReference assoReference(float x0, float r, int iteration);
