#include "assoc/gui/AssoOpenGLScene.h"

#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "common/core/CFormat.h"
#include "common/gui/FieldValidators.h"
#include "common/gui/FileRoutines.h"
#include "common/gui/GlPlotFrame.h"
#include "common/gui/PlotOverlay.h"
#include "common/picture/ImageLookup.h"
#include "common/picture/QtColor.h"

#include <GL/gl.h>
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

const char* screenWord(int32_t code)
{
    switch (code) {
    case AssoNan:
        return "NAN";
    case AssoOverflow:
        return "Overflow";
    default:
        return "Underflow";
    }
}

} // namespace

AssoOpenGLScene::AssoOpenGLScene(const AssoPanel& panel, QObject* parent)
    : IndexPlotScene(panel, parent), panel(panel)
{
    colours = {{{128, 0, 128}, {0, 128, 128}, {255, 69, 0}, {128, 128, 0}, {0, 255, 0}}};
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
    const auto range = assoFitYRange(plotContent(), window, xMin, xMax);
    if (range) {
        // A flat set of values (R = 0, say) still needs a range of some height.
        const float margin =
            range->first == range->second ? std::max(std::fabs(range->first) * 0.5f, 0.5f) : 0.0f;
        yMin = range->first - margin;
        yMax = range->second + margin;
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

// ---- background ---------------------------------------------------------------------------

void AssoOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(-1.5, 1.5, yMin, yMax);
    glPushMatrix();
    drawReferenceLines(gridDepth);
    drawCurves();
    glPopMatrix();
    glDisable(GL_DEPTH_TEST);
}

void AssoOpenGLScene::drawCurves() const
{
    const AssoPlotContent content = plotContent();
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!needFunc[k]) {
            continue;
        }
        glColor3f(colours[k].redF(), colours[k].greenF(), colours[k].blueF());
        glLineWidth(float(curveWidthOffset + 2));
        const float depth = k == highlightedFunc ? highlightedDepth : normalDepth;
        const int stop = content.curveEnd(k);
        glBegin(GL_LINES);
        int previous = -1;
        for (int n = std::max(window.start, 0); n < stop && n <= window.end; ++n) {
            if (!window.displays(n)) {
                continue;
            }
            if (previous >= 0) {
                glVertex3f(nodeX(n), *content.plotted(k, n), depth);
                glVertex3f(nodeX(previous), *content.plotted(k, previous), depth);
            }
            previous = n;
        }
        glEnd();
    }
}

// ---- foreground ---------------------------------------------------------------------------

// A black ring around the node the inspector shows, while it is displayed.
void AssoOpenGLScene::drawNodeMark(QPainter* painter) const
{
    if (!markedNode) {
        return;
    }
    const int n = markedNode->index;
    const std::optional<float> plotted = plotContent().plotted(markedNode->curve, n);
    if (plotted && window.displays(n)) {
        quillon::drawPlotNodeRing(painter, QPointF(nodePixelX(n), valuePixelY(*plotted)));
    }
}

void AssoOpenGLScene::paintOverlays(QPainter* painter)
{
    if (showXIndices) {
        drawXIndices(painter);
    }
    if (showYIndices) {
        quillon::drawPlotValueLabels(painter, yMin, yMax, viewHeight);
    }
    if (needXAxis) {
        drawXAxisLines(painter);
    }
    if (needYAxis) {
        drawYAxisLines(painter);
    }
    drawErrorIcons(painter);
    if (showErrorMessages) {
        drawErrorMessages(painter);
    }
    mouse.drawRubberBand(painter);
    if (showLabels) {
        drawLegend(painter);
    }
    drawSpreadReadout(painter);
    drawNodeMark(painter);
}

bool AssoOpenGLScene::XIndexLayerKey::operator==(const XIndexLayerKey& other) const
{
    return window.start == other.window.start && window.end == other.window.end &&
           window.step == other.window.step &&
           window.animationPosition == other.window.animationPosition && n == other.n &&
           width == other.width && height == other.height;
}

void AssoOpenGLScene::drawXIndices(QPainter* painter) const
{
    const XIndexLayerKey key{window, N, viewWidth, viewHeight};
    if (!xIndexLayerKey || !(*xIndexLayerKey == key)) {
        paintXIndexLayer();
        xIndexLayerKey = key;
    }
    painter->drawImage(QPointF(0, 0), xIndexLayer);
}

// Each label reads downwards from the top edge: one quarter turn for all of them, so a label
// at view x is drawn at (2, -(x + 2)) in the turned coordinates.
void AssoOpenGLScene::paintXIndexLayer() const
{
    // The turned labels hang from the top edge as far as the longest one is wide.
    const int lastIndex = std::max(std::min(window.end, N - 1), 0);
    const int depth = std::min(indexLabels->width(lastIndex) + 4, std::max(viewHeight, 1));
    xIndexLayer = QImage(std::max(viewWidth, 1), depth, QImage::Format_ARGB32_Premultiplied);
    xIndexLayer.fill(Qt::transparent);
    QPainter painter(&xIndexLayer);
    painter.setFont(quillon::plotOverlayFont());
    painter.setPen(Qt::darkBlue);
    painter.rotate(90);
    const qreal ascent = QFontMetricsF(quillon::plotOverlayFont()).ascent();
    for (int n = std::max(window.start, 0); n <= window.end && n < N; ++n) {
        if (!window.displays(n)) {
            continue;
        }
        const float x = nodePixelX(n) - float(indexLabels->width(n)) / 2.0f;
        // Static texts are placed by their top-left corner, text by its baseline.
        painter.drawStaticText(QPointF(2, -(x + 2) - ascent), indexLabels->staticText(n));
    }
}

