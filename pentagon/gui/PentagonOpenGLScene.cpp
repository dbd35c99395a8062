#include "pentagon/gui/PentagonOpenGLScene.h"

#include "common/core/CFormat.h"
#include "common/core/PlotXWindow.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotFrame.h"
#include "common/gui/PlotOverlay.h"
#include "pentagon/engine/PentagonView.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonMiniScene.h"

#include <GL/gl.h>
#include <QFontMetrics>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <cstring>
#include <unordered_set>

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

// One segment of a drawn pentagon, -0 read as +0 (both give the same pixels).
struct Segment {
    float x1;
    float y1;
    float x2;
    float y2;

    Segment(float x1, float y1, float x2, float y2)
        : x1(x1 + 0.0f), y1(y1 + 0.0f), x2(x2 + 0.0f), y2(y2 + 0.0f)
    {
    }
    friend bool operator==(const Segment& a, const Segment& b)
    {
        return a.x1 == b.x1 && a.y1 == b.y1 && a.x2 == b.x2 && a.y2 == b.y2;
    }
};

struct SegmentHash {
    size_t operator()(const Segment& segment) const
    {
        size_t hash = 0;
        for (const float value : {segment.x1, segment.y1, segment.x2, segment.y2}) {
            uint32_t bits = 0;
            std::memcpy(&bits, &value, sizeof bits);
            hash = hash * 1000003u ^ bits;
        }
        return hash;
    }
};

void glColor(const quillon::ColorTriple& color)
{
    glColor3f(color.redF(), color.greenF(), color.blueF());
}

QString labelText(float value)
{
    return QString::fromStdString(quillon::cformat("%.2e", double(value)));
}

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
    return QPointF(float(viewWidth) * (x - xMin) / (xMax - xMin),
                   float(viewHeight) * (yMax - y) / (yMax - yMin));
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

// A black ring around the vertex the inspector shows, while its pentagon is in the history.
void PentagonOpenGLScene::drawVertexMark(QPainter* painter) const
{
    const std::vector<PentagonPoints> valid = geometry.validPentagons();
    if (markedVertex && size_t(markedVertex->curve) < valid.size()) {
        const PentagonPoints& pentagon = valid[size_t(markedVertex->curve)];
        quillon::drawPlotNodeRing(
            painter, pixelOf(pentagon.x(markedVertex->index), pentagon.y(markedVertex->index)));
    }
}

void PentagonOpenGLScene::drawBackground(QPainter* painter, const QRectF& rect)
{
    viewWidth = int(rect.width());
    viewHeight = int(rect.height());
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(xMin, xMax, yMin, yMax);
    if (!selectionMode && geometry.isEnteringPoints()) {
        drawEnteredPoints();
    } else {
        drawHistory();
    }
}

// Only the points: no lines join them while a pentagon is being entered.
void PentagonOpenGLScene::drawEnteredPoints() const
{
    glPointSize(float(colorSettings->pointSize));
    glBegin(GL_POINTS);
    const PentagonPoints& points = geometry.getCurrentPoints();
    for (int k = 1; k <= geometry.getUserPointCount(); ++k) {
        glColor(colorSettings->colors[size_t(k - 1)]);
        glVertex3f(points.x(k), points.y(k), 1.0f);
    }
    glEnd();
    glColor(colorSettings->colors[5]);
    glLineWidth(float(colorSettings->lineWidth));
}

// Every drawn pentagon with its five edges and five diagonals: the initial one in its colour,
// the newest in the current colour, older ones in greys that lighten with age.
void PentagonOpenGLScene::drawHistory() const
{
    const std::vector<PentagonPoints> valid = geometry.validPentagons();
    const int count = int(geometry.getHistory().size());
    // Every pentagon lies at the same depth, so on each pixel the first segment drawn there
    // wins and a segment drawn again at the same coordinates adds nothing. In and Out pairs
    // soon cycle through a few pentagons, so a long history is mostly such repeats.
    std::unordered_set<Segment, SegmentHash> drawn;
    glLineWidth(float(colorSettings->lineWidth));
    glBegin(GL_LINES);
    for (int n = 0; n < int(valid.size()); ++n) {
        if (selectionMode && !isSelected(size_t(n))) {
            continue;
        }
        const int age = count - n - 1;
        if (n == 0) {
            glColor(colorSettings->colors[5]);
        } else if (age == 0) {
            glColor(colorSettings->colors[6]);
        } else {
            const float grey = float(pentagonGreyForAge(age)) / 255.0f;
            glColor3f(grey, grey, grey);
        }
        const PentagonPoints& pentagon = valid[size_t(n)];
        // Each of the ten segments once: a pair drawn the other way round, or a point joined
        // to itself, adds no pixel of another colour.
        for (int i = 1; i <= 5; ++i) {
            for (int j = i + 1; j <= 5; ++j) {
                if (drawn.emplace(pentagon.x(i), pentagon.y(i), pentagon.x(j), pentagon.y(j))
                        .second) {
                    glVertex3f(pentagon.x(i), pentagon.y(i), 0.0f);
                    glVertex3f(pentagon.x(j), pentagon.y(j), 0.0f);
                }
            }
        }
    }
    glEnd();
}

