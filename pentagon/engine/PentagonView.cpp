#include "pentagon/engine/PentagonView.h"

#include <algorithm>

PentagonRange pentagonZoomToRectangle(const PentagonRange& range, float pressX, float pressY,
                                      float releaseX, float releaseY, int viewWidth, int viewHeight)
{
    const float width = float(viewWidth);
    const float height = float(viewHeight);
    const float fx = std::clamp(releaseX / width, 0.0f, 1.0f);
    const float fy = std::clamp((height - releaseY) / height, 0.0f, 1.0f);
    const float px = pressX / width;
    const float py = (height - pressY) / height;
    const float spanX = range.xMax - range.xMin;
    const float spanY = range.yMax - range.yMin;
    const float x1 = range.xMin + spanX * px;
    const float x2 = range.xMin + spanX * fx;
    const float y1 = range.yMin + spanY * py;
    const float y2 = range.yMin + spanY * fy;
    return {std::min(x1, x2), std::max(x1, x2), std::min(y1, y2), std::max(y1, y2)};
}

PentagonRange pentagonFittedRange(const PentagonRange& current,
                                  const std::vector<PentagonPoints>& drawn)
{
    PentagonRange box = current;
    if (!drawn.empty()) {
        box = {drawn.front().x(1), drawn.front().x(1), drawn.front().y(1), drawn.front().y(1)};
    }
    for (const PentagonPoints& pentagon : drawn) {
        for (int point = 1; point <= 5; ++point) {
            box.xMin = std::min(box.xMin, pentagon.x(point));
            box.xMax = std::max(box.xMax, pentagon.x(point));
            box.yMin = std::min(box.yMin, pentagon.y(point));
            box.yMax = std::max(box.yMax, pentagon.y(point));
        }
    }
    const float cx = (box.xMin + box.xMax) * 0.5f;
    const float cy = (box.yMin + box.yMax) * 0.5f;
    const float half = std::max(box.xMax - box.xMin, box.yMax - box.yMin) * 0.5f * 1.1f;
    return {cx - half, cx + half, cy - half, cy + half};
}

int pentagonGreyForAge(int age)
{
    return age >= 16 ? 128 : int(float(age) * 0.0625f * 128.0f);
}
