#include "common/core/PlotXWindow.h"

#include <algorithm>
#include <cmath>

namespace quillon
{
namespace
{

// The first displayed node whose x exceeds `x`, or `none`.
int firstDisplayedBeyond(const PlotXWindow& window, int n, float xMin, float xMax, float x,
                         int none)
{
    for (int i = 0; i < n; ++i) {
        if (window.displays(i) && plotNodeX(window, i, xMin, xMax) > x) {
            return i;
        }
    }
    return none;
}

float clampFraction(float value)
{
    return std::clamp(value, 0.0f, 1.0f);
}

} // namespace

bool plotMoveStart(PlotXWindow& window, int value, int count, bool keepWidth)
{
    if (keepWidth) {
        if (window.end - window.start + value > count - 1) {
            return false;
        }
        window.end += value - window.start;
    } else if (value >= count - 1) {
        return false;
    }
    window.start = value;
    return true;
}

bool plotMoveEnd(PlotXWindow& window, int value, bool keepWidth)
{
    if (keepWidth) {
        if (window.start - window.end + value < 0) {
            return false;
        }
        window.start += value - window.end;
    } else if (value <= window.step) {
        return false;
    }
    window.end = value;
    return true;
}

float plotNodeX(const PlotXWindow& window, int n, float xMin, float xMax)
{
    const float width = (xMax - xMin) / float(window.end - window.start);
    const float offset = float(n - window.start);
    if (window.slideInDone()) {
        return width * offset + xMin;
    }
    return width * offset + (xMax - float(window.animationPosition) * width);
}

int plotCurrentNode(const PlotXWindow& window, int count, float xMin, float xMax)
{
    int current = -1;
    for (int c = 0; c < count && plotNodeX(window, c, xMin, xMax) <= xMax; ++c) {
        current = c;
    }
    return current;
}

PlotZoomState plotZoom(const PlotXWindow& window, float yMin, float yMax, int n, float xMin,
                       float xMax, const PlotZoomRequest& request)
{
    const float width = float(request.width);
    const float height = float(request.height);
    const float fx1 = request.pressX / width;
    const float fy1 = (height - request.pressY) / height;
    const float fx2 = clampFraction(request.releaseX / width);
    const float fy2 = clampFraction((height - request.releaseY) / height);
    float xa = fx1 * (xMax - xMin) + xMin;
    float xb = fx2 * (xMax - xMin) + xMin;
    float ya = (yMax - yMin) * fy1 + yMin;
    float yb = (yMax - yMin) * fy2 + yMin;
    if (xa > xb) {
        std::swap(xa, xb);
    }
    if (ya > yb) {
        std::swap(ya, yb);
    }
    int newStart = firstDisplayedBeyond(window, n, xMin, xMax, xa, 0) - 1;
    int newEnd = firstDisplayedBeyond(window, n, xMin, xMax, xb, n);
    if (newStart < 0) {
        newStart = 0;
        if (newEnd < 1) {
            newEnd = 1;
        }
    }
    if (newEnd == n) {
        newEnd = window.end + (window.end == n - 1 ? 0 : 1);
    }
    if (newStart == newEnd) {
        newEnd = newEnd >= n - 1 ? window.end - 1 : newEnd + 1;
    }
    return {newStart, newEnd, ya, yb};
}

float plotGridValue(int j, float yMin, float yMax)
{
    return (yMin + yMax) * 0.5f + (yMax - yMin) / 20.0f * float(j - 10);
}

int plotLegendRowAt(float y, int height)
{
    const int top = int(std::floor(0.75 * height));
    const int rowHeight = int(std::floor(0.25 * height)) / 5;
    if (rowHeight <= 0 || y < float(top) || y >= float(height)) {
        return -1;
    }
    return int(std::floor((y - float(top)) / float(rowHeight)));
}

} // namespace quillon
