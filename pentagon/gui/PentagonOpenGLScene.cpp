#include "pentagon/gui/PentagonOpenGLScene.h"

#include "common/gui/GlPlotFrame.h"

PentagonOpenGLScene::PentagonOpenGLScene(QObject* parent) : OpenGLPlotScene(parent) {}

void PentagonOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(xMin, xMax, yMin, yMax);
}
