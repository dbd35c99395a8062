#include "sine/gui/SineOpenGLScene.h"

#include "common/core/CFormat.h"
#include "common/gui/FieldValidators.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotRenderer.h"
#include "sine/engine/SineEngine.h"
#include "sine/engine/SinePlotGeometry.h"
#include "sine/gui/SineFocusWindow.h"
#include "sine/gui/SineSelectionWindow.h"
#include "sine/gui/SineStatusWindow.h"
#include "sine/picture/SineLegendEntry.h"
#include "sine/picture/SinePlotPicture.h"

#include <QCheckBox>
#include <QGraphicsSceneHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>
#include <cmath>
#include <vector>

using quillon::cformat;

namespace
{

constexpr int kMaxDegrees = 1000000;
constexpr int kMaxTerms = 10000;

QString qformat(const std::string& text)
{
    return QString::fromStdString(text);
}

// A focus field that reads as infinity or NaN would leave the plot without a range: the bound
// keeps its value.
void takeFinite(float& bound, std::optional<float> typed)
{
    if (typed) {
        bound = *typed;
    }
}

} // namespace

SineOpenGLScene::SineOpenGLScene(const SinePanel& panel, QObject* parent)
    : IndexPlotScene(panel, parent), panel(panel)
{
    recompute();
}

void SineOpenGLScene::setFocusWindow(SineFocusWindow* window)
{
    focusWindow = window;
    watchFocusWindow(window);
}

void SineOpenGLScene::setColor(int slot, const quillon::ColorTriple& color)
{
    colours[slot] = color;
    repaint();
}

// ---- inputs -------------------------------------------------------------------------------

void SineOpenGLScene::setUpPanel()
{
    panel.iterations->setText(qformat(cformat("%d", N)));
    panel.iterations->setValidator(quillon::integerFieldValidator(1, kMaxTerms, panel.iterations));
    panel.x->setText(qformat(cformat("%d", X)));
    panel.x->setValidator(quillon::integerFieldValidator(-kMaxDegrees, kMaxDegrees, panel.x));
    const std::pair<QCheckBox*, bool> boxes[] = {
        {panel.showBoundary, showBoundary}, {panel.showValues, showValues},
        {panel.showXAxis, needXAxis},       {panel.showYAxis, needYAxis},
        {panel.showXIndices, showXIndices}, {panel.showYIndices, showYIndices},
        {panel.showLabels, showLabels},     {panel.errorComparison, errorComparison}};
    for (const auto& [box, checked] : boxes) {
        const QSignalBlocker blocker(box);
        box->setChecked(checked);
    }
    setUpTimeSlider();
    speedAdjust();
}

void SineOpenGLScene::recompute()
{
    computeSine(X, N, computed);
    markedNode.reset();
    fitYRange();
    refreshStatusWindow();
}

// A new computation starts the animation over: the window back at index 0 with its width,
// nothing revealed, running.
void SineOpenGLScene::restartAnimation()
{
    rewindWindow();
    setPaused(false);
    autoPaused = false;
    panel.pause->setText(QStringLiteral("Pause"));
    refreshFocusWindow();
    repaint();
}

void SineOpenGLScene::updateMaxItera()
{
    N = panel.iterations->text().toInt();
    recompute();
    refreshTimeSliderEnd();
    restartAnimation();
}

void SineOpenGLScene::updateX()
{
    X = panel.x->text().toInt();
    recompute();
    restartAnimation();
}

void SineOpenGLScene::calculate()
{
    X = panel.x->text().toInt();
    N = panel.iterations->text().toInt();
    recompute();
    refreshTimeSliderEnd();
    restartAnimation();
}

// ---- the Y range --------------------------------------------------------------------------

void SineOpenGLScene::updateYmin()
{
    if (focusWindow != nullptr) {
        takeFinite(yMin, focusWindow->yMinNumber());
    }
    repaint();
}

void SineOpenGLScene::updateYmax()
{
    if (focusWindow != nullptr) {
        takeFinite(yMax, focusWindow->yMaxNumber());
    }
    repaint();
}

void SineOpenGLScene::Yapply()
{
    if (focusWindow != nullptr) {
        takeFinite(yMin, focusWindow->yMinNumber());
        takeFinite(yMax, focusWindow->yMaxNumber());
    }
    repaint();
}

SinePlotContent SineOpenGLScene::plotContent() const
{
    return plotState().content();
}

void SineOpenGLScene::fitYRange()
{
    if (const auto range = sineFitYRange(plotContent(), window, N, xMin, xMax)) {
        yMin = range->first;
        yMax = range->second;
    }
    repaint();
}

// ---- selections and view options ----------------------------------------------------------

void SineOpenGLScene::setNeeded(int slot, bool need)
{
    needed[slot] = need;
    repaint();
}

