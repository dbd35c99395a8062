#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QLineF>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>
#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

namespace quillon
{

class IndexLabels;

// What a plotting tab shows, said once and drawn by either renderer: on screen the background
// goes to OpenGL (drawPlotBackgroundGl) and the overlay to the view's painter; in a picture
// file both go to a QPainter (paintPlotPicture). No drawing code exists outside the two
// renderers, so a file always holds what the screen shows.

// A colour as OpenGL takes it: red, green and blue from 0 to 1.
struct PlotRgb {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;

    friend bool operator==(const PlotRgb& a, const PlotRgb& b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue;
    }
};

// One vertex of the background, in plot coordinates, with the colour it is drawn in.
struct PlotVertex {
    float x = 0.0f;
    float y = 0.0f;
    PlotRgb color;
};

// One run of background geometry at one depth: line segments (vertices taken in pairs) or
// square points. A stipple is the 16-bit OpenGL pattern (bit 0 first, factor 1); 0 is solid.
// Where two runs cover one pixel, the one nearer the viewer (greater depth) shows; at equal
// depth, the one drawn first.
struct PlotStroke {
    enum class Kind { Lines, Points };

    Kind kind = Kind::Lines;
    // Line width or point size in view pixels.
    float width = 1.0f;
    std::uint16_t stipple = 0;
    float depth = 0.0f;
    std::vector<PlotVertex> vertices;
};

// The plot area: a white field seen through the orthographic box left..right x bottom..top,
// with its strokes in drawing order.
struct PlotBackground {
    double left = -1.0;
    double right = 1.0;
    double bottom = -1.0;
    double top = 1.0;
    std::vector<PlotStroke> strokes;
};

// The overlay, in view pixels, painted in order over the background.

// Text on a baseline starting at `baseline`, turned by `turn` degrees (clockwise) about it.
struct PlotText {
    QString text;
    QFont font;
    QColor color;
    QPointF baseline;
    qreal turn = 0.0;
};

// Text laid out in a box with Qt alignment flags.
struct PlotBoxText {
    QString text;
    QFont font;
    QColor color;
    QRectF box;
    int flags = 0;
};

// Index labels made once and kept by `labels`: each label's top-left corner, in coordinates
// turned by `turn` degrees (0, or 90 for labels that read downwards), and its index.
struct PlotIndexLabels {
    std::shared_ptr<IndexLabels> labels;
    QColor color;
    qreal turn = 0.0;
    std::vector<std::pair<QPointF, int>> placed;
};

struct PlotLines {
    std::vector<QLineF> lines;
    QPen pen;
};

// A rectangle's outline.
struct PlotOutline {
    QRectF rect;
    QPen pen;
};

struct PlotImage {
    QRectF target;
    QImage image;
};

struct PlotFill {
    QRectF rect;
    QColor color;
};

// A circle's outline.
struct PlotRing {
    QPointF centre;
    qreal radius = 0.0;
    QPen pen;
};

using PlotOverlayItem = std::variant<PlotText, PlotBoxText, PlotIndexLabels, PlotLines, PlotOutline,
                                     PlotImage, PlotFill, PlotRing>;

// One frame of a plotting tab (or the Roots tab's grid) at one view size.
struct PlotPicture {
    QSize size;
    PlotBackground background;
    std::vector<PlotOverlayItem> overlay;
};

// Whether a picture is for the screen or for a file: a file leaves out what only makes sense
// under the pointer while the mouse works (the rubber band of a drag).
enum class PictureUse { Screen, File };

} // namespace quillon
