#include "pentagon/picture/PentagonPlotPicture.h"

#include "common/core/CFormat.h"
#include "common/core/PlotXWindow.h"
#include "common/picture/PlotStyle.h"
#include "common/picture/QtColor.h"
#include "pentagon/engine/PentagonView.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <cstdint>
#include <cstring>
#include <unordered_set>

using quillon::PlotOverlayItem;

namespace
{

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

// The initial pentagon in its colour, the newest in the current colour, older ones in greys
// that lighten with age.
quillon::PlotRgb pentagonColor(const PentagonColorSettings& colours, int n, int age)
{
    if (n == 0) {
        return quillon::toPlotRgb(colours.colors[5]);
    }
    if (age == 0) {
        return quillon::toPlotRgb(colours.colors[6]);
    }
    const float grey = float(pentagonGreyForAge(age)) / 255.0f;
    return {grey, grey, grey};
}

// Every drawn pentagon with its five edges and five diagonals, in one run of lines.
quillon::PlotStroke historyStroke(const PentagonPlotState& state)
{
    quillon::PlotStroke stroke;
    stroke.width = float(state.colours.lineWidth);
    const int count = int(state.pentagons.size());
    // Every pentagon lies at the same depth, so on each pixel the first segment drawn there
    // wins and a segment drawn again at the same coordinates adds nothing. In and Out pairs
    // soon cycle through a few pentagons, so a long history is mostly such repeats.
    std::unordered_set<Segment, SegmentHash> drawn;
    for (int n = 0; n < count; ++n) {
        if (!state.isDrawn(size_t(n))) {
            continue;
        }
        const quillon::PlotRgb color = pentagonColor(state.colours, n, count - n - 1);
        const PentagonPoints& pentagon = state.pentagons[size_t(n)];
        // Each of the ten segments once: a pair drawn the other way round, or a point joined
        // to itself, adds no pixel of another colour.
        for (int i = 1; i <= 5; ++i) {
            for (int j = i + 1; j <= 5; ++j) {
                if (drawn.emplace(pentagon.x(i), pentagon.y(i), pentagon.x(j), pentagon.y(j))
                        .second) {
                    stroke.vertices.push_back({pentagon.x(i), pentagon.y(i), color});
                    stroke.vertices.push_back({pentagon.x(j), pentagon.y(j), color});
                }
            }
        }
    }
    return stroke;
}

// Only the points, point k in the colour of Point k, in front of the plane of the lines: no
// lines join them while a pentagon is being entered.
quillon::PlotStroke enteredPointsStroke(const PentagonPlotState& state)
{
    quillon::PlotStroke stroke;
    stroke.kind = quillon::PlotStroke::Kind::Points;
    stroke.width = float(state.colours.pointSize);
    stroke.depth = 1.0f;
    for (int k = 1; k <= state.enteredCount; ++k) {
        stroke.vertices.push_back({state.enteredPoints.x(k), state.enteredPoints.y(k),
                                   quillon::toPlotRgb(state.colours.colors[size_t(k - 1)])});
    }
    return stroke;
}

QString labelText(float value)
{
    return QString::fromStdString(quillon::cformat("%.2e", double(value)));
}

// An x value's grid line stands half its label's width right of the value's position.
float verticalGridLineX(const PentagonRange& range, int viewWidth, float value)
{
    const QFontMetrics metrics(quillon::plotOverlayFont());
    return float(viewWidth) * (value - range.xMin) / (range.xMax - range.xMin) +
           float(metrics.horizontalAdvance(labelText(value))) / 2.0f;
}

// The four edges of the drag's rectangle, from its press corner round.
quillon::PlotLines rubberBandLines(const QRectF& band)
{
    return {{QLineF(band.topLeft(), band.topRight()), QLineF(band.topRight(), band.bottomRight()),
             QLineF(band.bottomRight(), band.bottomLeft()),
             QLineF(band.bottomLeft(), band.topLeft())},
            QPen(Qt::black)};
}

// Along the bottom, each label turned by 90 degrees about its anchor so that it reads upwards,
// and centred on its value's grid line: a student reads each line's value from the label the
// line runs through.
void appendXLabels(std::vector<PlotOverlayItem>& overlay, const PentagonRange& range,
                   QSize viewSize)
{
    const QFont font = quillon::plotOverlayFont();
    const QFontMetricsF metrics(font);
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float value = quillon::plotGridValue(i, range.xMin, range.xMax);
        const QString text = labelText(value);
        // Turned upwards, the text's height lies across the view: its ink, from the top of the
        // glyphs to their bottom, runs from anchor + top to anchor + bottom.
        const double anchor = double(verticalGridLineX(range, viewSize.width(), value)) -
                              metrics.tightBoundingRect(text).center().y();
        overlay.emplace_back(quillon::PlotText{text, font, QColor(Qt::darkMagenta),
                                               QPointF(anchor, viewSize.height()), -90.0});
    }
}

// Each line runs through the middle of its turned label.
quillon::PlotLines verticalGridLines(const PentagonRange& range, QSize viewSize)
{
    quillon::PlotLines lines{{}, QPen(Qt::darkMagenta)};
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float x = verticalGridLineX(range, viewSize.width(),
                                          quillon::plotGridValue(i, range.xMin, range.xMax));
        lines.lines.emplace_back(QPointF(x, 0), QPointF(x, viewSize.height()));
    }
    return lines;
}