void SineOpenGLScene::needFunc1(bool need)
{
    setNeeded(1, need);
}
void SineOpenGLScene::needFunc2(bool need)
{
    setNeeded(2, need);
}
void SineOpenGLScene::needFunc3(bool need)
{
    setNeeded(3, need);
}
void SineOpenGLScene::needFunc4(bool need)
{
    setNeeded(4, need);
}
void SineOpenGLScene::needFunc5(bool need)
{
    setNeeded(5, need);
}
void SineOpenGLScene::needFunc6(bool need)
{
    setNeeded(6, need);
}
void SineOpenGLScene::needFunc7(bool need)
{
    setNeeded(7, need);
}
void SineOpenGLScene::needFunc8(bool need)
{
    setNeeded(8, need);
}
void SineOpenGLScene::needFunc9(bool need)
{
    setNeeded(9, need);
}
void SineOpenGLScene::needFunc10(bool need)
{
    setNeeded(10, need);
}
void SineOpenGLScene::needFunc11(bool need)
{
    setNeeded(11, need);
}
void SineOpenGLScene::needFunc12(bool need)
{
    setNeeded(12, need);
}

void SineOpenGLScene::needBaseSin(bool need)
{
    setNeeded(kLibrary, need);
}

void SineOpenGLScene::needErrorComparison(bool need)
{
    errorComparison = need;
    fitYRange();
    refreshFocusWindow();
    repaint();
}

// After choosing all or none, the panel's "Error comparison" and "Y labels" boxes are set from
// the scene again; the other boxes are left as they are.
void SineOpenGLScene::chooseAll(bool need)
{
    needed.fill(need);
    refreshSelectionWindow();
    for (const auto& [box, checked] : {std::pair{panel.errorComparison, errorComparison},
                                       std::pair{panel.showYIndices, showYIndices}}) {
        const QSignalBlocker blocker(box);
        box->setChecked(checked);
    }
    repaint();
}

void SineOpenGLScene::allUnchoose()
{
    chooseAll(false);
}

void SineOpenGLScene::allchoose()
{
    chooseAll(true);
}

void SineOpenGLScene::needFinalError(bool need)
{
    setViewOption(finalError, need);
}

void SineOpenGLScene::setShowBoundary(bool show)
{
    setViewOption(showBoundary, show);
}

void SineOpenGLScene::setShowValues(bool show)
{
    setViewOption(showValues, show);
}

void SineOpenGLScene::setNeedXAxis(bool need)
{
    setViewOption(needXAxis, need);
}

void SineOpenGLScene::setNeedYAxis(bool need)
{
    setViewOption(needYAxis, need);
}

void SineOpenGLScene::need2ShowXIndices(bool show)
{
    setViewOption(showXIndices, show);
}

void SineOpenGLScene::need2ShowYIndices(bool show)
{
    setViewOption(showYIndices, show);
}

void SineOpenGLScene::need2ShowLabels(bool show)
{
    setViewOption(showLabels, show);
}

// ---- the X window and the focus window's ranges -------------------------------------------

void SineOpenGLScene::setStartpoint(int value)
{
    moveWindowStart(value);
}

void SineOpenGLScene::setEndpoint(int value)
{
    moveWindowEnd(value);
}

void SineOpenGLScene::setStepsize(int value)
{
    setWindowStep(value);
}

void SineOpenGLScene::setLowerRange(int value)
{
    lowerRange = value;
    refreshFocusWindow();
    repaint();
}

void SineOpenGLScene::setUpperRange(int value)
{
    upperRange = value;
    refreshFocusWindow();
    repaint();
}

void SineOpenGLScene::setRangeStep(int value)
{
    rangeStep = value;
    refreshFocusWindow();
    repaint();
}

void SineOpenGLScene::resetXY()
{
    resetWindow();
    fitYRange();
    refreshFocusWindow();
    repaint();
}

// ---- the tool windows ---------------------------------------------------------------------

void SineOpenGLScene::refreshFocusWindow()
{
    if (focusWindow != nullptr) {
        focusWindow->refresh();
    }
}

void SineOpenGLScene::refreshSelectionWindow()
{
    if (selectionWindow != nullptr) {
        selectionWindow->synchronise();
    }
}

void SineOpenGLScene::refreshStatusWindow()
{
    if (statusWindow != nullptr && statusWindow->isVisible()) {
        statusWindow->refresh();
    }
}

// ---- animation ----------------------------------------------------------------------------

void SineOpenGLScene::accelerate()
{
    changeSpeed(1);
}

void SineOpenGLScene::decelerate()
{
    changeSpeed(-1);
}

void SineOpenGLScene::speedAdjust()
{
    applySpeed();
}

void SineOpenGLScene::pause()
{
    autoPaused = false;
    togglePause();
}

void SineOpenGLScene::runningMan()
{
    if (!isPaused()) {
        advanceOneStep();
        fitYRange();
    }
    blink = !blink;
    repaint();
}

