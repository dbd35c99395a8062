#include "sine/gui/SineOpenGLScene.h"

#include "common/core/CFormat.h"
#include "common/gui/FieldValidators.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotFrame.h"
#include "common/gui/PlotOverlay.h"
#include "common/picture/ImageLookup.h"
#include "common/picture/QtColor.h"
#include "sine/engine/SineEngine.h"
#include "sine/engine/SinePlotGeometry.h"
#include "sine/gui/SineFocusWindow.h"
#include "sine/gui/SineSelectionWindow.h"
#include "sine/gui/SineStatusWindow.h"

#include <GL/gl.h>
#include <QCheckBox>
#include <QGraphicsSceneHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QToolTip>
#include <algorithm>
#include <cmath>

using quillon::cformat;

namespace
{

constexpr float kGridDepth = 0.0f;
constexpr float kMarkerDepth = 1.0f;
constexpr float kCurveDepth = 2.0f;
constexpr float kHoveredDepth = 3.0f;
constexpr float kLibraryDepth = 4.0f;
constexpr int kTrendWidth = 2;
// How far (in view pixels) the cursor may be from a node for the node to count as under it.
constexpr float kNodeHitRadius = 5.0f;
constexpr int kMaxDegrees = 1000000;
constexpr int kMaxTerms = 10000;

QString qformat(const std::string& text)
{
    return QString::fromStdString(text);
}

const char* screenWord(int32_t code)
{
    switch (code) {
    case SineOverflow:
        return "Overflow";
    case SineUnderflow:
        return "Underflow";
    default:
        return "NAN";
    }
}

// A focus field that reads as infinity or NaN would leave the plot without a range: the bound
// keeps its value.
void takeFinite(float& bound, std::optional<float> typed)
{
    if (typed) {
        bound = *typed;
    }
}

void setGlColor(const quillon::ColorTriple& color)
{
    glColor3f(color.redF(), color.greenF(), color.blueF());
}

} // namespace

SineOpenGLScene::SineOpenGLScene(const SinePanel& panel, QObject* parent)
    : IndexPlotScene(panel, parent), panel(panel)
{
    colours = {{{0, 0, 0},
                {255, 192, 203},
                {255, 20, 147},
                {199, 21, 133},
                {139, 0, 0},
                {255, 0, 0},
                {255, 69, 0},
                {255, 215, 0},
                {128, 128, 0},
                {0, 255, 0},
                {0, 255, 255},
                {0, 0, 128},
                {106, 90, 205}}};
    for (int slot : {kLibrary, 1, 4, 10, 12}) {
        needed[slot] = true;
    }
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
    SinePlotContent content{&computed, {}, errorComparison};
    for (int k = 0; k < kSineApproachCount; ++k) {
        content.enabled[k] = needed[k + 1];
    }
    return content;
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

// ---- geometry -----------------------------------------------------------------------------

int SineOpenGLScene::indexUnderCursor() const
{
    int nearest = -1;
    float distance = kNodeHitRadius;
    for (int i = std::max(window.start, 0); i <= window.end && i < N; ++i) {
        const float away = std::fabs(nodePixelX(i) - mouse.x());
        if (window.displays(i) && away <= distance) {
            nearest = i;
            distance = away;
        }
    }
    return nearest;
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
        return needed[k + 1] ? plottedIndices(content, k) : std::vector<int>{};
    };
    const auto pixel = [&](int k, int i) {
        return QPointF(nodePixelX(i), valuePixelY(*content.plotted(k, i)));
    };
    return quillon::nearestPlotNode(position, radius, kSineApproachCount, drawn, pixel);
}

// A black ring around the node the inspector shows, while it is displayed.
void SineOpenGLScene::drawNodeMark(QPainter* painter) const
{
    if (!markedNode) {
        return;
    }
    const SinePlotContent content = plotContent();
    const std::vector<int> drawn = plottedIndices(content, markedNode->curve);
    if (std::find(drawn.begin(), drawn.end(), markedNode->index) != drawn.end()) {
        quillon::drawPlotNodeRing(
            painter, QPointF(nodePixelX(markedNode->index),
                             valuePixelY(*content.plotted(markedNode->curve, markedNode->index))));
    }
}

