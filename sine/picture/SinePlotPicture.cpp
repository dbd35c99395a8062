#include "sine/picture/SinePlotPicture.h"

#include "common/core/CFormat.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/PlotStyle.h"
#include "common/picture/QtColor.h"
#include "sine/engine/SineEngine.h"
#include "sine/engine/SinePlotGeometry.h"
#include "sine/picture/SineLegendEntry.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

using quillon::cformat;
using quillon::PlotOverlayItem;
using quillon::PlotStroke;

namespace
{

constexpr float kGridDepth = 0.0f;
constexpr float kMarkerDepth = 1.0f;
constexpr float kCurveDepth = 2.0f;
constexpr float kHoveredDepth = 3.0f;
constexpr float kLibraryDepth = 4.0f;
constexpr float kTrendWidth = 2.0f;
constexpr float kValueWidth = 4.0f;
constexpr std::uint16_t kDashed = 0x00FF;
// How far (in view pixels) the pointer may be from a node's x for its index to count as under
// the pointer.
constexpr float kNodeHitRadius = 5.0f;

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

PlotStroke lineStroke(float width, std::uint16_t stipple, float depth)
{
    PlotStroke stroke;
    stroke.width = width;
    stroke.stipple = stipple;
    stroke.depth = depth;
    return stroke;
}

void addUnlessEmpty(std::vector<PlotStroke>& strokes, PlotStroke stroke)
{
    if (!stroke.vertices.empty()) {
        strokes.push_back(std::move(stroke));
    }
}

// Builds one frame from a state laid out for its view; each add function appends what one part
// of the plot shows, in painting order.
class SineFrameBuilder
{
public:
    explicit SineFrameBuilder(const SinePlotState& state)
        : state(state), view(state.view), content(state.content())
    {
    }

    void addBackground(quillon::PlotBackground& background) const;
    void addOverlay(std::vector<PlotOverlayItem>& overlay, quillon::PictureUse use) const;

private:
    PlotStroke errorMarkers() const;
    void addCurves(std::vector<PlotStroke>& strokes, int slot) const;
    PlotStroke trendLines(int k, const std::vector<int>& indices, quillon::PlotRgb color,
                          float depth) const;
    PlotStroke libraryLine() const;
    quillon::PlotVertex node(int k, int i, quillon::PlotRgb color) const;

    void addErrorIcons(std::vector<PlotOverlayItem>& overlay) const;
    void addXIndices(std::vector<PlotOverlayItem>& overlay) const;
    void addErrorList(std::vector<PlotOverlayItem>& overlay) const;
    void addLegend(std::vector<PlotOverlayItem>& overlay) const;
    void addLargestError(std::vector<PlotOverlayItem>& overlay) const;
    void addNodeMark(std::vector<PlotOverlayItem>& overlay) const;
    int indexUnderPointer() const;
    std::vector<int> plottedIndices(int k) const;

