#pragma once

#include "assoc/engine/AssoFiles.h"
#include "assoc/engine/AssoRecurrence.h"
#include "common/picture/IndexPlotView.h"
#include "common/picture/PlotNodePick.h"

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

// Everything a frame of the Associative Law plot shows, as the tab's scene holds it: the
// five sequences, what is drawn of them and how, the pointer and the inspector's ring. The
// defaults are the tab's at start-up.
struct AssoPlotState {
    quillon::IndexPlotView view;
    const AssoSequences* results = nullptr;
    AssoColors colours = kAssoDefaultColors;
    std::array<bool, kAssoOrderCount> needFunc = {true, true, true, true, true};
    bool compare = false;
    int baseFunc = 0;
    bool needXAxis = false;
    bool needYAxis = false;
    bool showXIndices = true;
    bool showYIndices = false;
    bool showLabels = true;
    bool showErrorMessages = false;
    int highlightedFunc = -1;
    QPointF pointer;
    // The drag's rectangle while a left press is held.
    std::optional<QRectF> rubberBand;
    std::optional<quillon::PlotNode> markedNode;

    quillon::PlotRgb gridColor = {0.25f, 0.25f, 0.25f};
    int curveWidthOffset = 2;
    float highlightedDepth = 3.0f;
    float normalDepth = 2.0f;
    float gridDepth = 0.0f;
    float formulaAspect = 14.788462f;

    QImage errorImage;
    QImage checkedImage;
    QImage uncheckedImage;
    std::array<QImage, kAssoOrderCount> formulaImages;
    // The index labels' texts and widths, kept between frames.
    std::shared_ptr<quillon::IndexLabels> indexLabels;

    // The images as the tab loads them.
    void loadImages();
};
