#pragma once

#include "assoc/engine/AssoRecurrence.h"
#include "common/core/ColorPresetGrid.h"
#include "common/core/PlotXWindow.h"

#include <array>
#include <optional>

// The colour map's preset grid: the first 48 presets in 8 columns and 6 rows, each one
// twenty-second of the window high, starting 8.15 cell heights below the top.
constexpr quillon::ColorPresetGrid kAssoColorPresetGrid{8, 6, 22.0, 8.15, 8};

// What the curves show: the values, or their differences to a base order.
struct AssoPlotContent {
    const AssoSequences* sequences;
    std::array<bool, kAssoOrderCount> enabled;
    bool compare;
    int base;
    int n;

    // Order k's plotted quantity at entry i (the value, or its difference to the base order
    // rounded to single), or nothing from the first error on (of k, or of the base order when
    // comparing) or past the end of a sequence.
    std::optional<float> plotted(int k, int i) const;
    // The first index at which order k's curve stops.
    int curveEnd(int k) const;
};

// The smallest and largest plotted quantity over the enabled orders and displayed nodes that
// lie within xMin..xMax; nothing when no node qualifies.
std::optional<std::pair<float, float>> assoFitYRange(const AssoPlotContent& content,
                                                     const quillon::PlotXWindow& window, float xMin,
                                                     float xMax);

// The Y range the plot shows after a fit: assoFitYRange, widened around a flat set of values
// (R = 0, say) so that the range keeps some height; nothing when no node qualifies.
std::optional<std::pair<float, float>> assoShownYRange(const AssoPlotContent& content,
                                                       const quillon::PlotXWindow& window,
                                                       float xMin, float xMax);