void SineOpenGLScene::advanceOneStep()
{
    if (!advanceWindow()) {
        return;
    }
    refreshFocusWindow();
    refreshTimeLabels();
    pauseAtAnError();
}

// The animation stops by itself where a selected series has just stopped.
void SineOpenGLScene::pauseAtAnError()
{
    if (sineStoppedBeforeCurrent(plotContent(), window, N, xMin, xMax)) {
        setPaused(true);
        autoPaused = true;
        panel.pause->setText(QStringLiteral("Resume"));
    }
}

void SineOpenGLScene::setTimeStartpoint(int value)
{
    if (!moveWindowToTime(value)) {
        return;
    }
    refreshFocusWindow();
    refreshTimeLabels();
    repaint();
}

// ---- mouse --------------------------------------------------------------------------------

// Toggles what a press on the legend hits; false when it hits nothing.
bool SineOpenGLScene::pressLegend(float x, float y)
{
    const SineLegendHit hit = sineLegendAt(x, y, viewWidth, viewHeight);
    switch (hit.kind) {
    case SineLegendHit::None:
        return false;
    case SineLegendHit::Library:
        needed[kLibrary] = !needed[kLibrary];
        break;
    case SineLegendHit::SelectAll:
        needed.fill(true);
        break;
    case SineLegendHit::SelectNone:
        needed.fill(false);
        break;
    case SineLegendHit::Approach:
        needed[hit.approach + 1] = !needed[hit.approach + 1];
        break;
    }
    refreshSelectionWindow();
    repaint();
    return true;
}

// The pointer is kept in whole view pixels, where the error list and the legend look.
void SineOpenGLScene::followPointer(QPointF position)
{
    mouse.moveTo(std::round(float(position.x())), std::round(float(position.y())));
    if (showLabels) {
        const SineLegendHit hit = sineLegendAt(mouse.x(), mouse.y(), viewWidth, viewHeight);
        hovered = hit.kind == SineLegendHit::Approach ? hit.approach + 1 : -1;
    }
}

void SineOpenGLScene::announceClick(QPointF position)
{
    emit plotClicked(position);
}

std::optional<quillon::PlotNode> SineOpenGLScene::nodeNear(QPointF position, float radius) const
{
    const SinePlotContent content = plotContent();
    const auto drawn = [&](int k) {
        return needed[k + 1] ? sinePlottedIndices(content, window, N, k) : std::vector<int>{};
    };
    const auto pixel = [&](int k, int i) {
        return QPointF(nodePixelX(i), valuePixelY(*content.plotted(k, i)));
    };
    return quillon::nearestPlotNode(position, radius, kSineApproachCount, drawn, pixel);
}

void SineOpenGLScene::helpEvent(QGraphicsSceneHelpEvent* event)
{
    const std::optional<SineLegendEntry> entry =
        showLabels ? sineLegendEntryAt(event->scenePos(), viewWidth, viewHeight) : std::nullopt;
    if (!entry || entry->shownName == entry->name) {
        QGraphicsScene::helpEvent(event);
        return;
    }
    QToolTip::showText(event->screenPos(), entry->name, event->widget());
    event->accept();
}

// ---- the frame ----------------------------------------------------------------------------

SinePlotState SineOpenGLScene::plotState() const
{
    SinePlotState state;
    fillIndexPlotState(state);
    state.results = &computed;
    state.colours = colours;
    state.needed = needed;
    state.errorComparison = errorComparison;
    state.showBoundary = showBoundary;
    state.showValues = showValues;
    state.hovered = hovered;
    state.blink = blink;
    return state;
}

quillon::PlotPicture SineOpenGLScene::picture(QSize viewSize, quillon::PictureUse use) const
{
    return describeSinePlot(plotState(), viewSize, use);
}

void SineOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::drawPlotBackgroundGl(painter, sinePlotBackground(plotState()));
}

void SineOpenGLScene::paintOverlays(QPainter* painter)
{
    quillon::paintPlotOverlay(painter, sinePlotOverlay(plotState(), quillon::PictureUse::Screen),
                              QSize(viewWidth, viewHeight), &overlayCache);
}

// ---- files --------------------------------------------------------------------------------

QString SineOpenGLScene::saveColorFile(const QString& path) const
{
    return quillon::writeWholeFile(path, sineColorFileText(colours));
}

QString SineOpenGLScene::loadColorFile(const QString& path)
{
    std::string text;
    if (const QString failure = quillon::readConfigurationFile(path, text); !failure.isEmpty()) {
        return failure;
    }
    readSineColorFile(text, colours);
    refreshStatusWindow();
    repaint();
    return QString();
}

QString SineOpenGLScene::saveTextData(const QString& path) const
{
    return quillon::writeWholeFile(path, sineTextExport(computed));
}

QString SineOpenGLScene::saveCsvData(const QString& path) const
{
    return quillon::writeWholeFile(path, sineCsvExport(computed));
}
