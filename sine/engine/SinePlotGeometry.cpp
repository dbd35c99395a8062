#include "sine/engine/SinePlotGeometry.h"

#include "sine/engine/SineEngine.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr float kFlatSpan = 1e-11f;
constexpr float kMargin = 0.6f;

// Calls visit(k, i, value) for every plotted point of the displayed indices below `count`
// whose x lies within the plot, approaches in index order.
template <typename Visit>
void forEachVisiblePoint(const SinePlotContent& content, const quillon::PlotXWindow& window,
                         int count, float xLeft, float xRight, Visit visit)
{
    for (int k = 0; k < kSineApproachCount; ++k) {
        if (!content.enabled[k]) {
            continue;
        }
        for (int i : sinePlottedIndices(content, window, count, k)) {
            const float x = quillon::plotNodeX(window, i, xLeft, xRight);
            if (xLeft <= x && x <= xRight) {
                visit(k, i, *content.plotted(k, i));
            }
        }
    }
}

// One coordinate of a block beside the cursor: after the cursor when it fits, else before it,
// then inside 0 .. room.
float besideCursor(float cursor, float extent, int room)
{
    const float start = cursor + extent <= float(room) ? cursor : cursor - extent;
    return std::clamp(start, 0.0f, std::max(float(room) - extent, 0.0f));
}

} // namespace

std::optional<float> SinePlotContent::plotted(int k, int i) const
{
    const SineSeries& series = results->series[k];
    if (i < 0 || size_t(i) >= series.sums.size() || series.codes[i] != SineOk) {
        return std::nullopt;
    }
    if (!errorMode) {
        return series.sums[i];
    }
    return static_cast<float>(double(series.sums[i]) - double(results->librarySine));
}

std::vector<int> sinePlottedIndices(const SinePlotContent& content,
                                    const quillon::PlotXWindow& window, int count, int k)
{
    std::vector<int> indices;
    for (int i = std::max(window.start, 0); i <= window.end && i < count; ++i) {
        if (!window.displays(i)) {
            continue;
        }
        if (!content.plotted(k, i)) {
            break;
        }
        indices.push_back(i);
    }
    return indices;
}

std::optional<std::pair<float, float>> sineFitYRange(const SinePlotContent& content,
                                                     const quillon::PlotXWindow& window, int count,
                                                     float xLeft, float xRight)
{
    std::optional<std::pair<float, float>> span;
    if (!content.errorMode) {
        span = std::make_pair(content.results->librarySine, content.results->librarySine);
    }
    forEachVisiblePoint(content, window, count, xLeft, xRight, [&span](int, int, float value) {
        if (!span) {
            span = std::make_pair(value, value);
        }
        span->first = std::min(span->first, value);
        span->second = std::max(span->second, value);
    });
    if (!span) {
        return std::nullopt;
    }
    float low = span->first;
    float high = span->second;
    if (high - low < kFlatSpan) {
        high = low + kFlatSpan;
        low = low - kFlatSpan;
    }
    const float centre = (low + high) * 0.5f;
    const float half = (high - low) * kMargin;
    if (centre - half == centre + half) {
        // Away from 0, single precision cannot widen a value by 1e-11: the range would have no
        // height to draw in. It then spans the neighbouring singles instead.
        return std::make_pair(std::nextafter(low, -INFINITY), std::nextafter(high, INFINITY));
    }
    return std::make_pair(centre - half, centre + half);
}

std::optional<float> sineLargestError(const SinePlotContent& content,
                                      const quillon::PlotXWindow& window, int count, float xLeft,
                                      float xRight)
{
    const int last = quillon::plotCurrentNode(window, count, xLeft, xRight);
    if (last < 0 || last == count - 1) {
        return std::nullopt;
    }
    std::optional<float> largest;
    for (int k = 0; k < kSineApproachCount; ++k) {
        const SineSeries& series = content.results->series[k];
        if (!content.enabled[k] || size_t(last) >= series.sums.size() ||
            series.codes[last] != SineOk) {
            continue;
        }
        const float error = static_cast<float>(
            std::fabs(double(series.sums[last]) - double(content.results->librarySine)));
        largest = largest ? std::max(*largest, error) : error;
    }
    return largest;
}

bool sineStoppedBeforeCurrent(const SinePlotContent& content, const quillon::PlotXWindow& window,
                              int count, float xLeft, float xRight)
{
    const int last = quillon::plotCurrentNode(window, count, xLeft, xRight);
    for (int k = 0; k < kSineApproachCount; ++k) {
        if (!content.enabled[k]) {
            continue;
        }
        const std::vector<int32_t>& codes = content.results->series[k].codes;
        for (int i = std::max(last - window.step, 0); i < last; ++i) {
            if (size_t(i) < codes.size() && codes[i] != SineOk) {
                return true;
            }
        }
    }
    return false;
}

SineLegendHit sineLegendAt(float x, float y, int width, int height)
{
    const int row = quillon::plotLegendRowAt(y, height);
    const int columnWidth = width / 3;
    // Below the fifth row, when the quarter of the height is not a multiple of five rows,
    // there is no entry.
    if (row < 0 || row >= 5 || columnWidth <= 0 || x < 0.0f || x >= float(3 * columnWidth)) {
        return {};
    }
    const int column = int(x) / columnWidth;
    if (row == 0) {
        const SineLegendHit::Kind firstRow[] = {SineLegendHit::Library, SineLegendHit::SelectAll,
                                                SineLegendHit::SelectNone};
        return {firstRow[column], -1};
    }
    return {SineLegendHit::Approach, 3 * (row - 1) + column};
}

SineTextBlockCorner sineTextBlockBesideCursor(float x, float y, float blockWidth, float blockHeight,
                                              int viewWidth, int viewHeight)
{
    return {besideCursor(x, blockWidth, viewWidth), besideCursor(y, blockHeight, viewHeight)};
}