void AssoOpenGLScene::drawXAxisLines(QPainter* painter) const
{
    painter->setPen(Qt::darkBlue);
    std::vector<QLineF> lines;
    for (int n = std::max(window.start, 0); n <= window.end && n < N; ++n) {
        if (!window.displays(n)) {
            continue;
        }
        // Half a label's width left of the node, where its rotated label stands.
        const float x = nodePixelX(n) - float(indexLabels->width(n)) / 2.0f;
        lines.emplace_back(x, 0, x, viewHeight);
    }
    painter->drawLines(lines.data(), int(lines.size()));
}

void AssoOpenGLScene::drawYAxisLines(QPainter* painter) const
{
    painter->setPen(Qt::darkMagenta);
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float y = valuePixelY(gridValue(i));
        painter->drawLine(QPointF(0, y), QPointF(viewWidth, y));
    }
}

// Icons of order k follow the flag of order k + 1, and the fifth order never gets any.
void AssoOpenGLScene::drawErrorIcons(QPainter* painter) const
{
    for (int k = 0; k < 4; ++k) {
        if (!needFunc[k + 1]) {
            continue;
        }
        const std::vector<int32_t>& errors = results.errors[k];
        for (int n = 0; n < N && size_t(n) < errors.size(); ++n) {
            if (errors[n] != AssoOk) {
                painter->drawImage(errorIconRect(n), errorImage);
            }
        }
    }
}

void AssoOpenGLScene::drawErrorMessages(QPainter* painter) const
{
    struct Message {
        int order;
        int iteration;
        int32_t code;
    };
    std::vector<Message> messages;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!needFunc[k]) {
            continue;
        }
        for (size_t n = 0; n < results.errors[k].size(); ++n) {
            if (results.errors[k][n] != AssoOk) {
                messages.push_back({k, int(n), results.errors[k][n]});
            }
        }
    }
    const QFontMetrics metrics(quillon::plotOverlayFont());
    const int lineHeight = metrics.height();
    const int total = int(messages.size());
    int widest = 0;
    bool below = false;
    bool left = false;
    // Measured with the "get" wording, drawn with "gets".
    for (int i = 0; i < total; ++i) {
        const Message& m = messages[i];
        const QString measured = qformat(cformat("func %d at iter %d get an error: %s\n", m.order,
                                                 m.iteration, screenWord(m.code)));
        const int width = metrics.horizontalAdvance(measured);
        widest = std::max(widest, width);
        below = below || mouse.y() - float(i * lineHeight) < 0;
        left = left || mouse.x() + float(width) > float(viewWidth);
    }
    painter->setFont(quillon::plotOverlayFont());
    painter->setPen(QColor(255, 0, 0));
    for (int i = 0; i < total; ++i) {
        const Message& m = messages[i];
        const QString text = qformat(cformat("func %d at iter %d gets an error: %s\n", m.order,
                                             m.iteration, screenWord(m.code)));
        const float x = left ? mouse.x() - float(widest) : mouse.x();
        const float y = below ? mouse.y() + float((total - i) * lineHeight)
                              : mouse.y() - float((total - i) * lineHeight);
        painter->drawText(QRectF(x, y, metrics.horizontalAdvance(text), lineHeight), Qt::AlignLeft,
                          text.trimmed());
    }
}

void AssoOpenGLScene::drawLegend(QPainter* painter) const
{
    const int rowHeight = int(std::floor(0.25 * viewHeight)) / 5;
    const int columnWidth = viewWidth / 15;
    const int top = int(std::floor(0.75 * viewHeight));
    const int side = std::min(columnWidth, rowHeight);
    painter->setPen(Qt::black);
    painter->drawLine(0, top, viewWidth, top);
    const float formulaHeight =
        std::min(float(rowHeight), 10.0f * float(columnWidth) / formulaAspect);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        const int rowTop = top + k * rowHeight;
        const int squareTop = rowTop + (rowHeight - side) / 2;
        painter->drawImage(QRect((columnWidth - side) / 2, squareTop, side, side),
                           needFunc[k] ? checkedImage : uncheckedImage);
        painter->drawImage(QRectF(2 * columnWidth, rowTop + (rowHeight - formulaHeight) / 2,
                                  formulaHeight * formulaAspect, formulaHeight),
                           formulaImages[k]);
        painter->fillRect(QRect(13 * columnWidth + (columnWidth - side) / 2, squareTop, side, side),
                          quillon::toQColor(colours[k]));
    }
}

void AssoOpenGLScene::drawSpreadReadout(QPainter* painter) const
{
    const int current = quillon::plotCurrentNode(window, N, xMin, xMax);
    if (current < 0) {
        return;
    }
    float largest = 0.0f;
    float smallest = 0.0f;
    int taking = 0;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!needFunc[k] || size_t(current) >= results.values[k].size() ||
            results.errors[k][current] != AssoOk) {
            continue;
        }
        const float value = results.values[k][current];
        largest = taking == 0 ? value : std::max(largest, value);
        smallest = taking == 0 ? value : std::min(smallest, value);
        ++taking;
    }
    if (taking < 2) {
        return;
    }
    const QString text =
        qformat(cformat("Error: %2e\n", double(largest) - double(smallest))).trimmed();
    painter->setFont(quillon::plotOverlayFont());
    painter->setPen(QPen());
    const int textHeight = QFontMetrics(quillon::plotOverlayFont()).height();
    const float boxTop = float(0.75 * viewHeight) - float(int(std::floor(0.25 * viewHeight)) / 5);
    painter->drawText(QRectF(0, boxTop, viewWidth, textHeight), Qt::AlignLeft | Qt::AlignVCenter,
                      text);
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
