#include "assoc/engine/AssoPlotGeometry.h"

#include <algorithm>
#include <cmath>

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

std::optional<std::pair<float, float>> assoFitYRange(const AssoPlotContent& content,
                                                     const quillon::PlotXWindow& window, float xMin,
                                                     float xMax)
{
    std::optional<std::pair<float, float>> range;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!content.enabled[k]) {
            continue;
        }
        const int stop = content.curveEnd(k);
        for (int i = std::max(window.start, 0); i < stop && i <= window.end; ++i) {
            const float x = quillon::plotNodeX(window, i, xMin, xMax);
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

std::optional<std::pair<float, float>> assoShownYRange(const AssoPlotContent& content,
                                                       const quillon::PlotXWindow& window,
                                                       float xMin, float xMax)
{
    auto range = assoFitYRange(content, window, xMin, xMax);
    if (range && range->first == range->second) {
        const float margin = std::max(std::fabs(range->first) * 0.5f, 0.5f);
        range->first -= margin;
        range->second += margin;
    }
    return range;
}
