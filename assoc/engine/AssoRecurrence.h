#pragma once

#include <array>
#include <cstdint>
#include <vector>

// The five evaluation orders of X_n = (R + 1) X_{n-1} - R X_{n-1}^2, iterated in single
// precision: every operation's result is rounded to single before the next one uses it.

constexpr int kAssoOrderCount = 5;

// Error codes of one evaluation. "Underflow" is this module's word for a result below
// -FLT_MAX (overflow towards minus infinity); NaN is reported as Underflow too. Code 3 is
// never produced by the engine, but every consumer understands it.
enum AssoErrorCode : int32_t {
    AssoOk = 0,
    AssoUnderflow = 1,
    AssoOverflow = 2,
    AssoNan = 3,
};

// One evaluation of an order from x with growth rate r. Each step's rounded result is tested
// before the next step; the first one outside [-FLT_MAX, FLT_MAX] (or NaN) ends the
// evaluation with its code. `out` receives the final step's result, tested or not, and is
// left alone when an earlier step failed.
int32_t evalOrder1(float x, float r, float& out);
int32_t evalOrder2(float x, float r, float& out);
int32_t evalOrder3(float x, float r, float& out);
int32_t evalOrder4(float x, float r, float& out);
int32_t evalOrder5(float x, float r, float& out);

// The ten sequences of one computation: per order, the values X_0 .. X_{N-1} and the code of
// the evaluation that produced each (entry 0 is X0 with code 0).
struct AssoSequences {
    std::array<std::vector<float>, kAssoOrderCount> values;
    std::array<std::vector<int32_t>, kAssoOrderCount> errors;
};

// Refills `sequences` (keeping their storage) for growth rate r, start x0 and n iterations:
// max(n, 1) entries per sequence. The five evaluations share one result slot that is never
// reset during the computation (it starts at 0), so an evaluation that fails before its last
// step records whatever the slot last held; the next iteration continues from that value.
void computeSequences(float r, float x0, int n, AssoSequences& sequences);