    const SinePlotState& state;
    const quillon::IndexPlotView& view;
    const SinePlotContent content;
};

std::vector<int> SineFrameBuilder::plottedIndices(int k) const
{
    return sinePlottedIndices(content, view.window, view.count, k);
}

quillon::PlotVertex SineFrameBuilder::node(int k, int i, quillon::PlotRgb color) const
{
    return {view.nodeX(i), *content.plotted(k, i), color};
}

void SineFrameBuilder::addBackground(quillon::PlotBackground& background) const
{
    background.left = view.xMin;
    background.right = view.xMax;
    background.bottom = view.yMin;
    background.top = view.yMax;
    background.strokes.push_back(state.referenceLines(kGridDepth));
    addUnlessEmpty(background.strokes, errorMarkers());
    for (int slot = 1; slot <= kSineApproachCount; ++slot) {
        if (state.needed[slot]) {
            addCurves(background.strokes, slot);
        }
    }
    if (state.needed[kSineLibrarySlot]) {
        background.strokes.push_back(libraryLine());
    }
}

// A vertical line from 1 to -1 where each selected series stopped.
PlotStroke SineFrameBuilder::errorMarkers() const
{
    PlotStroke stroke = lineStroke(1.0f, 0, kMarkerDepth);
    for (int k = 0; k < kSineApproachCount; ++k) {
        if (!state.needed[k + 1]) {
            continue;
        }
        const quillon::PlotRgb color = quillon::toPlotRgb(state.colours[k + 1]);
        const std::vector<int32_t>& codes = state.results->series[k].codes;
        for (size_t i = 0; i < codes.size(); ++i) {
            if (codes[i] != SineOk) {
                stroke.vertices.push_back({view.nodeX(int(i)), 1.0f, color});
                stroke.vertices.push_back({view.nodeX(int(i)), -1.0f, color});
            }
        }
    }
    return stroke;
}

// The approach's trend lines, its curve of partial sums (or errors) and its drop lines to 0,
// in front of the others while its legend entry is under the pointer.
void SineFrameBuilder::addCurves(std::vector<PlotStroke>& strokes, int slot) const
{
    const int k = slot - 1;
    const std::vector<int> indices = plottedIndices(k);
    const float depth = slot == state.hovered ? kHoveredDepth : kCurveDepth;
    const quillon::PlotRgb color = quillon::toPlotRgb(state.colours[slot]);
    if (state.showBoundary) {
        addUnlessEmpty(strokes, trendLines(k, indices, color, depth));
    }
    if (state.showValues) {
        PlotStroke curve = lineStroke(kValueWidth, 0, depth);
        for (size_t j = 1; j < indices.size(); ++j) {
            curve.vertices.push_back(node(k, indices[j - 1], color));
            curve.vertices.push_back(node(k, indices[j], color));
        }
        addUnlessEmpty(strokes, std::move(curve));
    }
    if (state.needXAxis) {
        PlotStroke drops = lineStroke(1.0f, 0, depth);
        for (int i : indices) {
            drops.vertices.push_back(node(k, i, state.gridColor));
            drops.vertices.push_back({view.nodeX(i), 0.0f, state.gridColor});
        }
        addUnlessEmpty(strokes, std::move(drops));
    }
}

// Two broken envelopes: one through the partial sums that follow a positive term, one through
// those that follow a term <= 0, each joining consecutive members of its kind.
PlotStroke SineFrameBuilder::trendLines(int k, const std::vector<int>& indices,
                                        quillon::PlotRgb color, float depth) const
{
    const std::vector<float>& terms = state.results->series[k].terms;
    PlotStroke stroke = lineStroke(kTrendWidth, kDashed, depth);
    for (bool positive : {true, false}) {
        int previous = -1;
        for (int i : indices) {
            if ((terms[i] > 0.0f) != positive) {
                continue;
            }
            if (previous >= 0) {
                stroke.vertices.push_back(node(k, previous, color));
                stroke.vertices.push_back(node(k, i, color));
            }
            previous = i;
        }
    }
    return stroke;
}

// Across the plot at the library sine, or at 0 when the curves show errors.
PlotStroke SineFrameBuilder::libraryLine() const
{
    const float level = state.errorComparison ? 0.0f : state.results->librarySine;
    const quillon::PlotRgb color = quillon::toPlotRgb(state.colours[kSineLibrarySlot]);
    PlotStroke stroke = lineStroke(1.0f, 0, kLibraryDepth);
    stroke.vertices = {{view.xMin, level, color}, {view.xMax, level, color}};
    return stroke;
}

void SineFrameBuilder::addOverlay(std::vector<PlotOverlayItem>& overlay,
                                  quillon::PictureUse use) const
{
    if (use == quillon::PictureUse::File || !state.blink) {
        addErrorIcons(overlay);
    }
    if (state.showXIndices) {
        addXIndices(overlay);
    }
    state.addValueLabels(overlay);
    addErrorList(overlay);
    state.addRubberBand(overlay, use);
    if (state.showLabels) {
        addLegend(overlay);
    }
    addLargestError(overlay);
    addNodeMark(overlay);
}

// Above the index where each selected series stopped, once the window has slid in.
void SineFrameBuilder::addErrorIcons(std::vector<PlotOverlayItem>& overlay) const
{
    if (!view.window.slideInDone()) {
        return;
    }
    for (int k = 0; k < kSineApproachCount; ++k) {
        const SineSeries& series = state.results->series[k];
        if (state.needed[k + 1] && series.codes.size() > series.terms.size()) {
            overlay.emplace_back(
                quillon::PlotImage{view.errorIconRect(int(series.terms.size())), state.errorImage});
        }
    }
}

// Each label centred under its node, its top two pixels below the view's top edge.
void SineFrameBuilder::addXIndices(std::vector<PlotOverlayItem>& overlay) const
{
    quillon::PlotIndexLabels labels{state.indexLabels, QColor(Qt::darkBlue), 0.0, {}};
    for (int i = std::max(view.window.start, 0); i <= view.window.end && i < view.count; ++i) {
        if (view.window.displays(i)) {
            const float x = view.nodePixelX(i) - float(state.indexLabels->width(i)) / 2.0f;
            labels.placed.emplace_back(QPointF(x, 2.0), i);
        }
    }
    overlay.emplace_back(std::move(labels));
}

int SineFrameBuilder::indexUnderPointer() const
{
    int nearest = -1;
    float distance = kNodeHitRadius;
    for (int i = std::max(view.window.start, 0); i <= view.window.end && i < view.count; ++i) {
        const float away = std::fabs(view.nodePixelX(i) - float(state.pointer.x()));
        if (view.window.displays(i) && away <= distance) {
            nearest = i;
            distance = away;
        }
    }
    return nearest;
}

// Under the pointer's index, one red line per selected series that stopped there, the block
// beside the pointer and whole inside the plot: the index where the animation pauses itself is
// at the plot's right edge.
void SineFrameBuilder::addErrorList(std::vector<PlotOverlayItem>& overlay) const
{
    const int index = indexUnderPointer();
    if (index < 0) {
        return;
    }
    QStringList lines;
    for (int k = 0; k < kSineApproachCount; ++k) {
        const std::vector<int32_t>& codes = state.results->series[k].codes;
        if (!state.needed[k + 1] || size_t(index) >= codes.size() || codes[index] == SineOk) {
            continue;
        }
        const std::string name = std::string(sineApproaches()[k].longName) + " ";
        lines << qformat(cformat("%s gets an error: %s\n", name.c_str(), screenWord(codes[index])))
                     .trimmed();
    }
    if (lines.isEmpty()) {
        return;
    }
    const QFont font = quillon::plotOverlayFont();
    const QFontMetrics metrics(font);
    int widest = 0;
    for (const QString& line : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    const SineTextBlockCorner corner =
        sineTextBlockBesideCursor(float(state.pointer.x()), float(state.pointer.y()), float(widest),
                                  float(metrics.height() * lines.size()), view.width, view.height);
    float baseline = corner.top + float(metrics.ascent());
    for (const QString& line : lines) {
        overlay.emplace_back(
            quillon::PlotText{line, font, QColor(255, 0, 0), QPointF(corner.left, baseline)});
        baseline += float(metrics.height());
    }
}

// A rule above the bottom quarter, then per entry its check mark and colour squares and its
// name, the hovered approach's in red.
void SineFrameBuilder::addLegend(std::vector<PlotOverlayItem>& overlay) const
{
    const int top = int(std::floor(0.75 * view.height));
    overlay.emplace_back(quillon::PlotLines{{QLineF(0, top, view.width, top)}, QPen(Qt::black)});
    const QFont font = quillon::plotOverlayFont();
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            const SineLegendEntry entry = sineLegendEntry(row, column, view.width, view.height);
            if (entry.slot >= 0) {
                overlay.emplace_back(quillon::PlotImage{
                    QRectF(entry.checkMark),
                    state.needed[entry.slot] ? state.checkedImage : state.uncheckedImage});
                overlay.emplace_back(quillon::PlotFill{
                    QRectF(entry.colour), quillon::toQColor(state.colours[entry.slot])});
            }
            const bool hovered = entry.slot == state.hovered && entry.slot > 0;
            overlay.emplace_back(quillon::PlotBoxText{
                entry.shownName, font, hovered ? QColor(Qt::red) : QColor(Qt::black),
                QRectF(entry.textBox), Qt::AlignLeft | Qt::AlignVCenter});
        }
    }
}

