#include "common/gui/OpenGLPlotScene.h"

namespace quillon
{

OpenGLPlotScene::OpenGLPlotScene(QObject* parent) : QGraphicsScene(parent) {}

void OpenGLPlotScene::repaint()
{
    update(sceneRect());
}

} // namespace quillon