// ---- background ---------------------------------------------------------------------------

void SineOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(xMin, xMax, yMin, yMax);
    drawReferenceLines(kGridDepth);
    drawErrorMarkers();
    for (int slot = 1; slot <= kSineApproachCount; ++slot) {
        if (needed[slot]) {
            drawCurves(slot);
        }
    }
    drawLibraryLine();
}

// A vertical line where each selected series stopped.
void SineOpenGLScene::drawErrorMarkers() const
{
    glLineWidth(1.0f);
    glBegin(GL_LINES);
    for (int k = 0; k < kSineApproachCount; ++k) {
        if (!needed[k + 1]) {
            continue;
        }
        const std::vector<int32_t>& codes = computed.series[k].codes;
        for (size_t i = 0; i < codes.size(); ++i) {
            if (codes[i] != SineOk) {
                setGlColor(colours[k + 1]);
                glVertex3f(nodeX(int(i)), 1.0f, kMarkerDepth);
                glVertex3f(nodeX(int(i)), -1.0f, kMarkerDepth);
            }
        }
    }
    glEnd();
}

std::vector<int> SineOpenGLScene::plottedIndices(const SinePlotContent& content, int k) const
{
    std::vector<int> indices;
    for (int i = std::max(window.start, 0); i <= window.end && i < N; ++i) {
        if (!window.displays(i)) {
            continue;
        }
        if (!content.plotted(k, i)) {
            break;
        }
        indices.push_back(i);
    }
    return indices;
}

void SineOpenGLScene::drawCurves(int slot) const
{
    const int k = slot - 1;
    const SinePlotContent content = plotContent();
    const std::vector<int> indices = plottedIndices(content, k);
    const float depth = slot == hovered ? kHoveredDepth : kCurveDepth;
    const auto vertex = [&](int i) { glVertex3f(nodeX(i), *content.plotted(k, i), depth); };
    setGlColor(colours[slot]);
    if (showBoundary) {
        drawTrendLines(content, k, indices, depth);
    }
    if (showValues) {
        glLineWidth(float(kTrendWidth + 2));
        glBegin(GL_LINES);
        for (size_t j = 1; j < indices.size(); ++j) {
            vertex(indices[j - 1]);
            vertex(indices[j]);
        }
        glEnd();
    }
    if (needXAxis) {
        glColor3f(gridColor[0], gridColor[1], gridColor[2]);
        glLineWidth(1.0f);
        glBegin(GL_LINES);
        for (int i : indices) {
            vertex(i);
            glVertex3f(nodeX(i), 0.0f, depth);
        }
        glEnd();
    }
}

// Two broken envelopes: one through the partial sums that follow a positive term, one through
// those that follow a term <= 0, each joining consecutive members of its kind.
void SineOpenGLScene::drawTrendLines(const SinePlotContent& content, int k,
                                     const std::vector<int>& indices, float depth) const
{
    const std::vector<float>& terms = computed.series[k].terms;
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT);
    glLineWidth(float(kTrendWidth));
    glLineStipple(1, 0x00FF);
    glEnable(GL_LINE_STIPPLE);
    glBegin(GL_LINES);
    for (bool positive : {true, false}) {
        int previous = -1;
        for (int i : indices) {
            if ((terms[i] > 0.0f) != positive) {
                continue;
            }
            if (previous >= 0) {
                glVertex3f(nodeX(previous), *content.plotted(k, previous), depth);
                glVertex3f(nodeX(i), *content.plotted(k, i), depth);
            }
            previous = i;
        }
    }
    glEnd();
    glPopAttrib();
}

