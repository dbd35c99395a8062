#include "common/picture/PlotStyle.h"

#include "common/core/CFormat.h"
#include "common/core/PlotXWindow.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace quillon
{

QFont plotOverlayFont()
{
    QFont font(QStringLiteral("times"), 10);
    font.setWeight(QFont::Bold);
    return font;
}

QRectF plotErrorIconRect(float nodePixelX, int viewWidth, int viewHeight)
{
    const int rowHeight = int(std::floor(0.25 * viewHeight)) / 5;
    const int size = std::min(viewWidth / 15, rowHeight);
    const double left = std::floor(nodePixelX) - size / 2;
    const double top = std::floor(0.2 * viewHeight) + size / 2;
    return QRectF(left, top, size, size);
}

std::vector<PlotText> plotValueLabels(float yMin, float yMax, int viewHeight)
{
    const QFont font = plotOverlayFont();
    const float halfHeight = float(QFontMetrics(font).height()) / 2.0f;
    std::vector<PlotText> labels;
    for (int j = 0; j < kPlotGridLines; ++j) {
        const float value = plotGridValue(j, yMin, yMax);
        const float y = float(viewHeight) * (yMax - value) / (yMax - yMin);
        labels.push_back({QString::fromStdString(cformat("%.2e", double(value))), font,
                          QColor(Qt::darkMagenta), QPointF(0, y + halfHeight)});
    }
    return labels;
}

} // namespace quillon
