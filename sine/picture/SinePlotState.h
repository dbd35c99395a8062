#pragma once

#include "common/picture/IndexPlotView.h"
#include "common/picture/PlotNodePick.h"
#include "common/picture/PlotPicture.h"
#include "sine/engine/SineApproaches.h"
#include "sine/engine/SineFiles.h"
#include "sine/engine/SinePlotGeometry.h"

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <array>
#include <memory>
#include <optional>

namespace quillon
{
class IndexLabels;
}

// What the tab draws at start-up: the library line and Func1, Func4, Func10 and Func12.
constexpr std::array<bool, kSineApproachCount + 1> kSineStartSelections = {
    true, true, false, false, true, false, false, false, false, false, true, false, true};

// Everything a frame of the Sine plot shows, as the tab's scene holds it: the twelve series
// and the library sine, which of them are drawn and how, the window of term indices and the
// Y range, the pointer and what it points at, the inspector's ring. The defaults are the
// tab's at start-up.
struct SinePlotState {
    // The window, the ranges and the view's size; count is the number of terms.
    quillon::IndexPlotView view;
    const SineResults* results = nullptr;
    SineColors colours = kSineDefaultColors;
    // Slot kSineLibrarySlot is the library line, 1..12 the approaches.
    std::array<bool, kSineApproachCount + 1> needed = kSineStartSelections;
    bool errorComparison = false;
    bool showBoundary = true;
    bool showValues = true;
    bool needXAxis = false;
    bool needYAxis = false;
    bool showXIndices = true;
    bool showYIndices = false;
    bool showLabels = true;
    // The approach (1..12) under the pointer in the legend, drawn in front; -1 for none.
    int hovered = -1;
    // The error icons flash with the animation's ticks: on screen they are left out while
    // this is set.
    bool blink = false;
    // In view pixels.
    QPointF pointer;
    // The drag's rectangle while a left press is held, in view pixels.
    std::optional<QRectF> rubberBand;
    std::optional<quillon::PlotNode> markedNode;
    quillon::PlotRgb gridColor = {0.25f, 0.25f, 0.25f};

    QImage errorImage;
    QImage checkedImage;
    QImage uncheckedImage;
    // The index labels' texts and widths, kept between frames.
    std::shared_ptr<quillon::IndexLabels> indexLabels;

    // The images as the tab loads them.
    void loadImages();
    // What the curves show: the selected approaches' sums, or their errors.
    SinePlotContent content() const;
};
