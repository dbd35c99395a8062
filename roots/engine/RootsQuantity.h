#pragma once

#include "roots/engine/HighFloat.h"

// One quantity of the roots grid in the four precisions the Roots tab compares.
struct RootsQuantity {
    float naive = 0.0f;  // single precision, naive formula
    float cancel = 0.0f; // single precision, cancellation-free formula
    double dbl = 0.0;    // double precision, naive formula
    HighFloat high;      // 256 bits, naive formula
};
