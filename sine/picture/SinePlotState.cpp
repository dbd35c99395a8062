#include "sine/picture/SinePlotState.h"

#include "common/picture/ImageLookup.h"

void SinePlotState::loadImages()
{
    errorImage = quillon::loadImage(QStringLiteral("error.png"));
    checkedImage = quillon::loadImage(QStringLiteral("c.png"));
    uncheckedImage = quillon::loadImage(QStringLiteral("u.png"));
}

SinePlotContent SinePlotState::content() const
{
    SinePlotContent content{results, {}, errorComparison};
    for (int k = 0; k < kSineApproachCount; ++k) {
        content.enabled[k] = needed[k + 1];
    }
    return content;
}
