#include "common/gui/PlotMouse.h"

#include <cmath>

namespace quillon
{

void PlotMouse::moveTo(float x, float y)
{
    pointerX = x;
    pointerY = y;
}

void PlotMouse::press(float x, float y)
{
    pressX = x;
    pressY = y;
}

bool PlotMouse::isClickAt(float x, float y) const
{
    return pressX != -1.0f && std::fabs(x - pressX) < 1e-11f && std::fabs(y - pressY) < 1e-11f;
}

bool PlotMouse::release(Qt::MouseButton button, float x, float y, const View& view)
{
    if (button == Qt::RightButton) {
        return undoZoom(view);
    }
    if (button != Qt::LeftButton) {
        return false;
    }
    bool changed = false;
    if (std::fabs(x - pressX) >= 1e-11f || std::fabs(y - pressY) >= 1e-11f) {
        changed = zoomTo(x, y, view);
    }
    pressX = -1.0f;
    pressY = -1.0f;
    return changed;
}

bool PlotMouse::zoomTo(float releaseX, float releaseY, const View& view)
{
    if (!(pressX > 0 && pressY > 0) || view.width <= 0 || view.height <= 0) {
        return false;
    }
    if (zoomHistory.empty()) {
        zoomHistory.push_back({view.window.start, view.window.end, view.yMin, view.yMax});
    }
    const PlotZoomState zoomed =
        plotZoom(view.window, view.yMin, view.yMax, view.count, view.xMin, view.xMax,
                 {pressX, pressY, releaseX, releaseY, view.width, view.height});
    view.window.end = zoomed.end;
    view.yMin = zoomed.yMin;
    view.yMax = zoomed.yMax;
    view.window.start = zoomed.start;
    zoomHistory.push_back(zoomed);
    return true;
}

bool PlotMouse::undoZoom(const View& view)
{
    if (!zoomHistory.empty()) {
        zoomHistory.pop_back();
    }
    if (zoomHistory.empty()) {
        return false;
    }
    const PlotZoomState& previous = zoomHistory.back();
    view.window.start = previous.start;
    view.window.end = previous.end;
    view.yMin = previous.yMin;
    view.yMax = previous.yMax;
    return true;
}

std::optional<QRectF> PlotMouse::rubberBand() const
{
    if (pressX == -1.0f || pressY == -1.0f) {
        return std::nullopt;
    }
    return QRectF(QPointF(pressX, pressY), QPointF(pointerX, pointerY));
}

} // namespace quillon
