#include "assoc/picture/AssoPlotPicture.h"

#include "assoc/engine/AssoPlotGeometry.h"
#include "common/core/CFormat.h"
#include "common/picture/ImageLookup.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/PlotStyle.h"
#include "common/picture/QtColor.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <vector>

using quillon::cformat;
using quillon::PlotOverlayItem;

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

// Builds one frame from the state; each add function appends what one part of the plot
// shows, in painting order.
class AssoFrameBuilder
{
public:
    explicit AssoFrameBuilder(const AssoPlotState& state)
        : state(state), view(state.view), content{state.results, state.needFunc, state.compare,
                                                  state.baseFunc, state.view.count}
    {
    }

    void addBackground(quillon::PlotBackground& background) const;
    void addOverlay(std::vector<PlotOverlayItem>& overlay, quillon::PictureUse use) const;

private:
    quillon::PlotStroke curve(int k) const;
    void addXIndices(std::vector<PlotOverlayItem>& overlay) const;
    void addXAxisLines(std::vector<PlotOverlayItem>& overlay) const;
    void addYAxisLines(std::vector<PlotOverlayItem>& overlay) const;
    void addErrorIcons(std::vector<PlotOverlayItem>& overlay) const;
    void addErrorMessages(std::vector<PlotOverlayItem>& overlay) const;
    void addLegend(std::vector<PlotOverlayItem>& overlay) const;
    void addSpreadReadout(std::vector<PlotOverlayItem>& overlay) const;
    void addNodeMark(std::vector<PlotOverlayItem>& overlay) const;
    // Left of the turned label of index n, half its width left of the node.
    float labelLeft(int n) const;
    std::vector<int> displayedIndices() const;

    const AssoPlotState& state;
    const quillon::IndexPlotView& view;
    const AssoPlotContent content;
};

std::vector<int> AssoFrameBuilder::displayedIndices() const
{
    std::vector<int> indices;
    for (int n = std::max(view.window.start, 0); n <= view.window.end && n < view.count; ++n) {
        if (view.window.displays(n)) {
            indices.push_back(n);
        }
    }
    return indices;
}

float AssoFrameBuilder::labelLeft(int n) const
{
    return view.nodePixelX(n) - float(state.indexLabels->width(n)) / 2.0f;
}

void AssoFrameBuilder::addBackground(quillon::PlotBackground& background) const
{
    background.left = -1.5;
    background.right = 1.5;
    background.bottom = view.yMin;
    background.top = view.yMax;
    background.strokes.push_back(state.referenceLines(state.gridDepth));
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (state.needFunc[k]) {
            background.strokes.push_back(curve(k));
        }
    }
}

// Each segment runs from a node back to the node displayed before it.
quillon::PlotStroke AssoFrameBuilder::curve(int k) const
{
    quillon::PlotStroke stroke;
    stroke.width = float(state.curveWidthOffset + 2);
    stroke.depth = k == state.highlightedFunc ? state.highlightedDepth : state.normalDepth;
    const quillon::PlotRgb color = quillon::toPlotRgb(state.colours[k]);
    const int stop = content.curveEnd(k);
    int previous = -1;
    for (int n = std::max(view.window.start, 0); n < stop && n <= view.window.end; ++n) {
        if (!view.window.displays(n)) {
            continue;
        }
        if (previous >= 0) {
            stroke.vertices.push_back({view.nodeX(n), *content.plotted(k, n), color});
            stroke.vertices.push_back({view.nodeX(previous), *content.plotted(k, previous), color});
        }
        previous = n;
    }
    return stroke;
}

void AssoFrameBuilder::addOverlay(std::vector<PlotOverlayItem>& overlay,
                                  quillon::PictureUse use) const
{
    if (state.showXIndices) {
        addXIndices(overlay);
    }
    state.addValueLabels(overlay);
    if (state.needXAxis) {
        addXAxisLines(overlay);
    }
    if (state.needYAxis) {
        addYAxisLines(overlay);
    }
    addErrorIcons(overlay);
    if (state.showErrorMessages) {
        addErrorMessages(overlay);
    }
    state.addRubberBand(overlay, use);
    if (state.showLabels) {
        addLegend(overlay);
    }
    addSpreadReadout(overlay);
    addNodeMark(overlay);
}

