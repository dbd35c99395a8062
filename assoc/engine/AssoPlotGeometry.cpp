#include "assoc/engine/AssoPlotGeometry.h"

#include <algorithm>
#include <cmath>

float assoNodeX(const AssoXWindow& window, int n, float xMin, float xMax)
{
    const float width = (xMax - xMin) / float(window.end - window.start);
    const float offset = float(n - window.start);
    if (window.slideInDone()) {
        return width * offset + xMin;
    }
    return width * offset + (xMax - float(window.animationPosition) * width);
}

std::optional<float> AssoPlotContent::plotted(int k, int i) const
{
    const auto& values = sequences->values;
    const auto& errors = sequences->errors;
    if (size_t(i) >= values[k].size() || errors[k][i] != AssoOk) {
        return std::nullopt;
    }
    if (!compare) {
        return values[k][i];
    }
    if (size_t(i) >= values[base].size() || errors[base][i] != AssoOk) {
        return std::nullopt;
    }
    return values[k][i] - values[base][i];
}

int AssoPlotContent::curveEnd(int k) const
{
    int i = 0;
    while (i < n && plotted(k, i)) {
        ++i;
    }
    return i;
}

std::optional<std::pair<float, float>>
assoFitYRange(const AssoPlotContent& content, const AssoXWindow& window, float xMin, float xMax)
{
    std::optional<std::pair<float, float>> range;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!content.enabled[k]) {
            continue;
        }
        const int stop = content.curveEnd(k);
        for (int i = std::max(window.start, 0); i < stop && i <= window.end; ++i) {
            const float x = assoNodeX(window, i, xMin, xMax);
            if (!window.displays(i) || x < xMin || x > xMax) {
                continue;
            }
            const float value = *content.plotted(k, i);
            if (!range) {
                range = std::make_pair(value, value);
            }
            range->first = std::min(range->first, value);
            range->second = std::max(range->second, value);
        }
    }
    return range;
}

int assoCurrentNode(const AssoXWindow& window, int n, float xMin, float xMax)
{
    int current = -1;
    for (int c = 0; c < n && assoNodeX(window, c, xMin, xMax) <= xMax; ++c) {
        current = c;
    }
    return current;
}

namespace
{

// The first displayed node whose x exceeds `x`, or `none`.
int firstDisplayedBeyond(const AssoXWindow& window, int n, float xMin, float xMax, float x,
                         int none)
{
    for (int i = 0; i < n; ++i) {
        if (window.displays(i) && assoNodeX(window, i, xMin, xMax) > x) {
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

AssoZoomState assoZoom(const AssoXWindow& window, float yMin, float yMax, int n, float xMin,
                       float xMax, const AssoZoomRequest& request)
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

int assoLegendRowAt(float y, int height)
{
    const int top = int(std::floor(0.75 * height));
    const int rowHeight = int(std::floor(0.25 * height)) / 5;
    if (rowHeight <= 0 || y < float(top) || y >= float(height)) {
        return -1;
    }
    return int(std::floor((y - float(top)) / float(rowHeight)));
}
