#include "common/gui/PlotOverlay.h"

#include "common/core/AnimationSpeed.h"
#include "common/core/CFormat.h"
#include "common/core/PlotXWindow.h"

#include <QPainter>
#include <QPushButton>
#include <QTimer>
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

void drawPlotValueLabels(QPainter* painter, float yMin, float yMax, int viewHeight)
{
    painter->setFont(plotOverlayFont());
    painter->setPen(Qt::darkMagenta);
    const float halfHeight = float(QFontMetrics(plotOverlayFont()).height()) / 2.0f;
    for (int j = 0; j < kPlotGridLines; ++j) {
        const float value = plotGridValue(j, yMin, yMax);
        const float y = float(viewHeight) * (yMax - value) / (yMax - yMin);
        painter->drawText(QPointF(0, y + halfHeight),
                          QString::fromStdString(cformat("%.2e", double(value))));
    }
}

void applySpeedLevel(int& level, int minLevel, int maxLevel, QPushButton* faster,
                     QPushButton* slower, QTimer* timer)
{
    level = std::clamp(level, minLevel, maxLevel);
    faster->setEnabled(level < maxLevel);
    slower->setEnabled(level > minLevel);
    timer->setInterval(animationIntervalMs(level));
}

} // namespace quillon
