#include "common/picture/PictureFile.h"

#include "common/picture/PlotPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

namespace quillon
{

namespace
{

// The resolution both files are drawn at: 96 dots per inch, the screen's, so that a point
// size gives the same pixels in a PNG, an SVG and the window.
constexpr int kPictureDpi = 96;

void paintLaidOut(QPaintDevice* device, const PictureDescriber& describe,
                  const PictureLayout& layout)
{
    const PlotPicture picture = describe(layout.viewSize);
    QPainter painter(device);
    painter.scale(layout.scaleX, layout.scaleY);
    paintPlotPicture(&painter, picture);
}

QByteArray pngBytes(const PictureDescriber& describe, QSize pixels, const PictureLayout& layout)
{
    QImage image(pixels, QImage::Format_RGB32);
    const int dotsPerMeter = int(std::lround(kPictureDpi / 0.0254));
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(Qt::white);
    paintLaidOut(&image, describe, layout);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray svgBytes(const PictureDescriber& describe, QSize pixels, const PictureLayout& layout)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(pixels);
    generator.setViewBox(QRect(QPoint(0, 0), pixels));
    generator.setResolution(kPictureDpi);
    generator.setTitle(QStringLiteral("Quillon"));
    paintLaidOut(&generator, describe, layout);
    return bytes;
}

} // namespace

std::optional<PictureFormat> pictureFormatFor(const QString& fileName)
{
    if (fileName.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive)) {
        return PictureFormat::Png;
    }
    if (fileName.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        return PictureFormat::Svg;
    }
    return std::nullopt;
}

std::optional<QSize> parsePictureSize(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,5})[xX]([0-9]{1,5})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int side) { return kMinPictureSide <= side && side <= kMaxPictureSide; };
    if (!fits(size.width()) || !fits(size.height())) {
        return std::nullopt;
    }
    return size;
}

PictureLayout pictureLayout(QSize pixels, QSize referenceView)
{
    const double scale =
        std::max(1.0, std::min(double(pixels.width()) / std::max(referenceView.width(), 1),
                               double(pixels.height()) / std::max(referenceView.height(), 1)));
    const QSize viewSize(std::max(1, int(std::lround(pixels.width() / scale))),
                         std::max(1, int(std::lround(pixels.height() / scale))));
    return {viewSize, double(pixels.width()) / viewSize.width(),
            double(pixels.height()) / viewSize.height()};
}

QByteArray pictureFileBytes(const PictureDescriber& describe, QSize pixels, QSize referenceView,
                            PictureFormat format)
{
    const PictureLayout layout = pictureLayout(pixels, referenceView);
    return format == PictureFormat::Png ? pngBytes(describe, pixels, layout)
                                        : svgBytes(describe, pixels, layout);
}

} // namespace quillon
