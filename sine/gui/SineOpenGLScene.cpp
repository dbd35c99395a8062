#include "sine/gui/SineOpenGLScene.h"

#include "common/gui/GlPlotFrame.h"

SineOpenGLScene::SineOpenGLScene(QObject* parent) : OpenGLPlotScene(parent) {}

void SineOpenGLScene::drawBackground(QPainter* painter, const QRectF&)
{
    quillon::GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(-1.5, 1.5, yLow, yHigh);
}
