#pragma once

#include "common/picture/IndexPlotState.h"
#include "sine/engine/SineApproaches.h"
#include "sine/engine/SineFiles.h"
#include "sine/engine/SinePlotGeometry.h"

#include <array>

// What the tab draws at start-up: the library line and Func1, Func4, Func10 and Func12.
constexpr std::array<bool, kSineApproachCount + 1> kSineStartSelections = {
    true, true, false, false, true, false, false, false, false, false, true, false, true};

// Everything a frame of the Sine plot shows, as the tab's scene holds it: the twelve series
// and the library sine, which of them are drawn and how, the window of term indices and the
// Y range, the pointer and what it points at, the inspector's ring. The defaults are the
// tab's at start-up.
// The view's count is the number of terms.
struct SinePlotState : quillon::IndexPlotState {
    const SineResults* results = nullptr;
    SineColors colours = kSineDefaultColors;
    // Slot kSineLibrarySlot is the library line, 1..12 the approaches.
    std::array<bool, kSineApproachCount + 1> needed = kSineStartSelections;
    bool errorComparison = false;
    bool showBoundary = true;
    bool showValues = true;
    // The approach (1..12) under the pointer in the legend, drawn in front; -1 for none.
    int hovered = -1;
    // The error icons flash with the animation's ticks: on screen they are left out while
    // this is set.
    bool blink = false;

    // What the curves show: the selected approaches' sums, or their errors.
    SinePlotContent content() const;
};
