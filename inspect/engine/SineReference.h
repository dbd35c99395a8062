#pragma once

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/MpfrNumber.h"

// The true values behind a partial sum of the sine series, which tell its three errors apart:
// the argument error (sin of the single-rounded radian argument against sin of the exact
// angle), the truncation error (the series cut after n terms against that sine) and the
// rounding error (the single-precision sum against the series summed exactly).
struct SineReference {
    // sin(X degrees) for the exact angle X pi / 180.
    MpfrNumber trueSine{kReferenceBits};
    // factor * sin(x) for the single-precision argument x.
    MpfrNumber argumentSine{kReferenceBits};
    // factor * (x - x^3/3! + ... ), the first `terms` terms, summed at kReferenceBits.
    MpfrNumber seriesSum{kReferenceBits};
};

// `argument` is the radian value the series ran on (X degrees, or X reduced to 0 .. 90, in
// single precision), `factor` the sign that the reduction flipped (1 without reduction).
SineReference sineReference(int degrees, float argument, float factor, int terms);
