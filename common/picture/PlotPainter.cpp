#include "common/picture/PlotPainter.h"

#include "common/picture/IndexLabels.h"

#include <QPaintEngine>
#include <QPainter>
#include <algorithm>
#include <numeric>

namespace quillon
{

namespace
{

// Draws the overlay items one by one; each sets the painter state it needs.
struct OverlayItemPainter {
    QPainter* painter;
    PlotOverlayCache* cache;
    QSize size;

    void operator()(const PlotText& item) const
    {
        painter->setFont(item.font);
        painter->setPen(item.color);
        if (item.turn == 0.0) {
            painter->drawText(item.baseline, item.text);
            return;
        }
        painter->save();
        painter->translate(item.baseline);
        painter->rotate(item.turn);
        painter->drawText(QPointF(0, 0), item.text);
        painter->restore();
    }

    void operator()(const PlotBoxText& item) const
    {
        painter->setFont(item.font);
        painter->setPen(item.color);
        painter->drawText(item.box, item.flags, item.text);
    }

    void operator()(const PlotIndexLabels& item) const
    {
        if (item.turn != 0.0 && cache != nullptr) {
            painter->drawImage(QPointF(0, 0), cache->turnedLabelLayer(item, size));
            return;
        }
        painter->save();
        painter->setFont(item.labels->font());
        painter->setPen(item.color);
        painter->rotate(item.turn);
        for (const auto& [corner, index] : item.placed) {
            painter->drawStaticText(corner, item.labels->staticText(index));
        }
        painter->restore();
    }

    // One line at a time: drawn together, the lines would be filled as one path, whose every
    // scanline crosses every line (slow once a wide or scaled pen makes them areas).
    void operator()(const PlotLines& item) const
    {
        painter->setPen(item.pen);
        for (const QLineF& line : item.lines) {
            painter->drawLine(line);
        }
    }

