#pragma once

#include "common/core/PlotXWindow.h"
#include "common/gui/OpenGLPlotScene.h"
#include "common/gui/PlotAnimationPanel.h"
#include "common/gui/PlotMouse.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/IndexPlotState.h"
#include "common/picture/IndexPlotView.h"
#include "common/picture/PlotNodePick.h"

#include <QImage>
#include <QRectF>
#include <memory>
#include <optional>

namespace quillon
{

class PlotFocusWindow;

// What the Associative Law and Sine scenes share: a plot of values against an index, seen
// through an animated X window of indices and a Y range. It holds that window, the range, the
// view options both tabs offer, the pointer and its zoom stack, the speed level and the node
// the inspector rings; it moves the window, animates it, maps indices and values to the view
// and handles the mouse, asking the scene only for what is its own (its overlays, its legend,
// what the pointer shows, its click signal, its focus window).
//
// It declares no slots and no signals: each scene's slots keep their own order in its
// meta-object and call the functions below.
class IndexPlotScene : public OpenGLPlotScene
{
    Q_OBJECT

public:
    const PlotXWindow& xWindow() const { return window; }
    int speedLevel() const { return speed; }
    int zoomDepth() const { return mouse.zoomDepth(); }
    // The square of the error icon of index i in view pixels.
    QRectF errorIconRect(int i) const;
    // Rings one node of the plot (the one the inspector shows); none: no ring.
    void markNode(std::optional<PlotNode> node);

protected:
    IndexPlotScene(const PlotAnimationPanel& controls, QObject* parent);

    // The scene's focus window, whose "Fix # of nodes to display" box the window moves follow.
    void watchFocusWindow(PlotFocusWindow* focus) { plotFocus = focus; }
    bool isFixingNodeCount() const;
    // Shows the window and the Y range in the focus window, when there is one.
    virtual void refreshFocusWindow() = 0;

    // Sets a view option and repaints.
    void setViewOption(bool& option, bool value);

    // The focus window's moves of the X window; a move that changes it shows the change there
    // and in the plot.
    void moveWindowStart(int value);
    void moveWindowEnd(int value);
    // A step below 1 would make the displayed-index test divide by zero; the focus window's
    // slider starts at 1, so only a programmatic call can ask for it.
    void setWindowStep(int value);
    // The time slider's move: the window starts at `value`, fully slid in; false (and only
    // the slide-in finished) when a window that wide would run past the last index.
    bool moveWindowToTime(int value);
    // One animation tick: the window slides in one node, or once in, moves one step right;
    // false when its end has reached the last index.
    bool advanceWindow();
    // Back to index 0 with the same width, nothing slid in.
    void rewindWindow();
    // Back to index 0 with the same width and step 1.
    void resetWindow();

    // The last value of the time slider.
    int lastTimeValue() const { return N - 20 * window.step - 1; }
    // The slider's range 0 .. lastTimeValue(), set without signalling, and its labels.
    void setUpTimeSlider();
    // A new last value: the slider's maximum and the end label.
    void refreshTimeSliderEnd();
    void refreshTimeLabels();
    // Clamps the speed level, sets the buttons and the timer's interval for it, repaints.
    void applySpeed();
    // One level faster (1) or slower (-1), then applySpeed().
    void changeSpeed(int levels);
    // Pauses or resumes, and names what the pause button does next.
    void togglePause();

    // The window, the ranges and the view's size as the plot's description takes them.
    IndexPlotView plotView() const;
    // Fills in what every index plot's frame shows from this scene's fields.
    void fillIndexPlotState(IndexPlotState& state) const;
    float nodeX(int i) const;
    float nodePixelX(int i) const;
    float valuePixelY(float value) const;
    float gridValue(int j) const;

    // The foreground pass records the view's size, then paints the scene's overlays without
    // smoothing.
    void drawForeground(QPainter* painter, const QRectF& rect) override;
    virtual void paintOverlays(QPainter* painter) = 0;

    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    // A left-button press on the legend toggles what it hits (labels are on); false when it
    // hits nothing, and the press may start a drag.
    virtual bool pressLegend(float x, float y) = 0;
    // The pointer moved to a point of the view: the scene records it and what it points at.
    virtual void followPointer(QPointF position) = 0;
    // A left click on the plot that neither dragged nor hit the legend.
    virtual void announceClick(QPointF position) = 0;

    const PlotAnimationPanel controls;
    PlotFocusWindow* plotFocus = nullptr;

    int N = 300;
    PlotXWindow window;
    float xMin = -1.5f;
    float xMax = 1.5f;
    float yMin = -1.5f;
    float yMax = 1.5f;
    bool needXAxis = false;
    bool needYAxis = false;
    bool showXIndices = true;
    bool showYIndices = false;
    bool showLabels = true;
    int speed = 0;
    int viewWidth = 0;
    int viewHeight = 0;
    PlotMouse mouse;
    bool pressHitLegend = false;
    std::optional<PlotNode> markedNode;
    float gridColor[3] = {0.25f, 0.25f, 0.25f};
    QImage errorImage;
    QImage checkedImage;
    QImage uncheckedImage;
    // Index labels are the same on every frame: made once, shared with the frames' descriptions.
    std::shared_ptr<IndexLabels> indexLabels;

private:
    void showWindowMove();
};

} // namespace quillon
