#pragma once

#include "common/core/PlotXWindow.h"

#include <QRectF>
#include <Qt>
#include <optional>
#include <vector>

namespace quillon
{

// What the mouse does on a plotting tab's plot: the pointer position, the press that starts a
// drag and its rubber band, and the stack of zoom states that a drag pushes and a right click
// pops. Before the first zoom the state it leaves is pushed, so the first undo returns to it.
class PlotMouse
{
public:
    float x() const { return pointerX; }
    float y() const { return pointerY; }
    void moveTo(float x, float y);

    // A left-button press: where a drag starts.
    void press(float x, float y);

    // The window and Y range a plot shows, changed by zooms and undos.
    struct View {
        PlotXWindow& window;
        float& yMin;
        float& yMax;
        int count;
        float xMin;
        float xMax;
        int width;
        int height;
    };

    // Whether a left-button release at (x, y) ends a press without moving: a click, not a drag.
    bool isClickAt(float x, float y) const;

    // A left-button release zooms to the dragged rectangle when the pointer moved from the
    // press (by at least 1e-11 either way) and ends the drag; a right-button release undoes one
    // zoom. Returns true when the window or the range changed.
    bool release(Qt::MouseButton button, float x, float y, const View& view);

    // The rectangle from the press to the pointer while a drag is on.
    std::optional<QRectF> rubberBand() const;

    int zoomDepth() const { return int(zoomHistory.size()); }

private:
    bool zoomTo(float releaseX, float releaseY, const View& view);
    bool undoZoom(const View& view);

    float pointerX = 0.0f;
    float pointerY = 0.0f;
    float pressX = -1.0f;
    float pressY = -1.0f;
    std::vector<PlotZoomState> zoomHistory;
};

} // namespace quillon
