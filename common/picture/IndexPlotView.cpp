#include "common/picture/IndexPlotView.h"

#include "common/picture/PlotStyle.h"

namespace quillon
{

float IndexPlotView::nodeX(int i) const
{
    return plotNodeX(window, i, xMin, xMax);
}

float IndexPlotView::nodePixelX(int i) const
{
    return float(width) * (nodeX(i) - xMin) / (xMax - xMin);
}

float IndexPlotView::valuePixelY(float value) const
{
    return float(height) * (yMax - value) / (yMax - yMin);
}

float IndexPlotView::gridValue(int j) const
{
    return plotGridValue(j, yMin, yMax);
}

QRectF IndexPlotView::errorIconRect(int i) const
{
    return plotErrorIconRect(nodePixelX(i), width, height);
}

QTransform IndexPlotView::pixelScaleTo(QSize size) const
{
    const double scaleX = width > 0 ? double(size.width()) / width : 1.0;
    const double scaleY = height > 0 ? double(size.height()) / height : 1.0;
    return QTransform::fromScale(scaleX, scaleY);
}

PlotStroke IndexPlotView::referenceLines(bool grid, PlotRgb color, float depth) const
{
    PlotStroke stroke;
    stroke.width = 1.0f;
    stroke.stipple = 0xAAAA;
    stroke.depth = depth;
    const auto across = [&](float y) {
        stroke.vertices.push_back({xMin, y, color});
        stroke.vertices.push_back({xMax, y, color});
    };
    for (float y : {-1.0f, 1.0f, 0.0f}) {
        across(y);
    }
    if (grid) {
        for (int j = 0; j < kPlotGridLines; ++j) {
            across(gridValue(j));
        }
    }
    return stroke;
}

} // namespace quillon
