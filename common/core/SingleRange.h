#pragma once

namespace quillon
{

// The largest finite single-precision value, written as the double the range tests compare
// against (it equals FLT_MAX exactly).
constexpr double kSingleMax = 3.4028234663852886e38;

// The associative-law and sine engines' test: a single-precision result passes when it lies
// in [-kSingleMax, kSingleMax], compared in double. NaN fails.
bool withinSingleRange(float value);

// The pentagon engine's test: -kSingleMax < value <= kSingleMax. The strict lower bound is
// deliberate, so exactly -FLT_MAX counts as not finite while FLT_MAX does. NaN fails.
bool isFiniteSingle(float value);

} // namespace quillon
