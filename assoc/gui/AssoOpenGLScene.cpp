#include "gui/AssoOpenGLScene.h"

#include "gui/GlPlotFrame.h"

AssoOpenGLScene::AssoOpenGLScene(QObject* parent) : OpenGLPlotScene(parent) {}

void AssoOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(-1.5, 1.5, yMin, yMax);
}
