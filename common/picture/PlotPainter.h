#pragma once

#include "common/picture/PlotPicture.h"

#include <QImage>
#include <optional>

class QPainter;

namespace quillon
{

// What painting an overlay on screen makes once and reuses while it stays the same: the
// layer of turned index labels (a long window has thousands of them).
class PlotOverlayCache
{
public:
    // The layer for `labels` in a view of `size`, painted again only when they changed.
    const QImage& turnedLabelLayer(const PlotIndexLabels& labels, QSize size);

private:
    struct Key {
        QSize size;
        QColor color;
        std::vector<std::pair<QPointF, int>> placed;
        bool operator==(const Key& other) const;
    };
    QImage layer;
    std::optional<Key> key;
};

// The QPainter renderer of a plot description.

// The overlay, item by item, over whatever the painter holds. With a cache, turned index
// labels are painted into a layer that is kept between frames (the screen's way); without
// one they are painted directly (a picture file's way, so an SVG keeps them as text).
void paintPlotOverlay(QPainter* painter, const std::vector<PlotOverlayItem>& overlay,
                      QSize viewSize, PlotOverlayCache* cache = nullptr);

// The background as the painter draws it for a file: the white field, then every stroke
// mapped from the orthographic box to the view, nearer strokes over farther ones and, at one
// depth, earlier strokes over later ones (as the depth test decides on screen).
void paintPlotBackground(QPainter* painter, const PlotPicture& picture);

// The whole picture for a file: background, then overlay.
void paintPlotPicture(QPainter* painter, const PlotPicture& picture);

} // namespace quillon