quillon::PlotLines horizontalGridLines(const PentagonRange& range, QSize viewSize)
{
    quillon::PlotLines lines{{}, QPen(Qt::darkMagenta)};
    for (int i = 0; i < quillon::kPlotGridLines; ++i) {
        const float value = quillon::plotGridValue(i, range.yMin, range.yMax);
        const float y = float(viewSize.height()) * (range.yMax - value) / (range.yMax - range.yMin);
        lines.lines.emplace_back(QPointF(0, y), QPointF(viewSize.width(), y));
    }
    return lines;
}

// The failed step's message in red, 20 point bold "times", centred in the plot, without its
// line break (its blank before the break stays).
quillon::PlotText errorMessage(int status, QSize viewSize)
{
    QFont font(QStringLiteral("times"), 20);
    font.setWeight(QFont::Bold);
    const QString message = QString::fromLatin1(pentagonStatusMessage(status)).chopped(1);
    const QFontMetrics metrics(font);
    const float x = (float(viewSize.width()) - float(metrics.horizontalAdvance(message))) / 2.0f;
    return {message, font, QColor(255, 0, 0), QPointF(x, float(viewSize.height()) / 2.0f)};
}

// A rectangle zoom at a click that does not drag leaves a range with no width and no height
// (a drag along one edge, one of the two), and such a range shows nothing at all.
bool rangeIsEmpty(const PentagonRange& range)
{
    return range.xMin == range.xMax || range.yMin == range.yMax;
}

// The way back from an empty range: the right button steps back through the zooms. Above the
// middle, where a failed step's message never reaches.
quillon::PlotText zoomBackHint(QSize viewSize)
{
    const QFont font = quillon::plotOverlayFont();
    const QString hint = QStringLiteral("right-click to go back");
    const QFontMetrics metrics(font);
    const float x = (float(viewSize.width()) - float(metrics.horizontalAdvance(hint))) / 2.0f;
    return {hint, font, QColor(Qt::black), QPointF(x, float(viewSize.height()) / 3.0f)};
}

} // namespace

QPointF pentagonViewPixel(const PentagonRange& range, QSize viewSize, float x, float y)
{
    return QPointF(float(viewSize.width()) * (x - range.xMin) / (range.xMax - range.xMin),
                   float(viewSize.height()) * (range.yMax - y) / (range.yMax - range.yMin));
}

quillon::PlotBackground pentagonPlotBackground(const PentagonPlotState& state)
{
    quillon::PlotBackground background;
    background.left = state.range.xMin;
    background.right = state.range.xMax;
    background.bottom = state.range.yMin;
    background.top = state.range.yMax;
    background.strokes.push_back(state.enteringPoints && !state.selectionMode
                                     ? enteredPointsStroke(state)
                                     : historyStroke(state));
    return background;
}

std::vector<PlotOverlayItem> pentagonPlotOverlay(const PentagonPlotState& state, QSize viewSize,
                                                 quillon::PictureUse use)
{
    std::vector<PlotOverlayItem> overlay;
    if (use == quillon::PictureUse::Screen && state.rubberBand) {
        overlay.emplace_back(rubberBandLines(*state.rubberBand));
    }
    if (state.showXIndices) {
        appendXLabels(overlay, state.range, viewSize);
    }
    if (state.showYIndices) {
        for (quillon::PlotText& label :
             quillon::plotValueLabels(state.range.yMin, state.range.yMax, viewSize.height())) {
            overlay.emplace_back(std::move(label));
        }
    }
    if (state.showXAxis) {
        overlay.emplace_back(verticalGridLines(state.range, viewSize));
    }
    if (state.showYAxis) {
        overlay.emplace_back(horizontalGridLines(state.range, viewSize));
    }
    // The ring stays while its pentagon is in the history.
    if (state.markedVertex && size_t(state.markedVertex->curve) < state.pentagons.size()) {
        const PentagonPoints& pentagon = state.pentagons[size_t(state.markedVertex->curve)];
        const int point = state.markedVertex->index;
        overlay.emplace_back(quillon::plotNodeRing(
            pentagonViewPixel(state.range, viewSize, pentagon.x(point), pentagon.y(point))));
    }
    if (state.lastStatus != StatusOk) {
        overlay.emplace_back(errorMessage(state.lastStatus, viewSize));
    }
    if (rangeIsEmpty(state.range)) {
        overlay.emplace_back(zoomBackHint(viewSize));
    }
    return overlay;
}

quillon::PlotPicture describePentagonPlot(const PentagonPlotState& state, QSize viewSize,
                                          quillon::PictureUse use)
{
    return {viewSize, pentagonPlotBackground(state), pentagonPlotOverlay(state, viewSize, use)};
}

quillon::PlotPicture pentagonFinishedPicture(const PentagonEngine& engine,
                                             const PentagonColorSettings& colours, QSize viewSize)
{
    return describePentagonPlot(pentagonPlotStateFor(engine, colours), viewSize,
                                quillon::PictureUse::File);
}