    void operator()(const PlotOutline& item) const
    {
        painter->setPen(item.pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(item.rect);
    }

    void operator()(const PlotImage& item) const { painter->drawImage(item.target, item.image); }

    void operator()(const PlotFill& item) const { painter->fillRect(item.rect, item.color); }

    void operator()(const PlotRing& item) const
    {
        painter->save();
        painter->setPen(item.pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(item.centre, item.radius, item.radius);
        painter->restore();
    }
};

QColor qColorOf(const PlotRgb& rgb)
{
    return QColor::fromRgbF(std::clamp(rgb.red, 0.0f, 1.0f), std::clamp(rgb.green, 0.0f, 1.0f),
                            std::clamp(rgb.blue, 0.0f, 1.0f));
}

// The OpenGL stipple as a dash pattern in units of the pen's width: runs of set and clear
// bits, starting with the first set run that follows a clear bit (a run across bit 15 and
// bit 0 is one dash; the bits before the run become the offset).
void applyStipple(QPen& pen, std::uint16_t stipple)
{
    if (stipple == 0 || stipple == 0xFFFF) {
        return;
    }
    int first = 0;
    while ((stipple >> first & 1) == 0 || (stipple >> (first + 15) % 16 & 1) != 0) {
        ++first;
    }
    QList<qreal> pattern;
    bool on = true;
    int run = 0;
    for (int bit = 0; bit < 16; ++bit) {
        const bool set = (stipple >> ((first + bit) % 16) & 1) != 0;
        if (set != on) {
            pattern << run / pen.widthF();
            on = set;
            run = 0;
        }
        ++run;
    }
    pattern << run / pen.widthF();
    if (pattern.size() % 2 != 0) {
        pattern << 0.0;
    }
    pen.setDashPattern(pattern);
    pen.setDashOffset((16 - first) % 16 / pen.widthF());
}

// The stretches [first, last) of a 16-pixel period that an OpenGL stipple draws: its runs of
// set bits, bit 0 first.
std::vector<std::pair<int, int>> stippleStretches(std::uint16_t stipple)
{
    std::vector<std::pair<int, int>> stretches;
    for (int bit = 0; bit < 16; ++bit) {
        if ((stipple >> bit & 1) == 0) {
            continue;
        }
        if (!stretches.empty() && stretches.back().second == bit) {
            ++stretches.back().second;
        } else {
            stretches.emplace_back(bit, bit + 1);
        }
    }
    return stretches;
}

// The dashes of a stippled segment as separate lines, the pattern starting again at the
// segment's start with one bit a view pixel: the dash pattern applyStipple gives a pen.
void addDashes(std::vector<QLineF>& lines, const QLineF& segment,
               const std::vector<std::pair<int, int>>& stretches)
{
    const qreal length = segment.length();
    for (qreal period = 0; period < length; period += 16) {
        for (const auto& [first, last] : stretches) {
            if (period + first >= length) {
                break;
            }
            lines.emplace_back(segment.pointAt((period + first) / length),
                               segment.pointAt(std::min(period + last, length) / length));
        }
    }
}

class BackgroundPainter
{
public:
    BackgroundPainter(QPainter* painter, const PlotPicture& picture)
        : painter(painter), box(picture.background), width(picture.size.width()),
          height(picture.size.height())
    {
    }

    QPointF pixelOf(const PlotVertex& vertex) const
    {
        return QPointF((vertex.x - box.left) / (box.right - box.left) * width,
                       (box.top - vertex.y) / (box.top - box.bottom) * height);
    }

    // Segments in reverse order, so that of two on one pixel the earlier ends on top. Their
    // ends are flat, as OpenGL draws its lines (round caps would also take most of the time of
    // a picture of a long run: thousands of segments, each capped twice). A raster painter
    // dashes long dotted lines many times more slowly than it draws the dashes one by one, so
    // for it the dashes are cut here; a vector file keeps the dash pattern. One line at a
    // time: many wide lines drawn together would be filled as one path whose every scanline
    // crosses all of them.
    void paintLines(const PlotStroke& stroke) const
    {
        QPen pen(Qt::black, qreal(stroke.width), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        const bool cutDashes = stroke.stipple != 0 && stroke.stipple != 0xFFFF &&
                               painter->paintEngine()->type() == QPaintEngine::Raster;
        const std::vector<std::pair<int, int>> stretches = stippleStretches(stroke.stipple);
        if (!cutDashes) {
            applyStipple(pen, stroke.stipple);
        }
        const PlotRgb* penColor = nullptr;
        std::vector<QLineF> pieces;
        for (size_t i = stroke.vertices.size() / 2; i-- > 0;) {
            const PlotVertex& from = stroke.vertices[2 * i];
            if (penColor == nullptr || !(*penColor == from.color)) {
                pen.setColor(qColorOf(from.color));
                painter->setPen(pen);
                penColor = &from.color;
            }
            const QLineF segment(pixelOf(from), pixelOf(stroke.vertices[2 * i + 1]));
            pieces.clear();
            if (cutDashes) {
                addDashes(pieces, segment, stretches);
            } else {
                pieces.push_back(segment);
            }
            for (const QLineF& piece : pieces) {
                painter->drawLine(piece);
            }
        }
    }

    void paintPoints(const PlotStroke& stroke) const
    {
        const qreal side = stroke.width;
        for (auto vertex = stroke.vertices.rbegin(); vertex != stroke.vertices.rend(); ++vertex) {
            const QPointF centre = pixelOf(*vertex);
            painter->fillRect(QRectF(centre.x() - side / 2, centre.y() - side / 2, side, side),
                              qColorOf(vertex->color));
        }
    }

private:
    QPainter* painter;
    const PlotBackground& box;
    double width;
    double height;
};

} // namespace

bool PlotOverlayCache::Key::operator==(const Key& other) const
{
    return size == other.size && color == other.color && placed == other.placed;
}

const QImage& PlotOverlayCache::turnedLabelLayer(const PlotIndexLabels& labels, QSize size)
{
    Key wanted{size, labels.color, labels.placed};
    if (key && *key == wanted) {
        return layer;
    }
    // The turned labels hang from the top edge as far as the longest one is wide.
    int widest = 0;
    for (const auto& placed : labels.placed) {
        widest = std::max(widest, labels.labels->width(placed.second));
    }
    const int depth = std::min(widest + 4, std::max(size.height(), 1));
    layer = QImage(std::max(size.width(), 1), depth, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setFont(labels.labels->font());
    painter.setPen(labels.color);
    painter.rotate(labels.turn);
    for (const auto& [corner, index] : labels.placed) {
        painter.drawStaticText(corner, labels.labels->staticText(index));
    }
    key = std::move(wanted);
    return layer;
}

void paintPlotOverlay(QPainter* painter, const std::vector<PlotOverlayItem>& overlay,
                      QSize viewSize, PlotOverlayCache* cache)
{
    const OverlayItemPainter itemPainter{painter, cache, viewSize};
    painter->save();
    for (const PlotOverlayItem& item : overlay) {
        std::visit(itemPainter, item);
    }
    painter->restore();
}

void paintPlotBackground(QPainter* painter, const PlotPicture& picture)
{
    painter->fillRect(QRectF(QPointF(0, 0), QSizeF(picture.size)), Qt::white);
    const std::vector<PlotStroke>& strokes = picture.background.strokes;
    std::vector<size_t> order(strokes.size());
    std::iota(order.begin(), order.end(), size_t(0));
    // Farther first; at one depth the later stroke first, so the earlier one ends on top.
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        return strokes[a].depth != strokes[b].depth ? strokes[a].depth < strokes[b].depth : a > b;
    });
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    const BackgroundPainter background(painter, picture);
    for (size_t index : order) {
        const PlotStroke& stroke = strokes[index];
        if (stroke.kind == PlotStroke::Kind::Lines) {
            background.paintLines(stroke);
        } else {
            background.paintPoints(stroke);
        }
    }
    painter->restore();
}

void paintPlotPicture(QPainter* painter, const PlotPicture& picture)
{
    paintPlotBackground(painter, picture);
    paintPlotOverlay(painter, picture.overlay, picture.size);
}

} // namespace quillon
