#include "common/core/SingleRange.h"

namespace quillon
{

bool withinSingleRange(float value)
{
    const double widened = value;
    return -kSingleMax <= widened && widened <= kSingleMax;
}

bool isFiniteSingle(float value)
{
    const double widened = value;
    return -kSingleMax < widened && widened <= kSingleMax;
}

} // namespace quillon