void SineOpenGLScene::drawLibraryLine() const
{
    if (!needed[kLibrary]) {
        return;
    }
    const float level = errorComparison ? 0.0f : computed.librarySine;
    setGlColor(colours[kLibrary]);
    glLineWidth(1.0f);
    glBegin(GL_LINES);
    glVertex3f(xMin, level, kLibraryDepth);
    glVertex3f(xMax, level, kLibraryDepth);
    glEnd();
}

// ---- foreground ---------------------------------------------------------------------------

void SineOpenGLScene::paintOverlays(QPainter* painter)
{
    painter->setFont(quillon::plotOverlayFont());
    drawErrorIcons(painter);
    if (showXIndices) {
        drawXIndices(painter);
    }
    if (showYIndices) {
        quillon::drawPlotValueLabels(painter, yMin, yMax, viewHeight);
    }
    drawErrorList(painter);
    mouse.drawRubberBand(painter);
    if (showLabels) {
        drawLegend(painter);
    }
    drawLargestError(painter);
    drawNodeMark(painter);
}

// The icon flashes with the ticks, and only once the window has slid in.
void SineOpenGLScene::drawErrorIcons(QPainter* painter) const
{
    if (blink || !window.slideInDone()) {
        return;
    }
    for (int k = 0; k < kSineApproachCount; ++k) {
        const SineSeries& series = computed.series[k];
        if (needed[k + 1] && series.codes.size() > series.terms.size()) {
            painter->drawImage(errorIconRect(int(series.terms.size())), errorImage);
        }
    }
}

void SineOpenGLScene::drawXIndices(QPainter* painter) const
{
    painter->setPen(Qt::darkBlue);
    for (int i = std::max(window.start, 0); i <= window.end && i < N; ++i) {
        if (window.displays(i)) {
            const float x = nodePixelX(i) - float(indexLabels->width(i)) / 2.0f;
            painter->drawStaticText(QPointF(x, 2.0), indexLabels->staticText(i));
        }
    }
}

