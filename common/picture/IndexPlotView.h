#pragma once

#include "common/core/PlotXWindow.h"
#include "common/picture/PlotPicture.h"

#include <QRectF>
#include <QSize>
#include <QTransform>

namespace quillon
{

// How a plot of values against an index (the Associative Law and Sine tabs) lies in its view:
// the window of indices over `count` of them, the scene's x span and the Y range, and the
// view's size in pixels.
struct IndexPlotView {
    PlotXWindow window;
    int count = 300;
    float xMin = -1.5f;
    float xMax = 1.5f;
    float yMin = -1.5f;
    float yMax = 1.5f;
    int width = 0;
    int height = 0;

    // Index i's x in the scene, in single precision.
    float nodeX(int i) const;
    float nodePixelX(int i) const;
    float valuePixelY(float value) const;
    float gridValue(int j) const;
    // The square of the error icon of index i.
    QRectF errorIconRect(int i) const;

    // The map from this view's pixels to those of a view of `size`, for positions kept in view
    // pixels (the pointer, a drag's rectangle); none while this view has no size yet.
    QTransform pixelScaleTo(QSize size) const;

    // The dotted lines at -1, 0 and 1 and, with `grid`, at the 21 grid values, across the
    // whole x span.
    PlotStroke referenceLines(bool grid, PlotRgb color, float depth) const;
};

} // namespace quillon
