#include "common/core/AnimationSpeed.h"

namespace quillon
{

int animationIntervalMs(int level)
{
    constexpr int kBaseInterval = 400;
    if (level > 0) {
        return kBaseInterval / level;
    }
    return level < 0 ? kBaseInterval * -level : kBaseInterval;
}

} // namespace quillon
