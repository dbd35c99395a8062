#pragma once

#include "common/picture/PlotPicture.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <functional>
#include <optional>

namespace quillon
{

// Pictures for slides: a tab's view drawn into a PNG or SVG file of any size.

enum class PictureFormat { Png, Svg };

// The format a file name asks for by its suffix (".png" or ".svg", in any case); none for
// any other name.
std::optional<PictureFormat> pictureFormatFor(const QString& fileName);

// The size of each plotting tab's view in the default window: the reference a picture's texts
// are scaled from, and the command line's picture size.
constexpr QSize kDefaultPlotViewSize(795, 769);

// The sides a picture may have, in pixels.
constexpr int kMinPictureSide = 16;
constexpr int kMaxPictureSide = 8192;

// "WxH" (or "WXH"), two whole numbers of pixels from kMinPictureSide to kMaxPictureSide;
// none for anything else.
std::optional<QSize> parsePictureSize(const QString& text);

// How a picture of `pixels` is laid out: the view is described at `viewSize` and drawn
// `scale` times larger, so that texts and lines keep the share of the picture they have in a
// view of `referenceView` (the view in the default window) instead of shrinking to specks on
// a large picture. A picture no larger than the reference view is drawn as the view is.
struct PictureLayout {
    QSize viewSize;
    double scaleX = 1.0;
    double scaleY = 1.0;
};
PictureLayout pictureLayout(QSize pixels, QSize referenceView);

// Describes a tab's view at a given size in view pixels.
using PictureDescriber = std::function<PlotPicture(QSize viewSize)>;

// The bytes of a picture file of `pixels` in `format`: the view described at the layout's
// size and painted by the QPainter renderer. Independent of the locale.
QByteArray pictureFileBytes(const PictureDescriber& describe, QSize pixels, QSize referenceView,
                            PictureFormat format);

} // namespace quillon