// Under the cursor's index, one red line per selected series that stopped there, the block
// beside the cursor and whole inside the plot: the index where the animation pauses itself is
// at the plot's right edge.
void SineOpenGLScene::drawErrorList(QPainter* painter) const
{
    const int index = indexUnderCursor();
    if (index < 0) {
        return;
    }
    QStringList lines;
    for (int k = 0; k < kSineApproachCount; ++k) {
        const std::vector<int32_t>& codes = computed.series[k].codes;
        if (!needed[k + 1] || size_t(index) >= codes.size() || codes[index] == SineOk) {
            continue;
        }
        const std::string name = std::string(sineApproaches()[k].longName) + " ";
        lines << qformat(cformat("%s gets an error: %s\n", name.c_str(), screenWord(codes[index])))
                     .trimmed();
    }
    if (lines.isEmpty()) {
        return;
    }
    const QFontMetrics metrics(quillon::plotOverlayFont());
    int widest = 0;
    for (const QString& line : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    const SineTextBlockCorner corner =
        sineTextBlockBesideCursor(mouse.x(), mouse.y(), float(widest),
                                  float(metrics.height() * lines.size()), viewWidth, viewHeight);
    painter->setPen(QColor(255, 0, 0));
    float baseline = corner.top + float(metrics.ascent());
    for (const QString& line : lines) {
        painter->drawText(QPointF(corner.left, baseline), line);
        baseline += float(metrics.height());
    }
}

// Three columns and five rows in the bottom quarter: the library, "Select all" and "Select
// none", then the twelve approaches three to a row. An entry keeps a gap before the next
// column's check mark; a name too long for its column is shortened (its tool tip gives it
// whole).
SineOpenGLScene::LegendEntry SineOpenGLScene::legendEntry(int row, int column) const
{
    constexpr int kGap = 4;
    const int top = int(std::floor(0.75 * viewHeight));
    const int rowHeight = int(std::floor(0.25 * viewHeight)) / 5;
    const int columnWidth = viewWidth / 3;
    const int side = std::max(std::min(rowHeight - 4, 16), 1);
    const int left = column * columnWidth + kGap;
    const int rowTop = top + row * rowHeight;
    LegendEntry entry{-1, {}, {}, {}, {}, {}};
    if (row == 0) {
        const char* firstRow[] = {"C++ Math lib", "Select all", "Select none"};
        entry.name = QString::fromLatin1(firstRow[column]);
        entry.slot = column == 0 ? kLibrary : -1;
    } else {
        const int k = 3 * (row - 1) + column;
        entry.name = QString::fromLatin1(sineApproaches()[k].longName);
        entry.slot = k + 1;
    }
    int textLeft = left;
    if (entry.slot >= 0) {
        const int squareTop = rowTop + (rowHeight - side) / 2;
        entry.checkMark = QRect(left, squareTop, side, side);
        entry.colour = QRect(left + side + kGap, squareTop, side, side);
        textLeft += 2 * side + 2 * kGap;
    }
    const int textRight = (column + 1) * columnWidth;
    entry.textBox = QRect(textLeft, rowTop, std::max(textRight - textLeft, 0), rowHeight);
    entry.shownName = QFontMetrics(quillon::plotOverlayFont())
                          .elidedText(entry.name, Qt::ElideRight, entry.textBox.width());
    return entry;
}

void SineOpenGLScene::drawLegend(QPainter* painter) const
{
    const int top = int(std::floor(0.75 * viewHeight));
    painter->setPen(Qt::black);
    painter->drawLine(0, top, viewWidth, top);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            const LegendEntry entry = legendEntry(row, column);
            if (entry.slot >= 0) {
                painter->drawImage(entry.checkMark,
                                   needed[entry.slot] ? checkedImage : uncheckedImage);
                painter->fillRect(entry.colour, quillon::toQColor(colours[entry.slot]));
            }
            painter->setPen(entry.slot == hovered && entry.slot > 0 ? Qt::red : Qt::black);
            painter->drawText(entry.textBox, Qt::AlignLeft | Qt::AlignVCenter, entry.shownName);
        }
    }
}

std::optional<SineOpenGLScene::LegendEntry> SineOpenGLScene::legendEntryAt(QPointF position) const
{
    const SineLegendHit hit =
        sineLegendAt(float(position.x()), float(position.y()), viewWidth, viewHeight);
    switch (hit.kind) {
    case SineLegendHit::None:
        return std::nullopt;
    case SineLegendHit::Library:
        return legendEntry(0, 0);
    case SineLegendHit::SelectAll:
        return legendEntry(0, 1);
    case SineLegendHit::SelectNone:
        return legendEntry(0, 2);
    case SineLegendHit::Approach:
        break;
    }
    return legendEntry(1 + hit.approach / 3, hit.approach % 3);
}

void SineOpenGLScene::helpEvent(QGraphicsSceneHelpEvent* event)
{
    const std::optional<LegendEntry> entry =
        showLabels ? legendEntryAt(event->scenePos()) : std::nullopt;
    if (!entry || entry->shownName == entry->name) {
        QGraphicsScene::helpEvent(event);
        return;
    }
    QToolTip::showText(event->screenPos(), entry->name, event->widget());
    event->accept();
}

void SineOpenGLScene::drawLargestError(QPainter* painter) const
{
    const std::optional<float> largest = sineLargestError(plotContent(), window, N, xMin, xMax);
    if (!largest) {
        return;
    }
    const QString text =
        qformat(
            cformat("Maximal absolute error respect to C++ Math library: %2e\n", double(*largest)))
            .trimmed();
    painter->setPen(QPen());
    const int textHeight = QFontMetrics(quillon::plotOverlayFont()).height();
    const float boxTop = float(0.75 * viewHeight) - float(textHeight);
    painter->drawText(QRectF(0, boxTop, viewWidth, textHeight), Qt::AlignLeft | Qt::AlignVCenter,
                      text);
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