// Just above the legend's rule.
void SineFrameBuilder::addLargestError(std::vector<PlotOverlayItem>& overlay) const
{
    const std::optional<float> largest =
        sineLargestError(content, view.window, view.count, view.xMin, view.xMax);
    if (!largest) {
        return;
    }
    const QString text =
        qformat(
            cformat("Maximal absolute error respect to C++ Math library: %2e\n", double(*largest)))
            .trimmed();
    const QFont font = quillon::plotOverlayFont();
    const int textHeight = QFontMetrics(font).height();
    const float boxTop = float(0.75 * view.height) - float(textHeight);
    overlay.emplace_back(quillon::PlotBoxText{text, font, QColor(Qt::black),
                                              QRectF(0, boxTop, view.width, textHeight),
                                              Qt::AlignLeft | Qt::AlignVCenter});
}

// A black ring around the node the inspector shows, while it is drawn.
void SineFrameBuilder::addNodeMark(std::vector<PlotOverlayItem>& overlay) const
{
    if (!state.markedNode) {
        return;
    }
    const int k = state.markedNode->curve;
    const int i = state.markedNode->index;
    const std::vector<int> drawn = plottedIndices(k);
    if (std::find(drawn.begin(), drawn.end(), i) != drawn.end()) {
        overlay.emplace_back(quillon::plotNodeRing(
            QPointF(view.nodePixelX(i), view.valuePixelY(*content.plotted(k, i)))));
    }
}

} // namespace

