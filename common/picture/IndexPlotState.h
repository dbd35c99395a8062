#pragma once

#include "common/picture/IndexPlotView.h"
#include "common/picture/PlotNodePick.h"
#include "common/picture/PlotPicture.h"

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <memory>
#include <optional>
#include <vector>

namespace quillon
{

class IndexLabels;

// What a frame of either plot of values against an index (the Associative Law and Sine tabs)
// shows in common: the window and ranges, the view options both tabs offer, the pointer, the
// drag's rubber band and the inspector's ring, the grid colour, the legend's and error icons'
// images and the index labels. Each tab's state adds its own; the defaults are the tabs'
// at start-up.
struct IndexPlotState {
    IndexPlotView view;
    bool needXAxis = false;
    bool needYAxis = false;
    bool showXIndices = true;
    bool showYIndices = false;
    bool showLabels = true;
    // In view pixels.
    QPointF pointer;
    // The drag's rectangle while a left press is held, in view pixels.
    std::optional<QRectF> rubberBand;
    std::optional<PlotNode> markedNode;
    PlotRgb gridColor = {0.25f, 0.25f, 0.25f};
    QImage errorImage;
    QImage checkedImage;
    QImage uncheckedImage;
    // The index labels' texts and widths, kept between frames.
    std::shared_ptr<IndexLabels> indexLabels;

    // The error icon and the legend's check marks as the tabs load them, and index labels of
    // the overlay font: what a picture made without a scene needs.
    void prepareForPicture();

    // Laid out for a view of `size`: the pointer and the rubber band scale with the view.
    void layOutFor(QSize size);

    // The dotted reference lines at `depth` (with the grid values when Y grid lines are on).
    PlotStroke referenceLines(float depth) const;
    // The value labels when they are on.
    void addValueLabels(std::vector<PlotOverlayItem>& overlay) const;
    // The rubber band, on screen only.
    void addRubberBand(std::vector<PlotOverlayItem>& overlay, PictureUse use) const;
};

} // namespace quillon
