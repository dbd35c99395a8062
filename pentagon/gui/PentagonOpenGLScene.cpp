#include "pentagon/gui/PentagonOpenGLScene.h"

#include "common/core/CFormat.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotRenderer.h"
#include "common/picture/PlotPainter.h"
#include "pentagon/engine/PentagonView.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonMiniScene.h"
#include "pentagon/picture/PentagonPlotPicture.h"

#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{

// The six epsilons of the panel, and the range each one presets before the pentagon is fitted:
// -0.05 (1 + epsilon) to 1.05 (1 + epsilon).
struct EpsilonPreset {
    float epsilon;
    float low;
    float high;
};
constexpr EpsilonPreset kEpsilonPresets[6] = {
    {0.025f, -0.05125f, 1.07625f}, {0.05f, -0.0525f, 1.1025f},    {0.075f, -0.05375f, 1.12875f},
    {0.1f, -0.055f, 1.155f},       {0.125f, -0.05625f, 1.18125f}, {0.15f, -0.0575f, 1.2075f}};

// The Default pentagon of the animated example is built with this epsilon, whichever of the
// six the panel shows.
constexpr float kAnimationEpsilon = 0.175f;

} // namespace

PentagonOpenGLScene::PentagonOpenGLScene(const PentagonPanel& panel,
                                         PentagonColorSettings* colorSettings, QObject* parent)
    : OpenGLPlotScene(parent), panel(panel), colorSettings(colorSettings)
{
    showFittedRange(geometry.fittedRange());
}

void PentagonOpenGLScene::setRange(const PentagonRange& range)
{
    xMin = range.xMin;
    xMax = range.xMax;
    yMin = range.yMin;
    yMax = range.yMax;
}

// A fitted range is shown in the focus window too (a rectangle zoom is not).
void PentagonOpenGLScene::showFittedRange(const PentagonRange& fitted)
{
    setRange(fitted);
    if (focusWindow != nullptr) {
        focusWindow->showRange(fitted);
        focusWindow->update();
    }
}

void PentagonOpenGLScene::setMiniMap(PentagonMiniMap* window)
{
    miniMap = window;
}

void PentagonOpenGLScene::setFocusWindow(PentagonFocusWindow* window)
{
    focusWindow = window;
}

void PentagonOpenGLScene::refreshHistoryWindow(bool restarted)
{
    if (miniMap == nullptr) {
        return;
    }
    if (restarted) {
        miniMap->historyScene()->historyRestarted();
    } else {
        miniMap->historyScene()->updateRange();
    }
}

bool PentagonOpenGLScene::isSelected(size_t entry) const
{
    return miniMap != nullptr && miniMap->historyScene()->isSelected(entry);
}

void PentagonOpenGLScene::setSelectionMode(bool on)
{
    selectionMode = on;
    repaint();
}

void PentagonOpenGLScene::fitToSelection()
{
    showFittedRange(pentagonFittedRange({-1.0f, 1.0f, -1.0f, 1.0f}, selectedPentagons()));
    repaint();
}

void PentagonOpenGLScene::fitToHistory()
{
    showFittedRange(geometry.fittedRange());
    repaint();
}

void PentagonOpenGLScene::setColor(int index, const quillon::ColorTriple& color)
{
    colorSettings->colors[size_t(index)] = color;
    repaint();
}

void PentagonOpenGLScene::showCounts()
{
    panel.numIn->setText(QString::fromStdString(quillon::cformat("%d", geometry.getNumIns())));
    panel.numOut->setText(QString::fromStdString(quillon::cformat("%d", geometry.getNumOuts())));
}

// Starts the history over and refits the range; the selection starts over with it.
void PentagonOpenGLScene::reset()
{
    startOver(&PentagonEngine::resetHistory);
}

// Either way of starting over (a new pentagon, or the same one again) refits the range and
// shows the zeroed counts.
void PentagonOpenGLScene::startOver(void (PentagonEngine::*restart)())
{
    (geometry.*restart)();
    markedVertex.reset();
    showFittedRange(geometry.fittedRange());
    refreshHistoryWindow(true);
    showCounts();
    repaint();
}

void PentagonOpenGLScene::in()
{
    step(&PentagonEngine::in);
}

void PentagonOpenGLScene::out()
{
    step(&PentagonEngine::out);
}