quillon::PlotBackground sinePlotBackground(const SinePlotState& state)
{
    quillon::PlotBackground background;
    SineFrameBuilder(state).addBackground(background);
    return background;
}

std::vector<quillon::PlotOverlayItem> sinePlotOverlay(const SinePlotState& state,
                                                      quillon::PictureUse use)
{
    std::vector<quillon::PlotOverlayItem> overlay;
    SineFrameBuilder(state).addOverlay(overlay, use);
    return overlay;
}

quillon::PlotPicture describeSinePlot(const SinePlotState& state, QSize viewSize,
                                      quillon::PictureUse use)
{
    SinePlotState laidOut = state;
    laidOut.layOutFor(viewSize);
    return {viewSize, sinePlotBackground(laidOut), sinePlotOverlay(laidOut, use)};
}

quillon::PlotPicture sineFinishedPicture(int degrees, int terms, const SineColors& colours,
                                         QSize viewSize)
{
    SineResults results;
    computeSine(degrees, terms, results);
    SinePlotState state;
    state.results = &results;
    state.colours = colours;
    state.prepareForPicture();
    state.view.count = terms;
    // A window needs two ends apart: a run of one term still spans indices 0 and 1.
    const int last = std::max(terms - 1, 1);
    state.view.window = {0, last, 1, last + 1};
    if (const auto range = sineFitYRange(state.content(), state.view.window, terms, state.view.xMin,
                                         state.view.xMax)) {
        state.view.yMin = range->first;
        state.view.yMax = range->second;
    }
    state.view.width = viewSize.width();
    state.view.height = viewSize.height();
    return describeSinePlot(state, viewSize, quillon::PictureUse::File);
}
