#include "common/picture/IndexPlotState.h"

#include "common/picture/ImageLookup.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/PlotStyle.h"

#include <QTransform>

namespace quillon
{

void IndexPlotState::prepareForPicture()
{
    errorImage = loadImage(QStringLiteral("error.png"));
    checkedImage = loadImage(QStringLiteral("c.png"));
    uncheckedImage = loadImage(QStringLiteral("u.png"));
    indexLabels = std::make_shared<IndexLabels>(plotOverlayFont());
}

void IndexPlotState::layOutFor(QSize size)
{
    const QTransform scale = view.pixelScaleTo(size);
    pointer = scale.map(pointer);
    if (rubberBand) {
        rubberBand = scale.mapRect(*rubberBand);
    }
    view.width = size.width();
    view.height = size.height();
}

PlotStroke IndexPlotState::referenceLines(float depth) const
{
    return view.referenceLines(needYAxis, gridColor, depth);
}

void IndexPlotState::addValueLabels(std::vector<PlotOverlayItem>& overlay) const
{
    if (!showYIndices) {
        return;
    }
    for (PlotText& label : plotValueLabels(view.yMin, view.yMax, view.height)) {
        overlay.emplace_back(std::move(label));
    }
}

void IndexPlotState::addRubberBand(std::vector<PlotOverlayItem>& overlay, PictureUse use) const
{
    if (rubberBand && use == PictureUse::Screen) {
        overlay.emplace_back(PlotOutline{*rubberBand, QPen(Qt::black)});
    }
}

} // namespace quillon