// A step that succeeds refits the range to the grown history; one that fails or is refused
// leaves the range (and any zoom) as it was.
void PentagonOpenGLScene::step(void (PentagonEngine::*operation)())
{
    // While a pentagon is being entered there is nothing to step.
    if (geometry.isEnteringPoints()) {
        return;
    }
    const size_t before = geometry.getHistory().size();
    (geometry.*operation)();
    if (geometry.getHistory().size() != before) {
        showFittedRange(geometry.fittedRange());
    }
    refreshHistoryWindow(false);
    showCounts();
    repaint();
}

// Only the animated example builds the regular pentagon, so the engine follows the mode.
void PentagonOpenGLScene::setAnimating(bool on)
{
    animating = on;
    geometry.setAnimatedExample(on);
}

void PentagonOpenGLScene::autoPentagon(bool on)
{
    if (!on) {
        // Leaving this mode falls back to the animation.
        needAnimation(true);
        return;
    }
    panel.epsilonGroup->show();
    animationStep = 0;
    setAnimating(false);
    geometry.setUserMode(false);
    reset();
    panel.animateInput->setChecked(false);
    panel.animationCount->hide();
    panel.animationPentagon->hide();
    panel.userInput->setChecked(false);
    panel.start->setText(QStringLiteral("Reset"));
}

void PentagonOpenGLScene::UserPentagon(bool on)
{
    setAnimating(false);
    reset();
    geometry.setUserMode(on);
    animationStep = 0;
    reset();
    panel.animateInput->setChecked(false);
    panel.animationCount->hide();
    panel.animationPentagon->hide();
    panel.autoInput->setChecked(false);
    panel.epsilonGroup->hide();
    panel.start->setText(QStringLiteral("Reset"));
}

void PentagonOpenGLScene::needAnimation(bool on)
{
    setAnimating(on);
    panel.animationCount->show();
    panel.animationPentagon->show();
    animationStep = 0;
    geometry.setUserMode(false);
    reset();
    panel.userInput->setChecked(false);
    panel.autoInput->setChecked(false);
    panel.epsilonGroup->hide();
    if (!firstAnimation) {
        panel.start->setText(QStringLiteral("Restart"));
    } else {
        firstAnimation = false;
    }
}

void PentagonOpenGLScene::setSequentialOrder(bool)
{
    order = 0;
    if (animating) {
        animationStep = 0;
        reset();
    }
}

void PentagonOpenGLScene::setAlternativeOrder(bool)
{
    order = 1;
    if (animating) {
        animationStep = 0;
        reset();
    }
}

// The number of operations stays 10.
void PentagonOpenGLScene::updateOperationNum() {}

void PentagonOpenGLScene::regularPentagon(bool on)
{
    if (on) {
        geometry.setRegular(true);
        needAnimation(true);
    }
}

void PentagonOpenGLScene::defaultPentagon(bool on)
{
    if (on) {
        geometry.setEpsilon(kAnimationEpsilon);
        geometry.setRegular(false);
        needAnimation(true);
    }
}

void PentagonOpenGLScene::setEpsilonPreset(int index, bool on)
{
    if (!on) {
        return;
    }
    const EpsilonPreset& preset = kEpsilonPresets[index];
    geometry.setEpsilon(preset.epsilon);
    setRange({preset.low, preset.high, preset.low, preset.high});
    reset();
}

void PentagonOpenGLScene::setEpsilon1(bool on)
{
    setEpsilonPreset(0, on);
}
void PentagonOpenGLScene::setEpsilon2(bool on)
{
    setEpsilonPreset(1, on);
}
void PentagonOpenGLScene::setEpsilon3(bool on)
{
    setEpsilonPreset(2, on);
}
void PentagonOpenGLScene::setEpsilon4(bool on)
{
    setEpsilonPreset(3, on);
}
void PentagonOpenGLScene::setEpsilon5(bool on)
{
    setEpsilonPreset(4, on);
}
void PentagonOpenGLScene::setEpsilon6(bool on)
{
    setEpsilonPreset(5, on);
}

// A focus field's text as displayed, read as a float; text that does not convert reads as 0.
void PentagonOpenGLScene::updateBound(float& bound, int field)
{
    if (focusWindow == nullptr) {
        return;
    }
    const QLineEdit* edits[] = {focusWindow->xMinEdit(), focusWindow->xMaxEdit(),
                                focusWindow->yMinEdit(), focusWindow->yMaxEdit()};
    bound = edits[field]->text().toFloat();
    repaint();
}