// Each label reads downwards from the top edge: one quarter turn for all of them, so a label
// whose left edge is at view x stands at (2, -(x + 2)) in the turned coordinates (placed by
// its top-left corner, a baseline one ascent lower).
void AssoFrameBuilder::addXIndices(std::vector<PlotOverlayItem>& overlay) const
{
    const qreal ascent = QFontMetricsF(state.indexLabels->font()).ascent();
    quillon::PlotIndexLabels labels{state.indexLabels, QColor(Qt::darkBlue), 90.0, {}};
    for (int n : displayedIndices()) {
        labels.placed.emplace_back(QPointF(2, -(labelLeft(n) + 2) - ascent), n);
    }
    overlay.emplace_back(std::move(labels));
}

void AssoFrameBuilder::addXAxisLines(std::vector<PlotOverlayItem>& overlay) const
{
    quillon::PlotLines lines{{}, QPen(Qt::darkBlue)};
    for (int n : displayedIndices()) {
        const float x = labelLeft(n);
        lines.lines.emplace_back(x, 0, x, view.height);
    }
    overlay.emplace_back(std::move(lines));
}

void AssoFrameBuilder::addYAxisLines(std::vector<PlotOverlayItem>& overlay) const
{
    quillon::PlotLines lines{{}, QPen(Qt::darkMagenta)};
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float y = view.valuePixelY(view.gridValue(i));
        lines.lines.emplace_back(QPointF(0, y), QPointF(view.width, y));
    }
    overlay.emplace_back(std::move(lines));
}

// Icons of order k follow the flag of order k + 1, and the fifth order never gets any.
void AssoFrameBuilder::addErrorIcons(std::vector<PlotOverlayItem>& overlay) const
{
    for (int k = 0; k < 4; ++k) {
        if (!state.needFunc[k + 1]) {
            continue;
        }
        const std::vector<int32_t>& errors = state.results->errors[k];
        for (int n = 0; n < view.count && size_t(n) < errors.size(); ++n) {
            if (errors[n] != AssoOk) {
                overlay.emplace_back(quillon::PlotImage{view.errorIconRect(n), state.errorImage});
            }
        }
    }
}

void AssoFrameBuilder::addErrorMessages(std::vector<PlotOverlayItem>& overlay) const
{
    struct Message {
        int order;
        int iteration;
        int32_t code;
    };
    std::vector<Message> messages;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!state.needFunc[k]) {
            continue;
        }
        const std::vector<int32_t>& errors = state.results->errors[k];
        for (size_t n = 0; n < errors.size(); ++n) {
            if (errors[n] != AssoOk) {
                messages.push_back({k, int(n), errors[n]});
            }
        }
    }
    const QFont font = quillon::plotOverlayFont();
    const QFontMetrics metrics(font);
    const int lineHeight = metrics.height();
    const int total = int(messages.size());
    const float mouseX = float(state.pointer.x());
    const float mouseY = float(state.pointer.y());
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
        below = below || mouseY - float(i * lineHeight) < 0;
        left = left || mouseX + float(width) > float(view.width);
    }
    for (int i = 0; i < total; ++i) {
        const Message& m = messages[i];
        const QString text = qformat(cformat("func %d at iter %d gets an error: %s\n", m.order,
                                             m.iteration, screenWord(m.code)));
        const float x = left ? mouseX - float(widest) : mouseX;
        const float y = below ? mouseY + float((total - i) * lineHeight)
                              : mouseY - float((total - i) * lineHeight);
        overlay.emplace_back(quillon::PlotBoxText{
            text.trimmed(), font, QColor(255, 0, 0),
            QRectF(x, y, metrics.horizontalAdvance(text), lineHeight), Qt::AlignLeft});
    }
}

void AssoFrameBuilder::addLegend(std::vector<PlotOverlayItem>& overlay) const
{
    const int rowHeight = int(std::floor(0.25 * view.height)) / 5;
    const int columnWidth = view.width / 15;
    const int top = int(std::floor(0.75 * view.height));
    const int side = std::min(columnWidth, rowHeight);
    overlay.emplace_back(quillon::PlotLines{{QLineF(0, top, view.width, top)}, QPen(Qt::black)});
    const float formulaHeight =
        std::min(float(rowHeight), 10.0f * float(columnWidth) / state.formulaAspect);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        const int rowTop = top + k * rowHeight;
        const int squareTop = rowTop + (rowHeight - side) / 2;
        overlay.emplace_back(
            quillon::PlotImage{QRectF(QRect((columnWidth - side) / 2, squareTop, side, side)),
                               state.needFunc[k] ? state.checkedImage : state.uncheckedImage});
        overlay.emplace_back(
            quillon::PlotImage{QRectF(2 * columnWidth, rowTop + (rowHeight - formulaHeight) / 2,
                                      formulaHeight * state.formulaAspect, formulaHeight),
                               state.formulaImages[k]});
        overlay.emplace_back(quillon::PlotFill{
            QRectF(QRect(13 * columnWidth + (columnWidth - side) / 2, squareTop, side, side)),
            quillon::toQColor(state.colours[k])});
    }
}

