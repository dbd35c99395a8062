#include "sine/picture/SinePlotState.h"

SinePlotContent SinePlotState::content() const
{
    SinePlotContent content{results, {}, errorComparison};
    for (int k = 0; k < kSineApproachCount; ++k) {
        content.enabled[k] = needed[k + 1];
    }
    return content;
}
