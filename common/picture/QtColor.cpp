#include "common/picture/QtColor.h"

#include <algorithm>

namespace quillon
{

QColor toQColor(const ColorTriple& color)
{
    const auto clamped = [](int32_t component) { return std::clamp<int32_t>(component, 0, 255); };
    return QColor(clamped(color.red), clamped(color.green), clamped(color.blue));
}

PlotRgb toPlotRgb(const ColorTriple& color)
{
    return {color.redF(), color.greenF(), color.blueF()};
}

} // namespace quillon
