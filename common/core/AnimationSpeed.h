#pragma once

namespace quillon
{

// The speed levels of the animated tabs: -5 (slowest) to 5 (fastest).
constexpr int kMinSpeedLevel = -5;
constexpr int kMaxSpeedLevel = 5;

// The timer interval of a speed level: 400 ms at 0, 400 / level ms (integer division) above,
// 400 * |level| ms below; so -1, 0 and 1 all give 400 ms.
int animationIntervalMs(int level);

} // namespace quillon