void PentagonOpenGLScene::drawForeground(QPainter* painter, const QRectF&)
{
    if (pressPos.x() >= 0 && pressPos.y() >= 0) {
        painter->setPen(Qt::black);
        const QRectF band(pressPos, mousePos);
        painter->drawLine(band.topLeft(), band.topRight());
        painter->drawLine(band.topRight(), band.bottomRight());
        painter->drawLine(band.bottomRight(), band.bottomLeft());
        painter->drawLine(band.bottomLeft(), band.topLeft());
    }
    if (showXIndices) {
        drawXLabels(painter);
    }
    if (showYIndices) {
        quillon::drawPlotValueLabels(painter, yMin, yMax, viewHeight);
    }
    if (showXAxis) {
        drawVerticalGridLines(painter);
    }
    if (showYAxis) {
        drawHorizontalGridLines(painter);
    }
    drawVertexMark(painter);
    if (geometry.hasFailed()) {
        drawErrorMessage(painter);
    }
}

// An x value's grid line stands half its label's width right of the value's position.
float PentagonOpenGLScene::verticalGridLineX(float value) const
{
    const QFontMetrics metrics(quillon::plotOverlayFont());
    return float(viewWidth) * (value - xMin) / (xMax - xMin) +
           float(metrics.horizontalAdvance(labelText(value))) / 2.0f;
}

// Along the bottom, each label turned by 90 degrees about its anchor so that it reads upwards,
// and centred on its value's grid line: a student reads each line's value from the label the
// line runs through.
void PentagonOpenGLScene::drawXLabels(QPainter* painter) const
{
    const QFont font = quillon::plotOverlayFont();
    const QFontMetricsF metrics(font);
    painter->setFont(font);
    painter->setPen(Qt::darkMagenta);
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float value = quillon::plotGridValue(i, xMin, xMax);
        const QString text = labelText(value);
        // Turned upwards, the text's height lies across the view: its ink, from the top of the
        // glyphs to their bottom, runs from anchor + top to anchor + bottom.
        const double anchor =
            double(verticalGridLineX(value)) - metrics.tightBoundingRect(text).center().y();
        painter->save();
        painter->translate(QPointF(anchor, viewHeight));
        painter->rotate(-90);
        painter->drawText(QPointF(0, 0), text);
        painter->restore();
    }
}

// Each line runs through the middle of its turned label.
void PentagonOpenGLScene::drawVerticalGridLines(QPainter* painter) const
{
    painter->setPen(Qt::darkMagenta);
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float x = verticalGridLineX(quillon::plotGridValue(i, xMin, xMax));
        painter->drawLine(QPointF(x, 0), QPointF(x, viewHeight));
    }
}

void PentagonOpenGLScene::drawHorizontalGridLines(QPainter* painter) const
{
    painter->setPen(Qt::darkMagenta);
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float value = quillon::plotGridValue(i, yMin, yMax);
        const float y = float(viewHeight) * (yMax - value) / (yMax - yMin);
        painter->drawLine(QPointF(0, y), QPointF(viewWidth, y));
    }
}

// The failed step's message in red, 20 point bold "times", centred in the plot.
void PentagonOpenGLScene::drawErrorMessage(QPainter* painter) const
{
    QFont font(QStringLiteral("times"), 20);
    font.setWeight(QFont::Bold);
    painter->setFont(font);
    painter->setPen(QColor(255, 0, 0));
    // The message without its line break (its blank before the break stays).
    const QString message =
        QString::fromLatin1(pentagonStatusMessage(geometry.lastStatus())).chopped(1);
    const QFontMetrics metrics(font);
    const float x = (float(viewWidth) - float(metrics.horizontalAdvance(message))) / 2.0f;
    painter->drawText(QPointF(x, float(viewHeight) / 2.0f), message);
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
