#include "common/gui/ColorPresetPainter.h"

#include "common/gui/QtColor.h"

#include <QPainter>

namespace quillon
{

void paintColorPresetGrid(QPainter& painter, const ColorPresetGrid& grid, int windowWidth,
                          int windowHeight)
{
    painter.setPen(Qt::black);
    for (int preset = 0; preset < grid.columns * grid.rows; ++preset) {
        const PresetCell cell = presetCell(grid, preset, windowWidth, windowHeight);
        const QRect rect(cell.x, cell.y, cell.width, cell.height);
        painter.fillRect(rect, toQColor(presetColors()[size_t(preset)]));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

} // namespace quillon