void PentagonOpenGLScene::updateXmin()
{
    updateBound(xMin, 0);
}
void PentagonOpenGLScene::updateXmax()
{
    updateBound(xMax, 1);
}
void PentagonOpenGLScene::updateYmin()
{
    updateBound(yMin, 2);
}
void PentagonOpenGLScene::updateYmax()
{
    updateBound(yMax, 3);
}

void PentagonOpenGLScene::resetXY()
{
    showFittedRange(fittedRange());
    repaint();
}

void PentagonOpenGLScene::XYapply()
{
    updateXmin();
    updateXmax();
    updateYmin();
    updateYmax();
}

// Reserved zoom controls: they repaint and change nothing.
void PentagonOpenGLScene::changeScaleFactor(int)
{
    repaint();
}
void PentagonOpenGLScene::resetView()
{
    repaint();
}

void PentagonOpenGLScene::resetToDefault()
{
    if (animating) {
        setPaused(false);
        needAnimation(true);
    } else {
        reset();
    }
}

void PentagonOpenGLScene::resetUserInput()
{
    geometry.setUserMode(true);
    reset();
}

void PentagonOpenGLScene::XIndices(bool on)
{
    showXIndices = on;
    repaint();
}
void PentagonOpenGLScene::YIndices(bool on)
{
    showYIndices = on;
    repaint();
}
void PentagonOpenGLScene::XAxis(bool on)
{
    showXAxis = on;
    repaint();
}
void PentagonOpenGLScene::YAxis(bool on)
{
    showYAxis = on;
    repaint();
}

void PentagonOpenGLScene::clearHistory()
{
    startOver(&PentagonEngine::clearHistory);
}

// One animation tick: five Ins then five Outs, or In and Out in turn, ten steps in all.
void PentagonOpenGLScene::runningMan()
{
    if (!animating || isPaused()) {
        return;
    }
    const int k = animationStep;
    if (order == 0) {
        if (k < operationNum / 2) {
            in();
            animationStep += 1;
        } else if (k < operationNum) {
            out();
            animationStep += 1;
        }
    } else if (order == 1 && k < operationNum) {
        if (k % 2 == 0) {
            in();
        } else {
            out();
        }
        animationStep += 1;
    }
    repaint();
}

// The pentagons drawn: the valid history entries, or in selection mode the marked ones.
std::vector<PentagonPoints> PentagonOpenGLScene::drawnPentagons() const
{
    return selectionMode ? selectedPentagons() : geometry.validPentagons();
}

std::vector<PentagonPoints> PentagonOpenGLScene::selectedPentagons() const
{
    const std::vector<PentagonPoints> valid = geometry.validPentagons();
    std::vector<PentagonPoints> chosen;
    for (size_t n = 0; n < valid.size(); ++n) {
        if (isSelected(n)) {
            chosen.push_back(valid[n]);
        }
    }
    return chosen;
}

// While points are being entered nothing is walked and the current range is widened by 10%.
PentagonRange PentagonOpenGLScene::fittedRange() const
{
    const bool entering = geometry.isEnteringPoints();
    return pentagonFittedRange(range(),
                               entering ? std::vector<PentagonPoints>{} : drawnPentagons());
}

void PentagonOpenGLScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    mousePos = event->scenePos();
    if (event->button() == Qt::LeftButton) {
        pressPos = event->scenePos();
        if (geometry.isEnteringPoints() && !views().isEmpty()) {
            // While entering, the view shows -1 .. 1 both ways.
            const QRect viewport = views().first()->viewport()->rect();
            const float w = float(viewport.width());
            const float h = float(viewport.height());
            const float x = ((float(event->scenePos().x()) - w * 0.5f) * 2.0f) / w;
            const float y = ((h * 0.5f - float(event->scenePos().y())) * 2.0f) / h;
            geometry.addManualPoint(x, y);
            if (geometry.getUserPointCount() == 5) {
                showFittedRange(geometry.fittedRange());
                refreshHistoryWindow(true);
            }
            pressPos = QPointF(-1, -1);
        }
    }
    event->accept();
    repaint();
}

void PentagonOpenGLScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    mousePos = event->scenePos();
    repaint();
}

void PentagonOpenGLScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const bool picked = pressPos.x() != -1 && pressPos.y() != -1 &&
                            event->scenePos() == pressPos && clickPicker &&
                            clickPicker(event->scenePos());
        if (picked) {
            pressPos = QPointF(-1, -1);
        } else if (pressPos.x() != -1 && pressPos.y() != -1) {
            const PentagonRange zoomed = pentagonZoomToRectangle(
                range(), float(pressPos.x()), float(pressPos.y()), float(event->scenePos().x()),
                float(event->scenePos().y()), viewWidth, viewHeight);
            setRange(zoomed);
            zoomStack.push_back(zoomed);
            pressPos = QPointF(-1, -1);
        }
    } else if (event->button() == Qt::RightButton) {
        if (!zoomStack.empty()) {
            zoomStack.pop_back();
        }
        if (zoomStack.empty()) {
            showFittedRange(fittedRange());
        } else {
            setRange(zoomStack.back());
        }
    }
    event->accept();
    repaint();
}

QPointF PentagonOpenGLScene::pixelOf(float x, float y) const
{
    return pentagonViewPixel(range(), currentViewSize(), x, y);
}

std::optional<quillon::PlotNode> PentagonOpenGLScene::vertexNear(QPointF position,
                                                                 float radius) const
{
    const std::vector<PentagonPoints> valid = geometry.validPentagons();
    const auto drawn = [&](int entry) {
        return !selectionMode || isSelected(size_t(entry)) ? std::vector<int>{1, 2, 3, 4, 5}
                                                           : std::vector<int>{};
    };
    const auto pixel = [&](int entry, int point) {
        const PentagonPoints& pentagon = valid[size_t(entry)];
        return pixelOf(pentagon.x(point), pentagon.y(point));
    };
    return quillon::nearestPlotNode(position, radius, int(valid.size()), drawn, pixel);
}

void PentagonOpenGLScene::markVertex(std::optional<quillon::PlotNode> vertex)
{
    markedVertex = vertex;
    repaint();
}

// The frame as the scene holds it, for a view of `size`: the drag, kept in the current view's
// pixels, moves with the scale.
PentagonPlotState PentagonOpenGLScene::plotState(QSize size) const
{
    PentagonPlotState state = pentagonPlotStateFor(geometry, *colorSettings);
    state.selectionMode = selectionMode;
    if (selectionMode) {
        for (size_t n = 0; n < state.pentagons.size(); ++n) {
            state.selected.push_back(isSelected(n));
        }
    }
    state.range = range();
    state.showXIndices = showXIndices;
    state.showYIndices = showYIndices;
    state.showXAxis = showXAxis;
    state.showYAxis = showYAxis;
    if (pressPos.x() >= 0 && pressPos.y() >= 0) {
        const double scaleX = viewWidth > 0 ? double(size.width()) / viewWidth : 1.0;
        const double scaleY = viewHeight > 0 ? double(size.height()) / viewHeight : 1.0;
        const auto scaled = [&](QPointF point) {
            return QPointF(point.x() * scaleX, point.y() * scaleY);
        };
        state.rubberBand = QRectF(scaled(pressPos), scaled(mousePos));
    }
    state.markedVertex = markedVertex;
    return state;
}

quillon::PlotPicture PentagonOpenGLScene::picture(QSize viewSize, quillon::PictureUse use) const
{
    return describePentagonPlot(plotState(viewSize), viewSize, use);
}

void PentagonOpenGLScene::drawBackground(QPainter* painter, const QRectF& rect)
{
    viewWidth = int(rect.width());
    viewHeight = int(rect.height());
    quillon::drawPlotBackgroundGl(painter, pentagonPlotBackground(plotState(currentViewSize())));
}

// Described again rather than kept from the background pass: a foreground pass may come alone
// (a painter on another device), and it must show the state as it is now.
void PentagonOpenGLScene::drawForeground(QPainter* painter, const QRectF&)
{
    const QSize size = currentViewSize();
    quillon::paintPlotOverlay(
        painter, pentagonPlotOverlay(plotState(size), size, quillon::PictureUse::Screen), size);
}

QString PentagonOpenGLScene::loadConfiguration(const QString& path)
{
    std::string text;
    if (const QString failure = quillon::readConfigurationFile(path, text); !failure.isEmpty()) {
        return failure;
    }
    readPentagonConfiguration(text, *colorSettings);
    repaint();
    return QString();
}

QString PentagonOpenGLScene::saveConfiguration(const QString& path) const
{
    return quillon::writeWholeFile(path, pentagonConfigurationText(*colorSettings));
}

QString PentagonOpenGLScene::saveHistoryText(const QString& path) const
{
    return quillon::writeWholeFile(path, pentagonHistoryText(geometry));
}