void AssoFrameBuilder::addSpreadReadout(std::vector<PlotOverlayItem>& overlay) const
{
    const int current = quillon::plotCurrentNode(view.window, view.count, view.xMin, view.xMax);
    if (current < 0) {
        return;
    }
    float largest = 0.0f;
    float smallest = 0.0f;
    int taking = 0;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (!state.needFunc[k] || size_t(current) >= state.results->values[k].size() ||
            state.results->errors[k][current] != AssoOk) {
            continue;
        }
        const float value = state.results->values[k][current];
        largest = taking == 0 ? value : std::max(largest, value);
        smallest = taking == 0 ? value : std::min(smallest, value);
        ++taking;
    }
    if (taking < 2) {
        return;
    }
    const QString text =
        qformat(cformat("Error: %2e\n", double(largest) - double(smallest))).trimmed();
    const QFont font = quillon::plotOverlayFont();
    const int textHeight = QFontMetrics(font).height();
    const float boxTop = float(0.75 * view.height) - float(int(std::floor(0.25 * view.height)) / 5);
    overlay.emplace_back(quillon::PlotBoxText{text, font, QColor(Qt::black),
                                              QRectF(0, boxTop, view.width, textHeight),
                                              Qt::AlignLeft | Qt::AlignVCenter});
}

// A black ring around the node the inspector shows, while it is displayed.
void AssoFrameBuilder::addNodeMark(std::vector<PlotOverlayItem>& overlay) const
{
    if (!state.markedNode) {
        return;
    }
    const int n = state.markedNode->index;
    const std::optional<float> plotted = content.plotted(state.markedNode->curve, n);
    if (plotted && view.window.displays(n)) {
        overlay.emplace_back(
            quillon::plotNodeRing(QPointF(view.nodePixelX(n), view.valuePixelY(*plotted))));
    }
}

} // namespace

void AssoPlotState::prepareForPicture()
{
    IndexPlotState::prepareForPicture();
    for (int k = 0; k < kAssoOrderCount; ++k) {
        formulaImages[k] = quillon::loadImage(QStringLiteral("func%1.png").arg(k + 1));
    }
}

quillon::PlotBackground assoPlotBackground(const AssoPlotState& state)
{
    quillon::PlotBackground background;
    AssoFrameBuilder(state).addBackground(background);
    return background;
}

std::vector<quillon::PlotOverlayItem> assoPlotOverlay(const AssoPlotState& state,
                                                      quillon::PictureUse use)
{
    std::vector<quillon::PlotOverlayItem> overlay;
    AssoFrameBuilder(state).addOverlay(overlay, use);
    return overlay;
}

quillon::PlotPicture describeAssoPlot(const AssoPlotState& state, QSize viewSize,
                                      quillon::PictureUse use)
{
    AssoPlotState laidOut = state;
    laidOut.layOutFor(viewSize);
    return {viewSize, assoPlotBackground(laidOut), assoPlotOverlay(laidOut, use)};
}

quillon::PlotPicture assoFinishedPicture(float r, float x0, int n, const AssoColors& colours,
                                         QSize size)
{
    AssoSequences sequences;
    computeSequences(r, x0, n, sequences);
    AssoPlotState state;
    state.results = &sequences;
    state.colours = colours;
    state.prepareForPicture();
    state.view.count = n;
    const int last = std::max(n - 1, 1);
    state.view.window = {0, last, 1, last + 1};
    const AssoPlotContent content{&sequences, state.needFunc, state.compare, state.baseFunc, n};
    if (const auto range =
            assoShownYRange(content, state.view.window, state.view.xMin, state.view.xMax)) {
        state.view.yMin = range->first;
        state.view.yMax = range->second;
    }
    state.view.width = size.width();
    state.view.height = size.height();
    return describeAssoPlot(state, size, quillon::PictureUse::File);
}
