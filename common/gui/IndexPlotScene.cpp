#include "common/gui/IndexPlotScene.h"

#include "common/core/AnimationSpeed.h"
#include "common/core/CFormat.h"
#include "common/gui/PlotFocusWindow.h"
#include "common/gui/PlotOverlay.h"
#include "common/picture/ImageLookup.h"

#include <QGraphicsSceneMouseEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <algorithm>

namespace quillon
{

namespace
{

QString numberText(int value)
{
    return QString::fromStdString(cformat("%d", value));
}

} // namespace

IndexPlotScene::IndexPlotScene(const PlotAnimationPanel& controls, QObject* parent)
    : OpenGLPlotScene(parent), controls(controls),
      indexLabels(std::make_shared<IndexLabels>(plotOverlayFont()))
{
    errorImage = loadImage(QStringLiteral("error.png"));
    checkedImage = loadImage(QStringLiteral("c.png"));
    uncheckedImage = loadImage(QStringLiteral("u.png"));
}

QRectF IndexPlotScene::errorIconRect(int i) const
{
    return plotView().errorIconRect(i);
}

void IndexPlotScene::markNode(std::optional<PlotNode> node)
{
    markedNode = node;
    repaint();
}

bool IndexPlotScene::isFixingNodeCount() const
{
    return plotFocus != nullptr && plotFocus->fixesNodeCount();
}

void IndexPlotScene::setViewOption(bool& option, bool value)
{
    option = value;
    repaint();
}

// ---- the X window -------------------------------------------------------------------------

void IndexPlotScene::moveWindowStart(int value)
{
    if (plotMoveStart(window, value, N, isFixingNodeCount())) {
        showWindowMove();
    }
}

void IndexPlotScene::moveWindowEnd(int value)
{
    if (plotMoveEnd(window, value, isFixingNodeCount())) {
        showWindowMove();
    }
}

void IndexPlotScene::setWindowStep(int value)
{
    window.step = std::max(value, 1);
    showWindowMove();
}

void IndexPlotScene::showWindowMove()
{
    refreshFocusWindow();
    repaint();
}

bool IndexPlotScene::moveWindowToTime(int value)
{
    window.animationPosition = 20;
    if (window.end - window.start + value > N - 1) {
        return false;
    }
    if (isFixingNodeCount()) {
        window.end += value - window.start;
    }
    window.start = value;
    return true;
}

bool IndexPlotScene::advanceWindow()
{
    if (window.end + window.step >= N) {
        return false;
    }
    if (window.slideInDone()) {
        window.start += window.step;
        window.end += window.step;
    } else {
        ++window.animationPosition;
    }
    return true;
}

void IndexPlotScene::rewindWindow()
{
    window.end -= window.start;
    window.start = 0;
    window.animationPosition = 0;
}

void IndexPlotScene::resetWindow()
{
    window.step = 1;
    window.end -= window.start;
    window.start = 0;
}

// ---- the animation controls ---------------------------------------------------------------

void IndexPlotScene::setUpTimeSlider()
{
    const QSignalBlocker blocker(controls.timeSlider);
    controls.timeSlider->setRange(0, lastTimeValue());
    refreshTimeLabels();
}

void IndexPlotScene::refreshTimeSliderEnd()
{
    const QSignalBlocker blocker(controls.timeSlider);
    controls.timeSlider->setMaximum(lastTimeValue());
    controls.timeEnd->setText(numberText(lastTimeValue()));
}

void IndexPlotScene::refreshTimeLabels()
{
    controls.timeValue->setText(numberText(window.start));
    controls.timeStart->setText(numberText(0));
    controls.timeEnd->setText(numberText(lastTimeValue()));
}

void IndexPlotScene::applySpeed()
{
    applySpeedLevel(speed, kMinSpeedLevel, kMaxSpeedLevel, controls.accelerate, controls.decelerate,
                    controls.timer);
    repaint();
}

void IndexPlotScene::changeSpeed(int levels)
{
    speed += levels;
    applySpeed();
}

void IndexPlotScene::togglePause()
{
    setPaused(!isPaused());
    controls.pause->setText(isPaused() ? QStringLiteral("Resume") : QStringLiteral("Pause"));
}

// ---- geometry -----------------------------------------------------------------------------

IndexPlotView IndexPlotScene::plotView() const
{
    return {window, N, xMin, xMax, yMin, yMax, viewWidth, viewHeight};
}

void IndexPlotScene::fillIndexPlotState(IndexPlotState& state) const
{
    state.view = plotView();
    state.needXAxis = needXAxis;
    state.needYAxis = needYAxis;
    state.showXIndices = showXIndices;
    state.showYIndices = showYIndices;
    state.showLabels = showLabels;
    state.pointer = QPointF(mouse.x(), mouse.y());
    state.rubberBand = mouse.rubberBand();
    state.markedNode = markedNode;
    state.gridColor = {gridColor[0], gridColor[1], gridColor[2]};
    state.errorImage = errorImage;
    state.checkedImage = checkedImage;
    state.uncheckedImage = uncheckedImage;
    state.indexLabels = indexLabels;
}

float IndexPlotScene::nodeX(int i) const
{
    return plotView().nodeX(i);
}

float IndexPlotScene::nodePixelX(int i) const
{
    return plotView().nodePixelX(i);
}

float IndexPlotScene::valuePixelY(float value) const
{
    return plotView().valuePixelY(value);
}

float IndexPlotScene::gridValue(int j) const
{
    return plotView().gridValue(j);
}

// ---- painting -----------------------------------------------------------------------------

void IndexPlotScene::drawForeground(QPainter* painter, const QRectF& rect)
{
    viewWidth = int(rect.width());
    viewHeight = int(rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    paintOverlays(painter);
    painter->restore();
}

// ---- mouse --------------------------------------------------------------------------------

// Each handler lets the scene's items have the event first.

void IndexPlotScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mousePressEvent(event);
    if (event->isAccepted()) {
        return;
    }
    if (event->button() == Qt::LeftButton) {
        const float x = float(event->scenePos().x());
        const float y = float(event->scenePos().y());
        mouse.press(x, y);
        pressHitLegend = showLabels && pressLegend(x, y);
    }
    event->accept();
}

void IndexPlotScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseMoveEvent(event);
    if (event->isAccepted()) {
        return;
    }
    followPointer(event->scenePos());
    repaint();
}

void IndexPlotScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    if (event->isAccepted()) {
        return;
    }
    const PlotMouse::View view{window, yMin, yMax, N, xMin, xMax, viewWidth, viewHeight};
    const float x = float(event->scenePos().x());
    const float y = float(event->scenePos().y());
    const bool click =
        event->button() == Qt::LeftButton && mouse.isClickAt(x, y) && !pressHitLegend;
    if (mouse.release(event->button(), x, y, view)) {
        refreshFocusWindow();
    }
    event->accept();
    repaint();
    if (click) {
        announceClick(event->scenePos());
    }
}

} // namespace quillon
