#include "assoc/gui/AssoOpenGLScene.h"

#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "assoc/picture/AssoPlotPicture.h"
#include "common/core/CFormat.h"
#include "common/gui/FieldValidators.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotRenderer.h"
#include "common/picture/ImageLookup.h"
#include "common/picture/PlotPainter.h"

#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <cmath>

using quillon::cformat;

namespace
{

QString qformat(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

AssoOpenGLScene::AssoOpenGLScene(const AssoPanel& panel, QObject* parent)
    : IndexPlotScene(panel, parent), panel(panel)
{
    colours = kAssoDefaultColors;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        formulaImages[k] = quillon::loadImage(QStringLiteral("func%1.png").arg(k + 1));
    }
    computeSequences();
}

void AssoOpenGLScene::setFocusWindow(AssoFocusWindow* window)
{
    focusWindow = window;
    watchFocusWindow(window);
}

void AssoOpenGLScene::setColor(int order, const quillon::ColorTriple& color)
{
    colours[order] = color;
    repaint();
}

// ---- inputs -------------------------------------------------------------------------------

void AssoOpenGLScene::computeSequences()
{
    ::computeSequences(R, X0, N, results);
    markedNode.reset();
}

void AssoOpenGLScene::refreshPanel()
{
    panel.iterations->setText(qformat(cformat("%d", N)));
    delete panel.iterations->validator();
    panel.iterations->setValidator(quillon::integerFieldValidator(1, 10000, panel.iterations));
    for (auto [edit, value] : {std::pair{panel.x0, X0}, std::pair{panel.r, R}}) {
        edit->setText(qformat(cformat("%f", double(value))));
        delete edit->validator();
        edit->setValidator(quillon::decimalFieldValidator(-10000.0, 10000.0, 2, edit));
    }
}

void AssoOpenGLScene::setUpPanel()
{
    refreshPanel();
    setUpTimeSlider();
    speedAdjust();
}

void AssoOpenGLScene::shiftWindowBack()
{
    rewindWindow();
    refreshFocusWindow();
}

void AssoOpenGLScene::updateR()
{
    R = panel.r->text().toFloat();
    computeSequences();
    shiftWindowBack();
    repaint();
}

void AssoOpenGLScene::updateX()
{
    X0 = panel.x0->text().toFloat();
    computeSequences();
    shiftWindowBack();
    repaint();
}

void AssoOpenGLScene::updateMaxItera()
{
    N = panel.iterations->text().toInt();
    computeSequences();
    refreshPanel();
    refreshTimeSliderEnd();
    panel.mainWindow->update();
    shiftWindowBack();
    repaint();
}

void AssoOpenGLScene::calculate()
{
    X0 = panel.x0->text().toFloat();
    N = panel.iterations->text().toInt();
    computeSequences();
    refreshPanel();
    shiftWindowBack();
    repaint();
}

// ---- selections and view options ----------------------------------------------------------

void AssoOpenGLScene::updateYmin()
{
    yMin = focusWindow->yMinText().toFloat();
    repaint();
}

void AssoOpenGLScene::updateYmax()
{
    yMax = focusWindow->yMaxText().toFloat();
    repaint();
}

void AssoOpenGLScene::Yapply()
{
    yMin = focusWindow->yMinText().toFloat();
    yMax = focusWindow->yMaxText().toFloat();
    repaint();
}

void AssoOpenGLScene::setNeedFunc(int order, bool need)
{
    needFunc[order] = need;
    repaint();
}

void AssoOpenGLScene::needFunc0(bool need)
{
    setNeedFunc(0, need);
}
void AssoOpenGLScene::needFunc1(bool need)
{
    setNeedFunc(1, need);
}
void AssoOpenGLScene::needFunc2(bool need)
{
    setNeedFunc(2, need);
}
void AssoOpenGLScene::needFunc3(bool need)
{
    setNeedFunc(3, need);
}
void AssoOpenGLScene::needFunc4(bool need)
{
    setNeedFunc(4, need);
}

void AssoOpenGLScene::syncSelectionWindow()
{
    if (selectionWindow != nullptr) {
        selectionWindow->synchronise();
        selectionWindow->update();
    }
}

void AssoOpenGLScene::allUnchoose()
{
    needFunc.fill(false);
    repaint();
    panel.mainWindow->update();
    syncSelectionWindow();
}

void AssoOpenGLScene::allchoose()
{
    needFunc.fill(true);
    repaint();
    panel.mainWindow->update();
    syncSelectionWindow();
}

void AssoOpenGLScene::needErrorComparison(bool need)
{
    compare = need;
    fitYRange();
    repaint();
    refreshFocusWindow();
}

void AssoOpenGLScene::setBaseFunc(int order, bool chosen)
{
    if (!chosen || !compare) {
        return;
    }
    baseFunc = order;
    fitYRange();
    repaint();
}

void AssoOpenGLScene::setBaseFunc1(bool chosen)
{
    setBaseFunc(0, chosen);
}
void AssoOpenGLScene::setBaseFunc2(bool chosen)
{
    setBaseFunc(1, chosen);
}
void AssoOpenGLScene::setBaseFunc3(bool chosen)
{
    setBaseFunc(2, chosen);
}
void AssoOpenGLScene::setBaseFunc4(bool chosen)
{
    setBaseFunc(3, chosen);
}
void AssoOpenGLScene::setBaseFunc5(bool chosen)
{
    setBaseFunc(4, chosen);
}

void AssoOpenGLScene::setNeedXAxis(bool need)
{
    setViewOption(needXAxis, need);
}

void AssoOpenGLScene::setNeedYAxis(bool need)
{
    setViewOption(needYAxis, need);
}

void AssoOpenGLScene::need2ShowXIndices(bool show)
{
    setViewOption(showXIndices, show);
}

void AssoOpenGLScene::need2ShowYIndices(bool show)
{
    setViewOption(showYIndices, show);
}

void AssoOpenGLScene::need2ShowLabels(bool show)
{
    setViewOption(showLabels, show);
}

// ---- the X window -------------------------------------------------------------------------

void AssoOpenGLScene::refreshFocusWindow()
{
    if (focusWindow != nullptr) {
        focusWindow->refresh();
        focusWindow->update();
    }
}

void AssoOpenGLScene::setStartpoint(int value)
{
    moveWindowStart(value);
}

void AssoOpenGLScene::setEndpoint(int value)
{
    moveWindowEnd(value);
}

void AssoOpenGLScene::setStepsize(int value)
{
    setWindowStep(value);
}

void AssoOpenGLScene::resetXY()
{
    resetWindow();
    repaint();
    fitYRange();
    refreshFocusWindow();
}

// ---- animation ----------------------------------------------------------------------------

void AssoOpenGLScene::accelerate()
{
    changeSpeed(1);
}

void AssoOpenGLScene::decelerate()
{
    changeSpeed(-1);
}

void AssoOpenGLScene::speedAdjust()
{
    applySpeed();
}

void AssoOpenGLScene::pause()
{
    togglePause();
}

void AssoOpenGLScene::runningMan()
{
    if (isPaused()) {
        return;
    }
    if (advanceWindow()) {
        refreshFocusWindow();
        refreshTimeLabels();
        panel.mainWindow->update();
        repaint();
    }
    fitYRange();
    repaint();
}

void AssoOpenGLScene::setTimeStartpoint(int value)
{
    if (!moveWindowToTime(value)) {
        return;
    }
    refreshFocusWindow();
    refreshTimeLabels();
    panel.mainWindow->update();
    repaint();
}

// ---- geometry -----------------------------------------------------------------------------

AssoPlotContent AssoOpenGLScene::plotContent() const
{
    return {&results, needFunc, compare, baseFunc, N};
}

void AssoOpenGLScene::fitYRange()
{
    if (const auto range = assoShownYRange(plotContent(), window, xMin, xMax)) {
        yMin = range->first;
        yMax = range->second;
    }
    refreshFocusWindow();
    repaint();
}

bool AssoOpenGLScene::mouseOnErrorIcon() const
{
    for (int k = 0; k < 4; ++k) {
        if (!needFunc[k + 1]) {
            continue;
        }
        const std::vector<int32_t>& errors = results.errors[k];
        for (int n = 0; n < N && size_t(n) < errors.size(); ++n) {
            if (errors[n] == AssoOk) {
                continue;
            }
            const QRectF icon = errorIconRect(n);
            if (icon.left() <= mouse.x() && mouse.x() <= icon.right() && icon.top() <= mouse.y() &&
                mouse.y() <= icon.bottom()) {
                return true;
            }
        }
    }
    return false;
}

// ---- mouse --------------------------------------------------------------------------------

// A press on a legend row toggles that order. The row is the one under the pointer where it
// last moved to.
bool AssoOpenGLScene::pressLegend(float, float)
{
    const int row = quillon::plotLegendRowAt(mouse.y(), viewHeight);
    if (row < 0 || row >= kAssoOrderCount) {
        return false;
    }
    needFunc[row] = !needFunc[row];
    syncSelectionWindow();
    repaint();
    return true;
}

void AssoOpenGLScene::followPointer(QPointF position)
{
    mouse.moveTo(float(position.x()), float(position.y()));
    showErrorMessages = mouseOnErrorIcon();
    if (showLabels) {
        highlightedFunc = quillon::plotLegendRowAt(mouse.y(), viewHeight);
    }
}

void AssoOpenGLScene::announceClick(QPointF position)
{
    emit plotClicked(position);
}

std::optional<quillon::PlotNode> AssoOpenGLScene::nodeNear(QPointF position, float radius) const
{
    const AssoPlotContent content = plotContent();
    const auto drawn = [&](int k) {
        std::vector<int> indices;
        if (needFunc[k]) {
            const int stop = content.curveEnd(k);
            for (int n = std::max(window.start, 0); n < stop && n <= window.end; ++n) {
                if (window.displays(n)) {
                    indices.push_back(n);
                }
            }
        }
        return indices;
    };
    const auto pixel = [&](int k, int n) {
        return QPointF(nodePixelX(n), valuePixelY(*content.plotted(k, n)));
    };
    return quillon::nearestPlotNode(position, radius, kAssoOrderCount, drawn, pixel);
}

// ---- painting ---------------------------------------------------------------------------

AssoPlotState AssoOpenGLScene::plotState() const
{
    AssoPlotState state;
    fillIndexPlotState(state);
    state.results = &results;
    state.colours = colours;
    state.needFunc = needFunc;
    state.compare = compare;
    state.baseFunc = baseFunc;
    state.showErrorMessages = showErrorMessages;
    state.highlightedFunc = highlightedFunc;
    state.curveWidthOffset = curveWidthOffset;
    state.highlightedDepth = highlightedDepth;
    state.normalDepth = normalDepth;
    state.gridDepth = gridDepth;
    state.formulaAspect = formulaAspect;
    state.formulaImages = formulaImages;
    return state;
}

quillon::PlotPicture AssoOpenGLScene::picture(QSize viewSize, quillon::PictureUse use) const
{
    return describeAssoPlot(plotState(), viewSize, use);
}

void AssoOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::drawPlotBackgroundGl(painter, assoPlotBackground(plotState()));
}

void AssoOpenGLScene::paintOverlays(QPainter* painter)
{
    quillon::paintPlotOverlay(painter, assoPlotOverlay(plotState(), quillon::PictureUse::Screen),
                              QSize(viewWidth, viewHeight), &overlayCache);
}

// ---- files --------------------------------------------------------------------------------

QString AssoOpenGLScene::saveColorFile(const QString& path) const
{
    return quillon::writeWholeFile(path, assoColorFileText(colours));
}

QString AssoOpenGLScene::loadColorFile(const QString& path)
{
    std::string text;
    if (const QString failure = quillon::readConfigurationFile(path, text); !failure.isEmpty()) {
        return failure;
    }
    readAssoColorFile(text, colours);
    repaint();
    return QString();
}

QString AssoOpenGLScene::saveTextData(const QString& path) const
{
    return quillon::writeWholeFile(path, assoTextExport(results));
}

QString AssoOpenGLScene::saveCsvData(const QString& path) const
{
    return quillon::writeWholeFile(path, assoCsvExport(results, N));
}
