#pragma once

#include "inspect/engine/MpfrNumber.h"

#include <gmp.h>

#include <array>
#include <optional>

// The true values of the Roots grid's seven quantities, in its row order: b^2, 4ac,
// sqrt(b^2 - 4ac), the root (-b + sqrt(b^2 - 4ac)) / 2a, its residual a x^2 + b x + c, the
// root (-b - sqrt(b^2 - 4ac)) / 2a and its residual, worked out at kReferenceBits from the
// coefficients exactly as held (not from their single or double copies). The residuals of the
// true roots are 0; what a computed root leaves is residualAt's. Nothing when b^2 < 4ac (no
// real roots).
std::optional<std::array<MpfrNumber, 7>> rootsReference(mpf_srcptr a, mpf_srcptr b, mpf_srcptr c);

// a x^2 + b x + c at `root` (a root as a column computed it: a binary32 or binary64 value),
// with the coefficients exactly as held: worked out exactly with rationals and rounded once to
// kReferenceBits. 0 only when `root` solves the equation exactly; nothing when `root` is an
// infinity or NaN.
std::optional<MpfrNumber> residualAt(mpf_srcptr a, mpf_srcptr b, mpf_srcptr c, double root);
